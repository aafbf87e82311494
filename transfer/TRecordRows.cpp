// Choice of the rows to send to a digital radio, and of their records.
#include "catalogue/MemoryRow.h"
#include "catalogue/PageModel.h"
#include "catalogue/TextNumbers.h"
#include "transfer/RadioIdentity.h"
#include "transfer/TRecordCodec.h"
#include "transfer/TRecordDialogue.h"
#include "transfer/TRecordFields.h"

#include <wx/grid.h>

#include <algorithm>

using namespace RadioCatalogue;

namespace {

/// The highest zone number that the old layout can hold for a memory. The guard rows have the next one.
constexpr int LastV1Zone = RP25GuardZone;

/// Columns whose selection counts. Any column would do for a selection of whole rows.
constexpr int MemorySelectionColumn = 10, GuardSelectionColumn = 0;

int Decimal(const TRecordDialogue& dialogue, int row, int column) {
    return ReadDecimal(dialogue.grid->GetCellValue(row, column));
}

/// Returns the number of the primary in the record of a row.
int PrimaryOf(const TRecordDialogue& dialogue, int row) {
    const auto text = [&](int column) { return dialogue.grid->GetCellValue(row, column); };
    return PrimaryNumber(text(MFLG), text(SHAD), text(PRIM));
}

bool IsMemory(const TRecordDialogue& dialogue, int row) {
    return row >= 1 && row < dialogue.rowCount;
}

bool IsGuard(const TRecordDialogue& dialogue, int row) {
    return row >= dialogue.rowCount - GuardRowTotal;
}

bool IsSelected(const TRecordDialogue& dialogue, int row) {
    return dialogue.grid->IsInSelection(row, IsGuard(dialogue, row) ? GuardSelectionColumn
                                                                    : MemorySelectionColumn);
}

/// Leaves a row without these bits unchanged; above all, a blank row stays blank.
void ClearTFlag(const TRecordDialogue& dialogue, int row, int bits) {
    if (const int flags = TransferFlags(dialogue.grid, row); flags & bits)
        dialogue.grid->SetCellValue(row, TFLG, FlagText(flags & ~bits));
}

/// Clears the selection of an earlier transfer. Otherwise a shadow that was sent once would make every later
/// write purge the radio.
void ForgetFormerSelection(const TRecordDialogue& dialogue) {
    for (int row = 0; row < dialogue.rowCount; ++row)
        if (!IsSelected(dialogue, row))
            ClearTFlag(dialogue, row, SEL);
}

/// Selects a row for sending. A row that was never used stays without flags: with flags it would count as one
/// with data, so typing into it wouldn't fill it, and checks wouldn't skip it.
void Select(TRecordDialogue& dialogue, int row) {
    if (!dialogue.grid->GetCellValue(row, TFLG).empty())
        SetTFlag(dialogue.grid, row, SEL);
}

/// Marks a row to be sent along with a selected one.
void Mark(TRecordDialogue& dialogue, int row) {
    Select(dialogue, row);
    dialogue.markedRows.insert(row);
}

/// Marks the primary of a shadow and all shadows of that primary.
void MarkFamily(TRecordDialogue& dialogue, int shadow) {
    const int primary = PrimaryOf(dialogue, shadow);
    if (!IsMemory(dialogue, primary))
        return;
    Mark(dialogue, primary);
    for (int column = SHD0; column <= SHD6; ++column)
        if (const int row = Decimal(dialogue, primary, column); IsMemory(dialogue, row))
            Mark(dialogue, row);
}

bool FitsOldLayout(const TRecordDialogue& dialogue, int row) {
    if (PrimaryOf(dialogue, row) > RP25Memories || Decimal(dialogue, row, ZONE) > LastV1Zone)
        return false;
    for (int column = SHD0; column <= SHD6; ++column)
        if (Decimal(dialogue, row, column) > RP25Memories)
            return false;
    return true;
}

void EvaluateRow(TRecordDialogue& dialogue, int row) {
    TRecordContext& context = dialogue.context;
    const bool guard = IsGuard(dialogue, row);
    if (IsSelected(dialogue, row))
        Select(dialogue, row);
    const int flags = TransferFlags(dialogue.grid, row);
    if (!(flags & DEF) || !(flags & (SEL | EraseFlag)))
        return;
    ++dialogue.rowsToSend;
    // Intentional: rows that the old layout doesn't know aren't checked.
    if (!guard && row < RP25Memories && !FitsOldLayout(dialogue, row))
        context.XferFlags &= ~FitsV1;
    context.InvalidModes |= CheckForInvalidOpModes(context, row, context.RadioModes);
    if (!guard && (flags & MarkedFlag))
        context.XferFlags |= HasMarkedRow;
    if (IsShadow(dialogue.grid, row)) {
        context.XferFlags |= NeedsShadowPass;
        MarkFamily(dialogue, row);
    }
}

/// True if a row takes part in the write: it is selected, or the radio was purged and either held the row or
/// a selected row needs it. A purge has already erased the rows to be erased.
bool TakesPart(const TRecordDialogue& dialogue, int row, int flags) {
    if (dialogue.grid->IsInSelection(row, GuardSelectionColumn))
        return true;
    if (flags & EraseFlag)
        return false;
    return dialogue.Needs(RadioPurged) && ((flags & InRadioFlag) || dialogue.markedRows.count(row) != 0);
}

void ChooseRecord(TRecordDialogue& dialogue, int row) {
    if (dialogue.Needs(PrimaryPass) == IsShadow(dialogue.grid, row))
        return;
    wxString line;
    encodeTrecord(dialogue.context, dialogue.grid, row, line);
    if (line.empty())
        return;
    dialogue.Offer(line);
    ++dialogue.rowsSent;
}

void ChooseErasure(TRecordDialogue& dialogue, int row, int flags) {
    if (!dialogue.Needs(PrimaryPass) || dialogue.Needs(OtherRadio) || !(flags & InRadioFlag) ||
        IsShadow(dialogue.grid, row))
        return;
    wxString line;
    encodeEraseRecord(dialogue.context, row, line);
    dialogue.Offer(line);
}

bool SelectionLeavesOutRows(const TRecordDialogue& dialogue) {
    for (int row = 1; row < dialogue.rowCount; ++row)
        if (RowHasData(row) && !dialogue.grid->IsInSelection(row, GuardSelectionColumn))
            return true;
    return false;
}

/// True for a row that is sent again after a purge, and for one that the user wants erased.
bool SurvivesPurge(const TRecordDialogue& dialogue, int row) {
    if (!IsMemory(dialogue, row))
        return false;
    const int flags = TransferFlags(dialogue.grid, row);
    const bool goesOut = dialogue.grid->IsInSelection(row, GuardSelectionColumn) ||
                         dialogue.markedRows.count(row) != 0 || (flags & InRadioFlag);
    return (flags & EraseFlag) || ((flags & DEF) && goesOut);
}

} // namespace

