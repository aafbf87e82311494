// Arrays whose elements have the numbers of pages, radio types, rows or columns.
#pragma once

#include <array>
#include <cstddef>

/// A std::array with an int index, because the program and the toolkit number pages, rows and columns with
/// int.
template <class Value, size_t Size>
struct NumberedArray : std::array<Value, Size> {
    constexpr Value& operator[](int number) { return this->data()[number]; }
    constexpr const Value& operator[](int number) const { return this->data()[number]; }
};
