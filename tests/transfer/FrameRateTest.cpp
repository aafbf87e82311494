// How often a window is drawn.
#include "transfer/FrameRate.h"

#include "robot/Pump.h"
#include "tests/support/Keys.h"
#include "tests/transfer/WindowEnd.h"

#include <gtest/gtest.h>
#include <wx/frame.h>
#include <wx/gauge.h>
#include <wx/sizer.h>

using namespace testbench;

namespace {

TEST(FrameRate, DrawsAWindowOnceInAnIntervalAtMost) {
    using Clock = std::chrono::steady_clock;
    constexpr std::chrono::milliseconds interval{50};
    auto* frame = new wxFrame(nullptr, wxID_ANY, "Gauges");
    auto* moving = new wxGauge(frame, wxID_ANY, 100);
    auto* pulsing = new wxGauge(frame, wxID_ANY, 100);
    auto* column = new wxBoxSizer(wxVERTICAL);
    column->Add(moving);
    column->Add(pulsing);
    frame->SetSizer(column);
    {
        const FrameRate rate(*frame, interval);
        ShowAndFocus(*frame);
        int drawings = 0;
        const auto count = [&](wxPaintEvent& event) {
            ++drawings;
            event.Skip();
        };
        frame->Bind(wxEVT_PAINT, count);
        const auto begin = Clock::now();
        for (int value = 0; value < 100; ++value) {
            moving->SetValue(value);
            pulsing->Pulse();
            PumpFor(10);
        }
        EXPECT_GT(drawings, 2);
        EXPECT_LE(drawings, (Clock::now() - begin) / interval + 2);
        const int before = drawings;
        moving->SetValue(0);
        EXPECT_TRUE(PumpUntil([&] { return drawings > before; })) << "what changed last isn't drawn";
        frame->Unbind(wxEVT_PAINT, count);
    }
    DestroyAndWait(frame);
}

} // namespace
