#include "frame/ComNumbers.h"

#include <algorithm>
#include <string_view>

namespace serialports {

namespace {

constexpr std::wstring_view Prefix = L"COM";
/// More digits no port has.
constexpr size_t MostDigits = 5;
constexpr int NoPort = -1;

int PortNumber(std::wstring_view name) {
    if (!name.starts_with(Prefix))
        return NoPort;
    name.remove_prefix(Prefix.size());
    if (name.empty() || name.size() > MostDigits ||
        name.find_first_not_of(L"0123456789") != std::wstring_view::npos)
        return NoPort;
    return std::stoi(std::wstring(name));
}

} // namespace

std::vector<int> FurtherPorts(const std::vector<std::wstring>& names) {
    std::vector<int> numbers;
    for (const std::wstring& name : names)
        if (const int number = PortNumber(name); number > HighestAskedPort)
            numbers.push_back(number);
    std::sort(numbers.begin(), numbers.end());
    numbers.erase(std::unique(numbers.begin(), numbers.end()), numbers.end());
    return numbers;
}

std::string ComDeviceName(int number) {
    constexpr int lastShort = 9;
    return (number > lastShort ? "\\\\.\\COM" : "COM") + std::to_string(number);
}

} // namespace serialports
