// A simulated radio, as zelk-radio plays it.
#pragma once

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

namespace transfertest {

class RadioPlayer;

/// Plays one radio from its start to the end of the object: in the test's process if the test has a
/// VirtualSystem, otherwise as a program of its own.
class RadioUnderTest {
public:
    /// model and options as zelk-radio accepts them, such as "KRV-650:FM 138-174"; memories are its initial
    /// lines.
    explicit RadioUnderTest(const std::string& model, const std::vector<std::string>& options = {},
                            const std::string& memories = "");
    ~RadioUnderTest();
    RadioUnderTest(const RadioUnderTest&) = delete;
    RadioUnderTest& operator=(const RadioUnderTest&) = delete;

    std::string PortName() const;

    /// Switches the radio off and returns its exit code. A digital radio's code is 3 if it refused something.
    int SwitchOff();

    /// Switches the radio off. Returns its memory lines by number, their first three characters.
    std::map<std::string, std::string> Memories();

    /// Switches a digital radio off. Returns its records by their address, with their layout: "1 T143..." or
    /// "2 T143...".
    std::map<int, std::string> Records();

    /// Everything that the radio has received and sent so far, one event a line.
    std::string Log() const;

    /// Calls a function as soon as an event with this text is logged. Only in virtual time.
    void WhenLogged(const std::string& text, std::function<void()> action);

    /// Everything that the radio has complained about: what a real one would have refused or not understood.
    std::string Complaints() const;

    /// Waits until the radio has noticed that its port was closed, or has ended.
    void AwaitClosedPort();

private:
    class VirtualPlayer;

    std::vector<std::string> MemoryLines();

    std::unique_ptr<RadioPlayer> m_player;
};

} // namespace transfertest
