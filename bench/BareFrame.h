// The window of the bare toolkit that the program's start is compared with.
#pragma once

class wxGrid;

/// Shows a frame of the program's size with one grid like that of the program's first page. Returns the grid.
wxGrid* ShowBareFrame();
