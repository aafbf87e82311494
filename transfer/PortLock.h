// Exclusive use of an open serial device.
#pragma once

/// Locks the device of an open descriptor for this opener alone, until UnlockPort or the descriptor's close,
/// and keeps programs started by this one from inheriting the descriptor.
///
/// @param descriptor value of `boost::asio::serial_port::native_handle`
/// @return 0, or the system's error number if another opener holds the device; the caller then closes the
///         descriptor. Not to be called on Windows, where every open is exclusive.
[[nodiscard]] int LockPort(int descriptor);

/// Releases the lock of LockPort. Call it before closing the descriptor: the mark against further openers
/// belongs to the device, and would remain on a device that another opener has open too.
void UnlockPort(int descriptor);
