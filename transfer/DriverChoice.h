// Selection of the driver for a page.
#pragma once

/// Driver that transfers a page.
enum class TransferDriver { None, Analog, TRecord };

enum class TransferDirection { Read, Write };

/// Driver for one direction and, for writing, the title of its progress window, empty without a driver.
struct DriverChoice {
    TransferDriver driver = TransferDriver::None;
    const char* title = "";
};

/// Returns the driver for a radio type (0 to 7) and a band id (0 to 9). None for any other type.
DriverChoice ChooseDriver(int type, int band, TransferDirection direction);
