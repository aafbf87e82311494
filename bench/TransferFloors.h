// Times that the dialogues with the radios prescribe, in seconds: every byte on the wire and every pause.
#pragma once

#include <cstddef>

/// Full pages of KRV-214: 100 channels and two guards.
namespace AnalogFloor {

inline constexpr int Rows = 102;

inline constexpr double SlowCharacter = 0.350;
inline constexpr double FastCharacter = 0.002;
inline constexpr double WireByte = 10.0 / 9600;
inline constexpr double OpeningWait = 0.050;
inline constexpr double ClosingDelay = 1.0;
inline constexpr int LineLength = 76;

/// "rt", the radio's number and the command; each character is followed by its pause.
inline constexpr int WriteCommands = 5 + 3;
inline constexpr int ReadCommands = 5 + 4;

/// Each line and its end are sent with a pause per character; then the radio's answer byte arrives. A pause
/// is longer than a byte's time on the wire and covers it, so only the wire time of the answer is added.
inline constexpr double Write = WriteCommands * SlowCharacter + OpeningWait +
                                Rows * ((LineLength + 1) * FastCharacter + WireByte) +
                                (3 + 74 + 1) * FastCharacter + ClosingDelay;

/// Every line with its end, and the short end line, arrive at wire speed. The radio starts when it has the
/// last character of the command, during that character's pause.
inline constexpr int ReadBytes = Rows * (LineLength + 1) + (3 + 1);
inline constexpr double Read = (ReadCommands - 1) * SlowCharacter + (1 + ReadBytes) * WireByte + ClosingDelay;

} // namespace AnalogFloor

/// Full pages of KDRV-716B: 500 memories and two guards; the default row is transferred with them.
namespace DigitalFloor {

inline constexpr int Records = 503;

/// Set in the radio, so that the traffic on the line is known: its stamp, which the program knows, so that
/// nothing is purged; its serial number; and one hardware text.
inline constexpr const char* Stamp = "20260102030405";
inline constexpr const char* Serial = "SIM00716";
inline constexpr const char* HardwareText = "KDRV-716B";

// Characters of a line, including its end.
constexpr int DataLine(std::size_t dataBytes) {
    return static_cast<int>(2 + 2 + 4 + 2 * dataBytes + 2 + 1);
}
inline constexpr int Message = DataLine(1); // Ack, Nak and all messages of only a number
inline constexpr int HelloLine = DataLine(4);
inline constexpr int SpeedLine = DataLine(3);
inline constexpr int ModesLine = DataLine(2);
inline constexpr int VersionLine = DataLine(4);
inline constexpr int StampLine = DataLine(8);
inline constexpr int MemoryLine = DataLine(64);
inline constexpr int EndLine = DataLine(0);

/// Three hellos, of which the third is accepted, and the change of speed, each with its answer.
inline constexpr int SlowCharacters = 3 * (HelloLine + Message) + SpeedLine + Message;
/// Modes; serial number, hardware text and their end; firmware version.
inline constexpr int QuestionCharacters = Message + ModesLine + Message + DataLine(8) + Message +
                                          DataLine(9) + Message + EndLine + Message + VersionLine;
/// The stamp, requested or set, and the announcement.
inline constexpr int OpeningCharacters = Message + StampLine + 2 * Message;
inline constexpr int WriteCharacters = Records * (MemoryLine + Message);
/// The acknowledgement of the last memory requests the end line.
inline constexpr int ReadCharacters = Records * (Message + MemoryLine) + Message + EndLine;

inline constexpr double SlowCharacter = 10.0 / 9600, FastCharacter = 10.0 / 115200;
inline constexpr double SpeedDelay = 0.050, ClosingDelay = 1.0;
inline constexpr double HelloDelay = 0.020;  // behind each of the two hellos that are refused
inline constexpr double LateAnswers = 0.060; // a write listens for them

/// Each side waits for the other's line, so the wire carries one character at a time. The end line of a write
/// is sent within the closing delay.
constexpr double Of(int memoryCharacters) {
    return SlowCharacters * SlowCharacter + 2 * HelloDelay + SpeedDelay +
           (QuestionCharacters + OpeningCharacters + memoryCharacters) * FastCharacter + ClosingDelay;
}
inline constexpr double Write = Of(WriteCharacters) + LateAnswers;
inline constexpr double Read = Of(ReadCharacters);

} // namespace DigitalFloor