bool PurgeIsNeeded(const TRecordDialogue& dialogue) {
    return dialogue.Needs(RadioPurged | NeedsShadowPass | HasMarkedRow | OtherRadio);
}

uint32_t CheckForInvalidOpModes(TRecordContext&, int row, uint32_t radioModes) {
    const wxString mode = CurrentGrid()->GetCellValue(row, MODE);
    uint32_t needed = 0;
    if (mode == "w")
        needed = WideMode;
    else if (mode == "n")
        needed = NarrowMode;
    else if (mode == "D")
        needed = DigitalMode;
    return needed & ~radioModes;
}

void EvaluateRows(TRecordDialogue& dialogue) {
    ForgetFormerSelection(dialogue);
    for (int row = 0; row < dialogue.rowCount; ++row)
        EvaluateRow(dialogue, row);
}

void ChooseRowLine(TRecordDialogue& dialogue) {
    TRecordContext& context = dialogue.context;
    // In the old layout the guard rows come right after the memories that it knows.
    if (CurrentParameters().Radio == Kdrv716B && context.RecordVersion == 1 &&
        context.Index == RP25Memories + 1)
        context.Index += NP25GuardShift;
    const int row = context.Index;
    const int flags = TransferFlags(dialogue.grid, row);
    if (!TakesPart(dialogue, row, flags) || !(flags & DEF))
        return;
    if (flags & EraseFlag)
        return ChooseErasure(dialogue, row, flags);
    const bool restore = dialogue.Needs(RadioPurged) && (flags & InRadioFlag) && IsMemory(dialogue, row);
    if ((flags & SEL) || restore)
        ChooseRecord(dialogue, row);
}

void TakeRowAck(TRecordDialogue& dialogue) {
    TRecordContext& context = dialogue.context;
    const int row = context.Index;
    if (!IsMemory(dialogue, row))
        return;
    context.RowsSent.insert(row);
    if (context.TxLine.StartsWith("T1")) {
        SetTFlag(dialogue.grid, row, InRadioFlag);
        HeldByRadio.rows.insert(row);
    } else {
        ClearTFlag(dialogue, row, InRadioFlag);
        HeldByRadio.rows.erase(row);
    }
}

bool PurgeMayCostMemories(const TRecordDialogue& dialogue) {
    if (dialogue.Needs(OtherRadio))
        return SelectionLeavesOutRows(dialogue);
    if (HeldByRadio.stamp != RadioStamp || !PurgeIsNeeded(dialogue))
        return false;
    return HeldByRadio.readBrokeOff || !std::all_of(HeldByRadio.rows.begin(), HeldByRadio.rows.end(),
                                                    [&](int row) { return SurvivesPurge(dialogue, row); });
}

void KeepContentOfRead(const TRecordDialogue& dialogue) {
    HeldByRadio = {RadioStamp, {}, false};
    for (int row = 1; row < dialogue.rowCount; ++row)
        if (TransferFlags(dialogue.grid, row) & InRadioFlag)
            HeldByRadio.rows.insert(row);
}
