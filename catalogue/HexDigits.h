// Hexadecimal digits, of texts in any type of character.
#pragma once

#include <cstdint>

/// Value of a hexadecimal digit of either case, -1 for any other character.
template <class Character>
constexpr int HexDigitValue(Character c) {
    if (c >= '0' && c <= '9')
        return static_cast<int>(c - '0');
    if (c >= 'A' && c <= 'F')
        return static_cast<int>(c - 'A') + 10;
    if (c >= 'a' && c <= 'f')
        return static_cast<int>(c - 'a') + 10;
    return -1;
}

template <class Character>
constexpr bool IsHexDigit(Character c) {
    return HexDigitValue(c) >= 0;
}

/// The digit for the last four bits of a number, in upper case.
constexpr wchar_t HexDigit(uint32_t number) {
    return L"0123456789ABCDEF"[number & 0xF];
}
