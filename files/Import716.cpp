#include "files/Import716.h"

#include "catalogue/PageModel.h"
#include "catalogue/TextNumbers.h"
#include "editing/ZelkEdit.h"
#include "files/ImportOutcome.h"

using namespace RadioCatalogue;

int MovedNumber716(int number, int radio) {
    return radio == Kdrv716B && number > RP25Memories ? number + NP25GuardShift : number;
}

int RowOf716(Record716& record) {
    const PageParameterRecord& page = CurrentParameters();
    if (record.Mnum.empty() || !(ReadHex(record.Tflg) & DEF))
        return -1;
    const int read = ReadDecimal(record.Mnum);
    // Check the range first: the shift could overflow a number with too many digits.
    if (read < 0 || read > page.Rows)
        return -1;
    const int number = MovedNumber716(read, page.Radio);
    if (number > page.Rows)
        return -1;
    if (number != read)
        record.Mnum = record.Prim = NumberText(number);
    return number;
}

RowWriter716::RowWriter716() : m_grid(CurrentGrid()), m_numbers(CurrentParameters().Rows) {}

void RowWriter716::Write(int row, const Record716& record) {
    write716ToGrid(m_grid, row, record);
    // The default row stays out of the index, or its number would count as taken.
    if (row == 0) {
        CheckRow(m_grid, row);
    } else {
        m_numbers.Change(row, record.Mnum);
        CheckRow(m_grid, row, m_numbers);
    }
    NoteIfReplaced(m_grid, row, DESC, record.Desc);
    const bool hasOwnZone = !(ReadHex(record.Mflg) & (ShadowIndexMask | GuardFlag));
    if (CurrentPageIsP25() && hasOwnZone && !record.Zone.empty())
        NoteIfReplaced(m_grid, row, ZONE, record.Zone);
}
