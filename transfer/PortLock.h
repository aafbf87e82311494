// Exclusive use of an open serial device.
#pragma once

#include <boost/asio/serial_port.hpp>

#include <utility> // boost/asio 1.74 uses std::exchange without including it

/// What the system calls an open device.
using PortHandle = boost::asio::serial_port::native_handle_type;

/// Locks the device of an open handle for this opener alone, until UnlockPort or the handle's close, and
/// keeps programs started by this one from inheriting the handle. One source file for each operating system.
///
/// @return 0, or the system's error number if another opener holds the device; the caller then closes the
///         handle
[[nodiscard]] int LockPort(PortHandle handle);

/// Releases the lock of LockPort. Call it before closing the handle: the mark against further openers
/// belongs to the device, and would remain on a device that another opener has open too.
void UnlockPort(PortHandle handle);
