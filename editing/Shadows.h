// Primary and shadow memories of P25 pages: one channel that lives in several memories.
// The links are text in cells of the two rows; there is no table of them.
#pragma once

#include <wx/arrstr.h>
#include <wx/string.h>

#include <optional>
#include <vector>

class wxGrid;
class wxGridCellEditor;

/// A primary has at most this many shadows, in SHD0 to SHD6.
constexpr int ShadowLimit = 7;

/// The first free slot (0 to 6) of a row's 32 texts, ShadowLimit when none is. A slot is free when
/// its text reads as 0.
int FirstFreeShadowSlot(const wxArrayString& rowTexts);

/// The numbers in the slots of a row's 32 texts that are taken, in the order of the slots.
std::vector<int> ShadowNumbers(const wxArrayString& rowTexts);

/// The rows of the current page that the slots of a row name, in the order of the slots. A row is
/// left out if it isn't a memory row of the page or its MFLG says that it is no shadow: a number
/// may have gone stale after rows have moved. Empty for a row that is no memory row itself.
std::vector<int> ShadowRowsOf(wxGrid* grid, int row);

/// The number that a user typed for a shadow on a page of so many memory rows. None for a text
/// with anything but digits in it, and for a number outside 1 to rows.
std::optional<int> ReadShadowNumber(const wxString& text, int rows);

/// The first memory row of the current page whose MNUM reads as number; Rows + 1 when none does.
int GetMnumRow(int number);

enum LinkedRowKind : int { PrimaryRow = 1, ShadowRow = 2 };

/// Makes the cells of a row of the current page read-only that a link fixes, and takes the row out
/// of the scan. kind is a LinkedRowKind.
void LockLinkedRow(int row, int kind);

/// Carries both frequencies of the primary in row number of the current page to its shadows. They
/// are taken from the grid's cells; editor and text aren't used.
void HandleP25Shadows(wxGridCellEditor* editor, int number, const wxString& text, wxGrid* grid);

/// Empties the rows of the shadows of the primary in a row of the current page. The row itself
/// stays as it is.
void RemovePrimary(int row);

/// Takes the shadow in a row of the current page out of its primary's list and empties the row.
void RemoveShadow(int row);

/// RemovePrimary or RemoveShadow, whichever the row's flags call for. Nothing on pages other than
/// P25 ones.
void UndoShadowLinks(int row);
