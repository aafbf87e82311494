// Which driver serves which pages.
#pragma once

/// What a page is transferred with.
enum class TransferDriver { None, Analog, TRecord };

enum class TransferDirection { Read, Write };

/// The driver for one direction; for writing also the title of its progress window, empty without driver.
struct DriverChoice {
    TransferDriver driver = TransferDriver::None;
    const char* title = "";
};

/// The driver for a radio type (0 to 7) and a band id (0 to 9). None for any other type.
DriverChoice ChooseDriver(int type, int band, TransferDirection direction);
