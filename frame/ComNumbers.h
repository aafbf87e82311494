// Numbers of COM ports.
#pragma once

#include <string>
#include <vector>

namespace serialports {

/// The ports from COM1 to this one are asked for one by one.
inline constexpr int HighestAskedPort = 29;

/// Returns the numbers above HighestAskedPort among the names of ports that the system keeps, such as
/// "COM31", in ascending order and each once. Other names are passed over.
std::vector<int> FurtherPorts(const std::vector<std::wstring>& names);

/// Name under which a port is opened: "COM9", "\\.\COM10". Only the first nine have a short one.
std::string ComDeviceName(int number);

} // namespace serialports
