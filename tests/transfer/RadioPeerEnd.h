// Where a script plays a radio.
#pragma once

#include <chrono>
#include <functional>
#include <memory>
#include <string>

namespace transfertest {

/// The radio's end of the port, and the thread of the script.
class RadioPeerEnd {
public:
    virtual ~RadioPeerEnd() = default;
    virtual void Start(std::function<void()> play) = 0;
    virtual void Finish() = 0;
    virtual const std::string& PortName() const = 0;
    virtual int Speed() const = 0;
    virtual std::string Read(size_t count, std::chrono::milliseconds limit) = 0;
    virtual std::string ReadLine(std::chrono::milliseconds limit) = 0;
    virtual void Write(const std::string& text) = 0;
    virtual void Pause(std::chrono::milliseconds time) = 0;
    virtual void Vanish() = 0;
};

/// An end of a pseudo-terminal, or of a pair of ports. One source file for each operating system.
std::unique_ptr<RadioPeerEnd> MakeRealEnd();

} // namespace transfertest
