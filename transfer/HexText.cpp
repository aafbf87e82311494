#include "transfer/HexText.h"

#include "catalogue/TextNumbers.h"

int HexByteSum(const wxString& text) {
    int sum = 0;
    for (std::size_t at = 0; at + 1 < text.length(); at += 2)
        sum += ReadHex(text.Mid(at, 2));
    return sum;
}
