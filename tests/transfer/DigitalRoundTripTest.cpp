// Full pages, written to simulated digital radios and read back, cell by cell.
#include "tests/transfer/RadioUnderTest.h"
#include "tests/transfer/RoundTripPage.h"
#include "tests/transfer/TRecordDriverTest.h"

#include <algorithm>
#include <iomanip>
#include <iostream>
#include <set>

using namespace testbench;
using namespace transfertest;

namespace {

const std::vector<int> Links = {SHD0, SHD1, SHD2, SHD3, SHD4, SHD5, SHD6};

const ColumnRule RulesOfV2[] = {
    {{MNUM, PRIM}, "numbers come back without leading zeros", WithoutZeros},
    {{BAND}, "no record names it", Emptied},
    {{ZONE}, "a shadow has none of its own", OwnZoneOnly},
    {{DESC}, "blanks at its end are padding", Trimmed},
    {{RFRQ, TFRQ}, "hertz come back in nine characters", NineCharacters},
    {{RTON, TTON}, "a tone that isn't in the list becomes the default", KnownTone, "OFF"},
    {{RCOD, TCOD},
     "a code comes back one place further down; after the last comes the default",
     NextCode,
     "754"},
    {{TIDC}, "comes back with seven digits", SevenDigits},
    {Links, "numbers come back without leading zeros", WithoutZeros},
    {{TFLG}, "the radio holds it and its zone is taken", ReadFlags},
};

const ColumnRule RulesOfV1[] = {
    {{BAND}, "no record names it", Emptied},
    {{ZONE}, "a shadow has none of its own", OwnZoneOnly},
    {{DESC}, "blanks at its end are padding", Trimmed},
    {{RNSV}, "a radio without it is sent 10", Ten},
    {{RTON, TTON}, "a tone that isn't in the list becomes the default", KnownTone, "OFF"},
    {{RCOD}, "a code that isn't in the list becomes the default", KnownCode, "OFF"},
    {{TCOD}, "comes back one place further down; after the last comes the default", NextCode, "754"},
    {{TIDC}, "comes back without leading zeros", WithoutZeros},
    {Links, "numbers come back without leading zeros", WithoutZeros},
    {{TFLG}, "the radio holds it and its zone is taken", ReadFlags},
};

const ColumnRule RulesOfV1WithSquelchValues[] = {
    {{BAND}, "no record names it", Emptied},
    {{ZONE}, "a shadow has none of its own", OwnZoneOnly},
    {{DESC}, "blanks at its end are padding", Trimmed},
    {{RFRQ, TFRQ}, "eight characters travel", EightCharacters},
    {{RNSV}, "comes back in two places", TwoPlaces},
    {{RTON, TTON}, "a tone that isn't in the list becomes the default", KnownTone, "OFF"},
    {{RCOD}, "a code that isn't in the list becomes the default", KnownCode, "OFF"},
    {{TCOD}, "comes back one place further down; after the last comes the default", NextCode, "754"},
    {{TIDC}, "comes back without leading zeros", WithoutZeros},
    {Links, "numbers come back without leading zeros", WithoutZeros},
    {{TFLG}, "the radio holds it and its zone is taken", ReadFlags},
};

class DigitalRoundTrip : public TRecordDriverTest {
protected:
    static void Fill(const RoundTripPage& page) {
        for (const auto& [row, cells] : page.Rows())
            for (int column = 0; column < ColumnTotal; ++column)
                SetCell(row, column, cells[static_cast<size_t>(column)]);
        OpModes[0] = AllModes;
        CurrentGrid()->SelectBlock(1, 0, CurrentGrid()->GetNumberRows() - 1, ColumnTotal - 1);
    }

