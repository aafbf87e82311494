// Speeds of serial ports and the system's codes for them.
#pragma once

#include <termios.h>

namespace Simulator {

struct Rate {
    speed_t code;
    int baud;
};

constexpr Rate Rates[] = {
    {B1200, 1200},   {B2400, 2400},   {B4800, 4800},     {B9600, 9600},     {B19200, 19200},
    {B38400, 38400}, {B57600, 57600}, {B115200, 115200}, {B230400, 230400},
};

} // namespace Simulator
