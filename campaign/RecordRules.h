// What a row of the page becomes in a radio, and a memory of a radio on the page, by the rules of the record
// formats. Shares no code with the program's codecs: a mistake must not cancel itself out.
#pragma once

#include "campaign/Scenario.h"

#include <string>

namespace Campaign {

/// Row texts of the program before a write, and what the rules depend on.
struct Formats {
    const Scenario& scenario;
    const RowTexts& defaults; ///< texts of the default row

    /// True if records are of the second layout.
    bool IsSecondLayout() const;
    /// Memories that a write reaches: an analog radio that asks for no opening number counts as one of
    /// 200.
    int Reach() const;
    /// False for memories that the layout has no number for, or that are out of reach.
    bool Travels(int number) const;
};

/// The memory that a digital radio holds after it has taken the row.
Simulator::DigitalMemory DigitalMemoryOf(const Formats& formats, int row, const RowTexts& texts);
/// Same for an analog radio.
Simulator::AnalogMemory AnalogMemoryOf(int row, const RowTexts& texts);

/// The zone that a memory of the radio names on the page. A shadow shows none. Guards are in the last one of
/// the page, whatever the radio says.
std::string ZoneCellOf(const Formats& formats, const Simulator::DigitalMemory& memory);

/// The first column in which the row isn't the memory that the radio holds, with both texts; empty if it is.
/// Columns that the record doesn't determine are left out.
std::string DifferenceFrom(const Formats& formats, const Simulator::DigitalMemory& memory,
                           const RowTexts& texts);
std::string DifferenceFrom(const Formats& formats, const Simulator::AnalogMemory& memory,
                           const RowTexts& texts);

/// The first field in which two memories differ, such as "rxTone 5, 6"; empty if there is none.
std::string DifferenceOf(const Simulator::DigitalMemory& one, const Simulator::DigitalMemory& other);
std::string DifferenceOf(const Simulator::AnalogMemory& one, const Simulator::AnalogMemory& other);

} // namespace Campaign