    /// Runs both commands, which must succeed without a complaint of the radio.
    static void SendAndRead(RadioUnderTest& radio) {
        PortName = radio.PortName();
        DialogScript script;
        ExpectBox(script, "Write to Radio Status", "Complete");
        Upload();
        ExpectQuestion(script);
        ExpectBox(script, "Read from Radio Status", "Complete");
        Download();
        ExpectOver();
        radio.AwaitClosedPort();
        EXPECT_TRUE(PortIsFree(radio.PortName()));
        EXPECT_EQ(radio.SwitchOff(), 0);
        EXPECT_EQ(radio.Complaints(), "");
        EXPECT_EQ(radio.Log().find(" ? "), std::string::npos);
    }

    /// Compares the page with its former cells and reports how many cells each rule changed.
    template <size_t count>
    static void ExpectChanges(const RoundTripPage& page, const std::set<int>& absent,
                              const ColumnRule (&rules)[count]) {
        std::array<int, count> changed{};
        int compared = 0, painted = 0, wrong = 0;
        for (const auto& [row, before] : page.Rows())
            for (int column = 0; column < ColumnTotal; ++column, ++compared) {
                const std::string& former = before[static_cast<size_t>(column)];
                std::string expected = absent.count(row) ? "" : former;
                bool paints = false;
                for (size_t k = 0; k < count && !absent.count(row); ++k)
                    if (std::count(rules[k].columns.begin(), rules[k].columns.end(), column)) {
                        expected = rules[k].after(before, column);
                        changed[k] += expected != former;
                        paints = former == rules[k].painted && !former.empty();
                    }
                const bool isPainted = CurrentGrid()->GetCellBackgroundColour(row, column) == FailColour;
                painted += isPainted;
                if ((CellText(row, column) != expected || isPainted != paints) && ++wrong <= 20)
                    ADD_FAILURE() << "row " << row << " " << ColumnTag[column] << ": \""
                                  << CellText(row, column) << (isPainted ? "\" painted" : "\"") << ", not \""
                                  << expected << (paints ? "\" painted" : "\"");
            }
        EXPECT_EQ(wrong, 0);
        std::cout << "[   cells  ] " << compared << " compared, " << painted << " painted\n";
        for (size_t k = 0; k < count; ++k) {
            std::string tags;
            for (const int column : rules[k].columns)
                tags += std::string(tags.empty() ? "" : " ") + ColumnTag[column];
            std::cout << "  " << std::left << std::setw(36) << tags << std::right << std::setw(5)
                      << changed[k] << "  " << rules[k].reason << "\n";
            EXPECT_GT(changed[k], 0) << tags << ": a rule that no cell needs";
        }
    }
};

} // namespace

TEST_F(DigitalRoundTrip, OfAFullPageInTheNewLayoutChangesWhatTheLayoutCannotTell) {
    UseRealTime();
    UsePage(Kdrv716B);
    const RoundTripPage page({502, 31, "X", true, 5});
    Fill(page);
    RadioUnderTest radio("KDRV-716B");
    SendAndRead(radio);
    ExpectChanges(page, {}, RulesOfV2);
    EXPECT_EQ(radio.Records().size(), 502u);
    for (const auto& [number, record] : radio.Records())
        EXPECT_TRUE(record.starts_with("2 ")) << number;
}

TEST_F(DigitalRoundTrip, OfAFullPageInTheOldLayoutChangesWhatTheLayoutCannotTell) {
    UsePage(Kdrv716);
    const RoundTripPage page({232, 15, "16", false, 4});
    Fill(page);
    RadioUnderTest radio("KDRV-716");
    SendAndRead(radio);
    ExpectChanges(page, {}, RulesOfV1);
    EXPECT_EQ(radio.Records().size(), 232u);
}

TEST_F(DigitalRoundTrip, OfALongPageInTheOldLayoutLosesTheRowsThatItCannotName) {
    UsePage(Kdrv716B);
    const RoundTripPage page({502, 15, "X", true, 5});
    Fill(page);
    RadioUnderTest radio("KDRV-716B", {"--firmware", "010203"});
    SendAndRead(radio);
    std::set<int> absent;
    for (int row = 231; row <= 500; ++row)
        absent.insert(row);
    ExpectChanges(page, absent, RulesOfV1WithSquelchValues);
    EXPECT_EQ(radio.Records().size(), 232u);
}
