// A page without a window: its cells in a grid that is never shown.
#pragma once

#include "catalogue/MemoryRow.h"

#include <wx/string.h>

#include <array>
#include <cstdint>
#include <map>
#include <memory>
#include <string>

class wxGrid;

namespace Campaign {

using RowTexts = std::array<std::string, ColumnTotal>;

/// Everything that a transfer reads or changes in the program, apart from its own context.
struct ProgramState {
    std::map<int, RowTexts> rows; ///< rows with text, by number; 0 is the default row
    std::array<int32_t, 33> zones{};
    uint32_t modes = 0;
    wxString stamp;               ///< RadioStamp
    wxString heldStamp;           ///< HeldByRadio
    std::map<int, bool> heldRows; ///< HeldByRadio.rows
    bool readBrokeOff = false;    ///< HeldByRadio.readBrokeOff

    bool operator==(const ProgramState&) const = default;
};

/// Starts the toolkit without a display, once a process. Message boxes are answered by BoxHook.
void StartWithoutDisplay();

/// The first page of the program. One exists at a time.
class Sheet {
public:
    Sheet(int radio, int bandIndex);
    ~Sheet();
    Sheet(const Sheet&) = delete;
    Sheet& operator=(const Sheet&) = delete;

    wxGrid* Grid() const { return m_grid; }
    int Radio() const { return m_radio; }
    int BandIndex() const { return m_bandIndex; }
    int Rows() const;

    /// Empties the page to its default row, as a new page has it, without memories.
    void Reset();
    void Select(const std::map<int, bool>& rows);
    ProgramState Save() const;
    void Load(const ProgramState& state);

private:
    int m_radio, m_bandIndex;
    wxGrid* m_grid;
};

} // namespace Campaign
