// Texts of the transfer results, and the initial state of a transfer.
#include "transfer/TransferStatus.h"

#include "transfer/TransferContext.h"

#include <gtest/gtest.h>

namespace {

TEST(StatusText, OfEachStatusIsTheOneOfTheTable) {
    struct Case {
        int status;
        const char* text;
    };
    const Case cases[] = {
        {TransferOk, "Ok"},
        {TransferComplete, "Complete"},
        {TransferPortError, "Port Error"},
        {TransferCommunicationFailure, "Communication Failure"},
        {TransferTimeout, "Timeout"},
        {TransferCommunicationError, "Communication Error"},
        {TransferChecksumError, "Checksum Error"},
        {TransferNoDataSelected, "No Data Selected"},
        {TransferInvalidTransmitData, "Invalid Transmit Data"},
        {TransferUnsupported, "Protocol is Unsupported"},
        {TransferCancelled, "Cancelled by User"},
        {TransferK7Unsupported, "K7 Data Transfer is currently UnSupported"},
    };
    FillStatusList();
    int number = 0;
    for (const Case& entry : cases) {
        EXPECT_EQ(entry.status, number) << entry.text;
        EXPECT_EQ(GetStatusText(number), entry.text) << "status " << number;
        ++number;
    }
    EXPECT_EQ(number, 12);
}

TEST(StatusText, AtOrAboveTheCountAndBelow0IsABadIndex) {
    FillStatusList();
    for (const int status : {12, 13, 1000, -1, -10})
        EXPECT_EQ(GetStatusText(status), "Bad Index") << "status " << status;
}

TEST(StatusText, ComesFromTheListThatTheStartFills) {
    StatusList.clear();
    EXPECT_EQ(GetStatusText(0), "Bad Index");
    FillStatusList();
    FillStatusList();
    EXPECT_EQ(StatusList.size(), 12u);
    EXPECT_EQ(GetStatusText(1), "Complete");
}

TEST(TransferContextStart, HasNoPortNoWindowNoTextAndNoCount) {
    const TRecordContext context;
    EXPECT_EQ(context.Port, nullptr);
    EXPECT_EQ(context.Progress, nullptr);
    EXPECT_FALSE(context.LogFile.IsOpened());
    EXPECT_EQ(context.RxBuffer, "");
    EXPECT_EQ(context.FoundAt, -1);
    EXPECT_EQ(context.Status, 0);
    EXPECT_EQ(context.Index, 0);
    EXPECT_EQ(context.Phase + context.XferFlags + context.ConfigCount + context.RowCapacity, 0u);
    EXPECT_EQ(context.RetryCount + context.Protocol + context.RadioModes, 0u);
    EXPECT_EQ(context.RecordVersion, 1u) << "until the radio has reported its firmware";
}

} // namespace
