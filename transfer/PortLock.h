// Exclusive use of an open serial device.
#pragma once

/// Takes the device behind an open descriptor for this opener alone, until UnlockPort or the close of the
/// descriptor, and keeps the descriptor from programs that this one starts.
///
/// @param descriptor what `boost::asio::serial_port::native_handle` gives
/// @return 0, or the system's error number if somebody else holds the device; the caller then closes it.
///         On Windows, where every opener is alone anyway, this is not to be called.
int LockPort(int descriptor);

/// Gives back what LockPort took. To be called before the descriptor is closed: the mark against further
/// openers belongs to the device, and on a device that somebody else has open too it would stay.
void UnlockPort(int descriptor);
