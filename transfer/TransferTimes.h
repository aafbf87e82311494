// Time-outs and pauses of both drivers, in milliseconds.
#pragma once

namespace TransferTimes {

// ---- Both drivers ----

/// How long the progress window shows that a transfer is complete.
inline constexpr int ResultPause = 1000;
/// Limit for sending queued data when the port is closed: two records at 9600 baud and the end record.
inline constexpr int LastWordsTimeout = 500;

// ---- Analog radios ----

/// Pause after each character of a command.
inline constexpr int CommandPause = 350;
/// Pause after each character of a line.
inline constexpr int LinePause = 2;
/// Answer to the query for the information block. A radio that doesn't answer counts as unknown.
inline constexpr int InformationTimeout = 200;
/// Acknowledgement of the opening command, which only some radios send.
inline constexpr int OpeningTimeout = 50;
/// Acknowledgement of a channel line.
inline constexpr int AcknowledgementTimeout = 5000;
/// Next channel line of a read.
inline constexpr int ChannelTimeout = 5000;
/// Next configuration line of a read.
inline constexpr int ConfigLineTimeout = 5000;
/// Answer to a configuration line that was sent.
inline constexpr int ConfigAnswerTimeout = 500;

// ---- Digital radios ----

/// Any answer, counted from the line that asks for it or from the radio's last line.
inline constexpr int ReplyTimeout = 30000;
/// Pause before another protocol is offered. A refusal that is sent twice is over by then.
inline constexpr int HelloPause = 20;
/// Pause between a refusal and the repetition.
inline constexpr int RefusalPause = 500;
/// Pause between the radio's agreement to a speed and the change to it.
inline constexpr int SpeedPause = 50;
/// Pause between the primaries and the shadows of a write.
inline constexpr int ShadowPause = 500;
/// How long a write listens for answers after that to its last line: the time of a record and its answer, and
/// some more. At 9600 and at 115200 baud.
inline constexpr int LateAnswerTimeout = 300;
inline constexpr int FastLateAnswerTimeout = 60;

} // namespace TransferTimes
