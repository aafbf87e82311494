// The end of a transfer over a line that takes nothing.
#include "tests/support/PseudoTerminal.h"
#include "transfer/ProgressFrame.h"
#include "transfer/TRecordDialogue.h"
#include "transfer/TransferSession.h"
#include "transfer/wxAsyncSerial.h"

#include <gtest/gtest.h>
#include <wx/memconf.h>

#include <chrono>
#include <memory>
#include <optional>

TEST(StuckLine, GetsALittleTimeForTheEndRecordAndThenLosesIt) {
    wxConfigBase* const formerConfig = wxConfigBase::Set(new wxMemoryConfig);
    PseudoTerminal device;
    device.HoldSlave();
    TRecordContext context;
    std::optional<TransferSession> session(
        std::in_place, context,
        TransferMeans{std::make_unique<ProgressFrame>(nullptr, wxID_ANY, "Ending"),
                      std::make_unique<wxAsyncSerial>(nullptr, device.SlaveName(), 9600)});
    device.HoldBack(true);
    SendEndRecord(context);
    const auto start = std::chrono::steady_clock::now();
    session.reset();
    const auto took = std::chrono::steady_clock::now() - start;
    EXPECT_GE(took, std::chrono::milliseconds(200));
    EXPECT_LT(took, std::chrono::seconds(10));
    EXPECT_EQ(context.Port, nullptr);
    EXPECT_EQ(context.Progress, nullptr);
    device.HoldBack(false);
    wxAsyncSerial next(nullptr, device.SlaveName(), 9600);
    ASSERT_TRUE(next.isOpen());
    next.write("next\r");
    EXPECT_EQ(device.ReadUntil('\r'), "next\r");
    delete wxConfigBase::Set(formerConfig);
}
