// Primary and shadow memories of P25 pages: one channel in several memories.
// The links are text in cells of the two rows; there is no table of them.
#pragma once

#include <wx/arrstr.h>
#include <wx/string.h>

#include <optional>
#include <vector>

class wxGrid;
class wxGridCellEditor;

/// Maximum number of shadows of a primary, in SHD0 to SHD6.
constexpr int ShadowLimit = 7;

/// Returns the first free slot (0 to 6) of a row's 32 texts, ShadowLimit if none is free. A slot is free when
/// its text reads as 0.
int FirstFreeShadowSlot(const wxArrayString& rowTexts);

/// Returns the numbers in the taken slots of a row's 32 texts, in slot order.
std::vector<int> ShadowNumbers(const wxArrayString& rowTexts);

/// Returns the rows of the current page that the slots of a row name, in slot order. Leaves out a row that
/// isn't a memory row of the page or that its MFLG doesn't mark as a shadow: a number may be stale after rows
/// have moved. Empty if the given row is not a memory row itself.
std::vector<int> ShadowRowsOf(wxGrid* grid, int row);

/// Returns the number that a user typed for a shadow on a page with that many memory rows. None for a text
/// that contains anything but digits, and for a number outside 1 to rows.
std::optional<int> ReadShadowNumber(const wxString& text, int rows);

/// Returns the first memory row of the current page whose MNUM reads as number; Rows + 1 if there is none.
int GetMnumRow(int number);

enum LinkedRowKind : int { PrimaryRow = 1, ShadowRow = 2 };

/// Makes the cells that a link fixes in a row of the current page read-only, and takes the row out of the
/// scan. kind is a LinkedRowKind.
void LockLinkedRow(int row, int kind);

/// Copies both frequencies of the primary in row number of the current page to its shadows. They are read
/// from the grid's cells; editor and text aren't used.
void HandleP25Shadows(wxGridCellEditor* editor, int number, const wxString& text, wxGrid* grid);

/// Clears the rows of the shadows of the primary in a row of the current page. The row itself is kept.
void RemovePrimary(int row);

/// Removes the shadow in a row of the current page from its primary's list and clears the row.
void RemoveShadow(int row);

/// Calls RemovePrimary or RemoveShadow, depending on the row's flags. Does nothing on pages that aren't P25.
void UndoShadowLinks(int row);
