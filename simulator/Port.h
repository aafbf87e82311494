// Interface of the serial port at which a radio is played.
#pragma once

#include "simulator/BaudClock.h"
#include "simulator/Requests.h"
#include "simulator/Result.h"

#include <optional>
#include <string>
#include <string_view>

namespace Simulator {

/// The radio's side of a serial line to the program.
class Port {
public:
    virtual ~Port() = default;

    /// Name that the program's list of ports shows, or the name that was given.
    virtual std::string Name() const = 0;

    /// Opens and closes of the other side since the last call.
    struct Visit {
        bool opened = false;
        bool closed = false; ///< the last user has closed it (another may have opened it since, see IsOpen)
    };
    virtual Visit TakeVisits() = 0;
    /// False for a port that can't know when the other side opens and closes it. It counts as open.
    virtual bool SeesVisits() const = 0;
    /// True while the other side is open.
    virtual bool IsOpen() const = 0;

    struct Wanted {
        bool input = false; ///< bytes have arrived
        bool room = false;  ///< more bytes can be written
    };
    /// Waits until something wanted, a visit or a request has come, or until `due`. May return earlier.
    virtual void Wait(Wanted wanted, std::optional<TimePoint> due, const Requests& requests) = 0;

    /// Reads bytes that have arrived, up to `limit`; empty if there are none.
    virtual std::string Read(size_t limit) = 0;
    /// Writes as many bytes as fit and returns their number; all of them while the other side is closed.
    virtual size_t Write(std::string_view bytes) = 0;
    /// Speed of the line, in baud: the one that the other side has set, if this side can see that.
    virtual int Speed() const = 0;
    /// Sends what was written, then sets this side's speed. Does nothing if the other side alone decides it.
    virtual void SetSpeed(int baud) = 0;
    /// Call when the other side has closed the port. Discards what it hasn't read, if this side can.
    virtual void Flush() = 0;

    /// Reason why the port can no longer be used; nothing as long as it can.
    virtual Failure Lost() const = 0;
};

} // namespace Simulator
