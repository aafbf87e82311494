// Mutation of XML by its elements.
#pragma once

#include "fuzz/Mutation.h"

#include <string_view>

/// Pieces of a document: elements without children, elements with children, the texts of the former, or the
/// values of attributes. The dice choose.
Pieces PiecesOfDocument(std::string_view text, Dice& dice);
