#include "editing/MemoryNumbers.h"

#include "catalogue/PageModel.h"
#include "catalogue/TextNumbers.h"

#include <wx/grid.h>

int FindDuplicateMNum(int start, int row, int last, int number) {
    const wxGrid* grid = CurrentGrid();
    for (int other = start; other <= last; ++other) {
        if (other == row)
            continue;
        const wxString text = grid->GetCellValue(other, MNUM);
        if (!text.empty() && ReadDecimal(text) == number)
            return other;
    }
    return last + 1;
}
