// Numbers of COM ports.
#include "frame/ComNumbers.h"

#include <gtest/gtest.h>

using serialports::ComDeviceName;
using serialports::FurtherPorts;

TEST(ComNumbers, AboveTheAskedOnesComeFromTheSystemsNamesInOrderAndOnce) {
    EXPECT_EQ(FurtherPorts({L"COM101", L"COM3", L"COM30", L"COM29", L"COM31", L"COM30"}),
              (std::vector<int>{30, 31, 101}));
}

TEST(ComNumbers, AreReadFromNamesOfComPortsOnly) {
    EXPECT_EQ(
        FurtherPorts({L"", L"COM", L"LPT30", L"COM30a", L"COM 30", L"CNCA30", L"COM-30", L"COM999999999999"}),
        std::vector<int>());
}

TEST(ComNumbers, AboveNineNeedTheLongNameOfTheDevice) {
    EXPECT_EQ(ComDeviceName(1), "COM1");
    EXPECT_EQ(ComDeviceName(9), "COM9");
    EXPECT_EQ(ComDeviceName(10), "\\\\.\\COM10");
    EXPECT_EQ(ComDeviceName(130), "\\\\.\\COM130");
}
