// Message boxes of result codes.
#include "commands/ErrorBox.h"

#include "tests/frame/FrameTools.h"

#include <gtest/gtest.h>

using namespace testbench;

TEST(DisplayError, ShowsTheMessageOfEachCode) {
    const struct {
        int code, value;
        const char* message;
    } cases[] = {
        {-12, 7, "Invalid Radio selection"},
        {-13, 7, "Invalid Band selection"},
        {-14, 7, "Number already used at row: 007"},
        {-14, 412, "Number already used at row: 412"},
        {-15, 3, "3 Duplicate memory number(s) found."},
        {-15, 0, "0 Duplicate memory number(s) found."},
        {-10, 0, "Unknown Error"},
        {-11, 0, "Unknown Error"},
        {-16, 0, "Unknown Error"},
        {0, 0, "Unknown Error"},
        {1, 0, "Unknown Error"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE("code " + std::to_string(c.code) + ", value " + std::to_string(c.value));
        DialogScript dialogs;
        dialogs.ExpectMessage("Error", c.message).Style(PlainBox);
        DisplayError(c.code, c.value);
    }
}
