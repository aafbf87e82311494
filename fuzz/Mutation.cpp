#include "fuzz/Mutation.h"

#include <algorithm>

extern "C" size_t LLVMFuzzerMutate(uint8_t* data, size_t size, size_t most);

size_t Throw(Dice& dice, size_t sides) {
    return dice() % sides;
}

Pieces SplitAfter(std::string_view text, std::string_view separators) {
    Pieces pieces;
    for (size_t begin = 0; begin < text.size();) {
        const size_t separator = text.find_first_of(separators, begin);
        const bool ended = separator != text.npos;
        const size_t end = ended ? separator + 1 : text.size();
        pieces.all.push_back({begin, end - begin, ended ? size_t{1} : size_t{0}});
        begin = end;
    }
    return pieces;
}

Pieces SplitEvery(std::string_view text, size_t from, size_t length) {
    Pieces pieces;
    pieces.stay = true;
    for (size_t begin = from; begin < text.size(); begin += length)
        pieces.all.push_back({begin, std::min(length, text.size() - begin)});
    return pieces;
}

std::string MutatedText(std::string_view text, size_t most) {
    std::vector<uint8_t> bytes(text.begin(), text.end());
    bytes.resize(std::max({most, text.size(), size_t{1}}));
    bytes.resize(LLVMFuzzerMutate(bytes.data(), text.size(), bytes.size()));
    return {bytes.begin(), bytes.end()};
}

namespace {

std::string_view TextOf(std::string_view input, const Piece& piece) {
    return input.substr(piece.begin, piece.length);
}

std::string ChangedInside(std::string_view text, size_t ending, size_t room) {
    const size_t inside = text.size() - ending;
    return MutatedText(text.substr(0, inside), inside + room).append(text.substr(inside));
}

/// Returns text at the length of former: cut, or with the end of former.
std::string Fitted(std::string text, std::string_view former) {
    text.resize(std::min(text.size(), former.size()));
    return text.append(former.substr(text.size()));
}

} // namespace

std::string MutatedPieces(std::string_view input, const Pieces& pieces, size_t most, Dice& dice) {
    if (pieces.all.empty())
        return MutatedText(input, most);
    enum Change : size_t { Replace, Remove, Insert, Kinds = 6 };
    constexpr size_t roomOfFixed = 8; // for a word that is then cut
    const Piece& piece = pieces.all[Throw(dice, pieces.all.size())];
    const std::string_view former = TextOf(input, piece);
    const std::string other(TextOf(input, pieces.all[Throw(dice, pieces.all.size())]));
    const size_t room = pieces.stay ? roomOfFixed : most - std::min(most, input.size());
    const size_t change = Throw(dice, Kinds);
    std::string text;
    if (change == Replace)
        text = other;
    else if (change == Insert && !pieces.stay)
        text = other + std::string(former);
    else if (change != Remove || pieces.stay)
        text = ChangedInside(former, piece.ending, room);
    if (pieces.stay)
        text = Fitted(std::move(text), former);
    return std::string(input).replace(piece.begin, piece.length, text);
}

Pieces PiecesOfList(std::string_view text, Dice& dice) {
    return SplitAfter(text, Throw(dice, 3) == 0 ? "\r\n" : ",\r\n");
}

Pieces PiecesOfColumns(std::string_view text, Dice& dice) {
    constexpr size_t widest = 10;
    if (Throw(dice, 3) == 0)
        return SplitAfter(text, "\r\n");
    const size_t length = 1 + Throw(dice, widest);
    return SplitEvery(text, Throw(dice, length), length);
}
