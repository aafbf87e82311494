// Mutation by the structure of a format: whole lines, fields or elements of an input are removed, repeated,
// replaced or changed inside, where libFuzzer alone knows only bytes.
#pragma once

#include <cstddef>
#include <cstdint>
#include <random>
#include <string>
#include <string_view>
#include <vector>

using Dice = std::minstd_rand;

/// Returns a number from 0 to sides - 1; sides must not be 0.
size_t Throw(Dice& dice, size_t sides);

/// Part of an input.
struct Piece {
    size_t begin;
    size_t length;
    size_t ending = 0; ///< last bytes of it that a change inside spares, such as a separator
};

struct Pieces {
    std::vector<Piece> all;
    bool stay = false; ///< true if every piece must keep its position and length
};

/// Returns the pieces that end with one of the separators, or with the text.
Pieces SplitAfter(std::string_view text, std::string_view separators);

/// Returns pieces of a length, which stay, from a position on.
Pieces SplitEvery(std::string_view text, size_t from, size_t length);

/// Returns text as libFuzzer changes it, at most most bytes long.
std::string MutatedText(std::string_view text, size_t most);

/// Returns input with one of its pieces changed, at most most bytes long if input is.
std::string MutatedPieces(std::string_view input, const Pieces& pieces, size_t most, Dice& dice);

/// Changes an input for LLVMFuzzerCustomMutator, whose parameters and result these are. mutated gets the
/// input, the longest length and the dice. Every fourth input is changed without structure: readers must bear
/// that too.
template <class Mutated>
size_t Mutate(uint8_t* data, size_t size, size_t most, unsigned seed, Mutated mutated) {
    Dice dice(seed);
    const std::string_view input(reinterpret_cast<const char*>(data), size);
    std::string output = Throw(dice, 4) == 0 ? MutatedText(input, most) : mutated(input, most, dice);
    if (output.size() > most)
        output.resize(most);
    output.copy(reinterpret_cast<char*>(data), output.size());
    return output.size();
}

/// Pieces of a comma-separated list: lines or fields.
Pieces PiecesOfList(std::string_view text, Dice& dice);

/// Pieces of a text with fixed columns: lines, or parts of lines that stay.
Pieces PiecesOfColumns(std::string_view text, Dice& dice);
