// Memory numbers of the current page.
#pragma once

/// The first row from start to last, other than row, of the current page whose MNUM cell isn't
/// empty and reads as number; last + 1 when there is none.
int FindDuplicateMNum(int start, int row, int last, int number);
