// The fixed messages of the protocol of the digital radios, without their checksums.
#pragma once

// clang-format off
/// Accepted; to the radio: go on.
inline constexpr const char* AckRecord     = "T204000000";
/// Refused.
inline constexpr const char* NakRecord     = "T204000001";
/// From the radio: busy, keep waiting.
inline constexpr const char* WaitRecord    = "T204000002";
/// Erase all memories.
inline constexpr const char* MSG_PURGE     = "T204000011";
/// Tell the identity stamp.
inline constexpr const char* MSG_RID       = "T204000020";
/// Followed by the 14 digits of an identity stamp: sets it, or answers MSG_RID.
inline constexpr const char* MSG_SID       = "T20B000021";
/// Tell the firmware version.
inline constexpr const char* MSG_RVER      = "T204000022";
/// Followed by the six characters of the version: the answer to MSG_RVER.
inline constexpr const char* VersionReply  = "T207000023";
/// Begin to send channel data.
inline constexpr const char* MSG_UPLD      = "T204000024";
/// Channel data are about to come.
inline constexpr const char* MSG_DNLD      = "T204000025";
/// Begin to send the debug log.
inline constexpr const char* MSG_DBLOG     = "T204000030";
/// Send the hardware information records.
inline constexpr const char* HardwareQuery = "T204000031";
/// Change to 115200 baud: the speed divided by 100 in the digits at the end.
inline constexpr const char* SpeedChange   = "T2060000320480";
/// Tell the enabled operating modes.
inline constexpr const char* OpModeQuery   = "T204000033";
/// Followed by a byte of mode bits: the answer to OpModeQuery.
inline constexpr const char* OpModeReply   = "T205000033";
/// Send the configuration data.
inline constexpr const char* MSG_UPLDSWCFG = "T204000034";
/// Followed by a byte, how many configuration records come: the answer to MSG_UPLDSWCFG.
inline constexpr const char* ConfigReply   = "T205000034";
/// Configuration records are about to come.
inline constexpr const char* ConfigWrite   = "T204000035";
/// The run of data records is over; to the radio: so is the transfer.
inline constexpr const char* EndRecord     = "T9030000";
// clang-format on
