// Time of a transfer.
#pragma once

#include <wx/datetime.h>

#include <chrono>
#include <functional>

/// Clock and waits of a transfer: the system's, or one that a test turns.
class TransferClock {
public:
    using Moment = std::chrono::steady_clock::time_point;

    virtual ~TransferClock() = default;

    virtual Moment Now() const = 0;

    /// Date and time of day of Now().
    virtual wxDateTime Date() const = 0;

    /// Handles painting and user input, nothing that could start another transfer. May do nothing between two
    /// waits, if it did so only a moment ago.
    virtual void HandleEvents() = 0;

    /// Draws windows, without handling user input, until `isDrawn` or `end`. Does nothing in virtual time.
    virtual void AwaitDrawing(const std::function<bool()>& /*isDrawn*/, Moment /*end*/) {}

    /// Waits until text with the character `lineEnd` has arrived or until `end`. May return early, so that
    /// the caller can handle events.
    virtual void WaitForText(Moment end, wxChar lineEnd) = 0;

    /// Waits until `end` without handling events.
    virtual void SleepUntil(Moment end) = 0;
};

/// The system's clock. Its waits leave the processor to others, but for a moment around an expected answer
/// (AnswerRhythm); WaitForText returns at least every 5 ms, and at once when the port's thread delivers the
/// end of a line.
TransferClock& SystemClock();
