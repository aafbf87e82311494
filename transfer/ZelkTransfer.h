// Commands that read from and write to the radio: ZelkFrame::OnDownload and ZelkFrame::OnUpload.
#pragma once

/// True if the current page, of a single channel radio (index 0 to 5), may be sent: its default row and both
/// guard memories have data, and the guard memories are selected.
bool MainAndGuardsAreSelected();
