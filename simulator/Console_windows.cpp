#include "simulator/Console.h"

#include <windows.h>

namespace Simulator {

namespace {

std::string Utf8(const wchar_t* wide) {
    std::string text(
        static_cast<size_t>(WideCharToMultiByte(CP_UTF8, 0, wide, -1, nullptr, 0, nullptr, nullptr)), '\0');
    WideCharToMultiByte(CP_UTF8, 0, wide, -1, text.data(), static_cast<int>(text.size()), nullptr, nullptr);
    text.pop_back(); // the zero at the end
    return text;
}

} // namespace

std::vector<std::string> TakeArguments(int, char**) {
    SetConsoleOutputCP(CP_UTF8);
    // The arguments of main lack the letters that the code page lacks.
    int count = 0;
    wchar_t** const wide = CommandLineToArgvW(GetCommandLineW(), &count);
    std::vector<std::string> arguments;
    for (int k = 1; wide && k < count; ++k)
        arguments.push_back(Utf8(wide[k]));
    LocalFree(wide);
    return arguments;
}

} // namespace Simulator
