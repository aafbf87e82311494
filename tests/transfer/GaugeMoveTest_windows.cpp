// Moves of a gauge while a radio waits.
#include "robot/Desk.h"
#include "robot/Pump.h"
#include "tests/support/Keys.h"
#include "tests/transfer/WindowEnd.h"
#include "transfer/GaugeMove.h"

#include <gtest/gtest.h>
#include <wx/frame.h>
#include <wx/gauge.h>

#include <string>

// Include last: this header defines macros with common names.
#include <windows.h>

using namespace testbench;

namespace {

bool IsPaintDue(const wxWindow& window) {
    return GetUpdateRect(window.GetHWND(), nullptr, FALSE) != 0;
}

std::string Seen(const wxWindow& window) {
    const wxImage picture = Desk().Picture(window.GetScreenRect());
    const auto* bytes = reinterpret_cast<const char*>(picture.GetData());
    return {bytes, static_cast<size_t>(picture.GetWidth()) * static_cast<size_t>(picture.GetHeight()) * 3};
}

TEST(GaugeMove, IsDrawnWithTheNextEvents) {
    auto* frame = new wxFrame(nullptr, wxID_ANY, "Gauge");
    auto* gauge = new wxGauge(frame, wxID_ANY, 100);
    ShowAndFocus(*frame);
    ASSERT_TRUE(PumpUntil([&] { return !IsPaintDue(*gauge); }));
    for (const int value : {30, 31, 90, 10}) {
        PumpFor(100);
        const std::string before = Seen(*gauge);
        MoveGauge(*gauge, value);
        EXPECT_EQ(gauge->GetValue(), value);
        EXPECT_TRUE(IsPaintDue(*gauge)) << value << ": drawn at once";
        EXPECT_TRUE(PumpUntil([&] { return !IsPaintDue(*gauge); })) << value;
        EXPECT_TRUE(PumpUntil([&] { return Seen(*gauge) != before; })) << value << ": nothing has moved";
    }
    DestroyAndWait(frame);
}

} // namespace
