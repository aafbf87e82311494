#include "fuzz/ElementMutation.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace {

/// Elements that the walk through the text has found.
struct Elements {
    Pieces leaves, parents, texts, attributes;
};

struct OpenElement {
    size_t begin, textBegin;
    bool hasChild = false;
};

/// Adds what stands between quotes in the tag from begin to end.
void AddAttributes(std::string_view text, size_t begin, size_t end, Pieces& attributes) {
    for (size_t quote = text.find('"', begin); quote < end;) {
        const size_t last = text.find('"', quote + 1);
        if (last >= end)
            return;
        attributes.all.push_back({quote + 1, last - quote - 1});
        quote = text.find('"', last + 1);
    }
}

/// Adds an element that ends at end; its text ends at textEnd.
void AddElement(const OpenElement& element, size_t textEnd, size_t end, Elements& elements) {
    const Piece whole{element.begin, end - element.begin};
    if (element.hasChild) {
        elements.parents.all.push_back(whole);
    } else {
        elements.leaves.all.push_back(whole);
        elements.texts.all.push_back({element.textBegin, textEnd - element.textBegin});
    }
}

Elements ElementsOf(std::string_view text) {
    Elements elements;
    std::vector<OpenElement> open;
    for (size_t begin = text.find('<'); begin != text.npos; begin = text.find('<', begin + 1)) {
        const size_t end = std::min(text.find('>', begin), text.size() - 1) + 1;
        const char kind = begin + 1 < text.size() ? text[begin + 1] : '\0';
        if (kind == '/' && !open.empty()) {
            AddElement(open.back(), begin, end, elements);
            open.pop_back();
            continue;
        }
        if (kind == '/' || kind == '?' || kind == '!')
            continue;
        AddAttributes(text, begin, end, elements.attributes);
        if (!open.empty())
            open.back().hasChild = true;
        open.push_back({begin, end});
    }
    return elements;
}

} // namespace

Pieces PiecesOfDocument(std::string_view text, Dice& dice) {
    Elements elements = ElementsOf(text);
    Pieces* const kinds[] = {&elements.texts, &elements.texts, &elements.leaves, &elements.parents,
                             &elements.attributes};
    return std::move(*kinds[Throw(dice, std::size(kinds))]);
}
