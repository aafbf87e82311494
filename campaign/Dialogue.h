// One transfer in virtual time.
#pragma once

#include "campaign/Scenario.h"
#include "transfer/TransferStatus.h"

#include <functional>
#include <set>
#include <string>
#include <vector>

namespace Campaign {

/// Both sides of a transfer.
struct World {
    ProgramState program;
    RadioState radio;
};

/// When a line was written, in milliseconds from the start: its first character and its end.
struct SentTime {
    int64_t begin = 0, end = 0;
};

/// What a transfer did.
struct Outcome {
    World world;
    TransferStatus status = TransferOk;
    int index = 0;                        ///< TransferContext::Index at its end
    std::vector<std::string> boxes;       ///< texts of the message boxes, in their order
    std::vector<std::string> configLines; ///< that were read
    std::string lastStatus;               ///< the last text of the progress window
    std::vector<bool> happened;           ///< by fault
    bool spoiltToRadio = false, spoiltToProgram = false;
    std::vector<std::string> emptyLines; ///< states in which the radio got a line without characters
    bool forgedToRadio = false;          ///< a changed line looked right to the radio
    bool forgedToProgram = false;        ///< a changed line looked right to the program
    int violations = 0;
    std::string complaints;
    int64_t milliseconds = 0; ///< virtual, for the whole transfer
    int64_t shown = 0;        ///< milliseconds at which the last text was set in the window
    int64_t silence = 0;      ///< milliseconds from the last byte to the end
    int answers = 0, bytesToRadio = 0, bytesToProgram = 0;
    bool portIsOpen = false, isWritten = true, logIsOpen = false, contextIsClean = true;
    int dropped = 0;                 ///< bytes that were still to be sent when the port was closed
    bool endless = false;            ///< the transfer was given up, since not even Cancel ended it
    bool gaveUp = false;             ///< the user has cancelled a transfer that had sent too many lines
    int64_t cancelled = -1;          ///< milliseconds at which the user pressed Cancel, -1 if never
    std::set<int> rowsSent;          ///< TransferContext::RowsSent at its end
    int gauge = 0, range = 0;        ///< of the progress window: last value, and what is full
    bool gaugeIsInRange = true;      ///< no value was out of the range
    std::vector<std::string> sent;   ///< lines that the program wrote
    std::vector<SentTime> sentAt;    ///< times of these lines
    std::vector<std::string> states; ///< of the driver when a fault happened, by fault
};

/// Called with lines of the dialogue for a reader; empty for none.
using Narrator = std::function<void(int64_t milliseconds, const std::string& line)>;

/// Runs a transfer from this world. `sheet` must be of the scenario's target; it is loaded from the world.
Outcome RunJob(const Scenario& scenario, const Job& job, const World& world, Sheet& sheet,
               const Narrator& narrator = {});

/// The world before the first job: the page's rows are on the sheet, and the radio holds its memories.
World FirstWorld(const Scenario& scenario, Sheet& sheet);

} // namespace Campaign
