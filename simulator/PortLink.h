// Name of a simulated port in the folder of ports.
#pragma once

#include <string>

namespace Simulator {

/// A symbolic link in the folder of simulated ports. The process that plays the port locks a file next to it
/// (".NAME.lock"). The lock distinguishes a link in use from a leftover of a process that died.
class PortLink {
public:
    /// Creates `folder` if necessary, and in it the link `name` to `device`. Replaces a leftover link. Throws
    /// std::runtime_error with a sentence for the user if another process plays this name, if the name exists
    /// but isn't a simulated port, or if the link can't be created.
    PortLink(const std::string& folder, const std::string& name, const std::string& device);
    /// Removes the link unless it now points elsewhere.
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

/// Returns the folder "ports" in the program's user data directory: ".zelk/ports" in the home directory. The
/// home directory is $HOME or, if that isn't set, the one in the password database.
std::string DefaultPortsFolder();

} // namespace Simulator
