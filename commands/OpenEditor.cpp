#include "commands/OpenEditor.h"

#include "catalogue/PageModel.h"

#include <wx/grid.h>

void CommitOpenEditor() {
    if (wxGrid* grid = CurrentGrid())
        grid->DisableCellEditControl();
}
