// Fixed messages of the digital radios' protocol, without their checksums.
#pragma once

#include <cstddef>

/// The byte between HelloBegin and HelloEnd that offers protocol 0; the next protocols have the next bytes.
inline constexpr int FirstProtocolByte = 0x20;

// clang-format off
/// Offers a protocol. Followed by the byte of its number and HelloEnd.
inline constexpr const char* HelloBegin    = "T0070000";
inline constexpr const char* HelloEnd      = "030000";
/// Accepted; to the radio: go on.
inline constexpr const char* AckRecord     = "T204000000";
/// Refused.
inline constexpr const char* NakRecord     = "T204000001";
/// From the radio: busy, keep waiting.
inline constexpr const char* WaitRecord    = "T204000002";
/// Erase all memories.
inline constexpr const char* MSG_PURGE     = "T204000011";
/// Report the identity stamp.
inline constexpr const char* MSG_RID       = "T204000020";
/// Followed by the 14 digits of an identity stamp: sets it, or answers MSG_RID.
inline constexpr const char* MSG_SID       = "T20B000021";
/// Report the firmware version.
inline constexpr const char* MSG_RVER      = "T204000022";
/// Followed by the six characters of the version: the answer to MSG_RVER.
inline constexpr const char* VersionReply  = "T207000023";
/// Start to send channel data.
inline constexpr const char* MSG_UPLD      = "T204000024";
/// Channel data will follow.
inline constexpr const char* MSG_DNLD      = "T204000025";
/// Start to send the debug log.
inline constexpr const char* MSG_DBLOG     = "T204000030";
/// Send the hardware information records.
inline constexpr const char* HardwareQuery = "T204000031";
/// Change to 115200 baud. The last digits are the speed divided by 100.
inline constexpr const char* SpeedChange   = "T2060000320480";
/// Report the enabled operating modes.
inline constexpr const char* OpModeQuery   = "T204000033";
/// Followed by a byte of mode bits: the answer to OpModeQuery.
inline constexpr const char* OpModeReply   = "T205000033";
/// Send the configuration data.
inline constexpr const char* MSG_UPLDSWCFG = "T204000034";
/// Followed by a byte with the number of configuration records to come: the answer to MSG_UPLDSWCFG.
inline constexpr const char* ConfigReply   = "T205000034";
/// Configuration records will follow.
inline constexpr const char* ConfigWrite   = "T204000035";
/// Followed by the grid row in four digits and EraseEnd: erases the memory.
inline constexpr const char* EraseBegin    = "T204";
inline constexpr const char* EraseEnd      = "10";
/// End of the data records; to the radio: end of the transfer.
inline constexpr const char* EndRecord     = "T9030000";
// clang-format on

/// Position, from 0, of the text after a message of ten characters.
inline constexpr size_t MessageTextAt = 10;
/// Lengths in characters of a firmware version, an identity stamp and a byte.
inline constexpr size_t VersionLength = 6, StampLength = 14, ByteLength = 2;
