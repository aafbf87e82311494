// The name under which a simulated port is found.
#pragma once

#include <string>

namespace Simulator {

/// A symbolic link in the folder of simulated ports. A lock file beside it (".NAME.lock") is held by the
/// process that plays the port, so that a link of a process that died is told from one in use.
class PortLink {
public:
    /// Makes `folder` if need be, and in it the link `name` to `device`. A link that nobody plays any
    /// more is replaced. Throws std::runtime_error with a sentence for the user when the name is played
    /// by another process, stands for something that isn't a simulated port, or can't be made.
    PortLink(const std::string& folder, const std::string& name, const std::string& device);
    /// Removes the link unless it has come to point elsewhere.
    ~PortLink();
    PortLink(const PortLink&) = delete;
    PortLink& operator=(const PortLink&) = delete;

    const std::string& Path() const { return m_path; }

private:
    void Lock();
    void MakeLink();
    bool PointsToDevice() const;

    std::string m_path;
    std::string m_lockPath;
    std::string m_device;
    int m_lock = -1;
};

/// The folder "ports" in the user data directory of the program: ".zelk/ports" in the home directory,
/// which is $HOME, or the one of the password database without it.
std::string DefaultPortsFolder();

} // namespace Simulator
