#include "editing/FrequencyRules.h"

#include "catalogue/RadioCatalogue.h"
#include "catalogue/TextNumbers.h"

#include <algorithm>

using namespace RadioCatalogue;

namespace {

struct FrequencyParts {
    int megahertz = 0;
    int fraction = 0; ///< the digits after the point, as a number
};

/// Returns text without trailing blanks.
std::wstring_view Trimmed(std::wstring_view text) {
    while (!text.empty() && (text.back() == L' ' || (text.back() >= L'\t' && text.back() <= L'\r')))
        text.remove_suffix(1);
    return text;
}

/// Splits text at its first point. Returns 0, or the FreqFault of a malformed text.
int SplitFrequency(const wxString& text, FrequencyParts& parts) {
    const std::wstring& all = text.ToStdWstring();
    const std::wstring_view wide = all;
    const size_t point = wide.find(L'.');
    if (point == wide.npos)
        return FreqNoPoint;
    if (wide.find(L'.', point + 1) != wide.npos)
        return FreqSecondPoint;
    const std::wstring_view megahertz = Trimmed(wide.substr(0, point));
    const std::wstring_view fraction = Trimmed(wide.substr(point + 1));
    if (megahertz.length() >= 4 || fraction.length() >= 6)
        return FreqTooLong;
    parts = {ReadNumber(megahertz).value_or(0), ReadNumber(fraction).value_or(0)};
    return megahertz.empty() ? FreqNoMegahertz : 0;
}

} // namespace

bool IsInBand(int mhz, int fraction, int band) {
    if (band < 0 || band >= BandTotal)
        return false;
    const auto [low, high] = BandLimit[band];
    return low <= mhz && mhz <= high && (mhz != high || fraction == 0);
}

int CheckFreqInBand(const wxString& text, int band) {
    FrequencyParts parts;
    if (const int fault = SplitFrequency(text, parts))
        return fault;
    return IsInBand(parts.megahertz, parts.fraction, band) ? 0 : FreqNotInBand;
}

int GetFreqBand(const wxString& text, int type) {
    FrequencyParts parts;
    if (const int fault = SplitFrequency(text, parts))
        return fault;
    for (int band = 0; band < BandTotal; ++band)
        if (IsInBand(parts.megahertz, parts.fraction, band))
            return band == Fm136To174 && !IsP25Type(type) ? Fm138To174 : band;
    return FreqInNoBand;
}

namespace {

bool IsDigit(wxUniChar c) {
    return c >= '0' && c <= '9';
}

int DigitAt(const wxString& text, size_t position) {
    return static_cast<int>(text[position].GetValue()) - '0';
}

bool IsOneOf(const int (&pair)[2], int digit) {
    return digit == pair[0] || digit == pair[1];
}

/// True for a digit that can begin a quarter (00, 25, 50, 75) of the place before.
bool IsQuarter(int digit) {
    return digit == 0 || digit == 2 || digit == 5 || digit == 7;
}

bool FitsStep25000(const wxString& fraction) {
    const size_t count = fraction.length();
    if (count > 1 && !IsQuarter(DigitAt(fraction, 1)))
        return false;
    if (count > 2 && DigitAt(fraction, 2) != StepNext25[DigitAt(fraction, 1)])
        return false;
    return fraction.Mid(3).find_first_not_of('0') == wxString::npos;
}

// Intentional: the first digit of the 12.5 kHz pattern is unchecked; 4 and 9 have no successor and fail
// there.
bool FitsStep12500(const wxString& fraction) {
    const size_t count = fraction.length();
    if (count > 2 && DigitAt(fraction, 2) != StepNext125[DigitAt(fraction, 1)])
        return false;
    if (count > 3 && DigitAt(fraction, 3) != StepNext25[DigitAt(fraction, 2)])
        return false;
    return count <= 4 || fraction[4] == '0';
}

bool FitsStep8333(const wxString& fraction) {
    const size_t count = fraction.length();
    return count <= 3 && (count <= 2 || IsOneOf(StepPairs833[DigitAt(fraction, 1)], DigitAt(fraction, 2)));
}

bool FitsStep6250(const wxString& fraction) {
    const size_t count = fraction.length();
    if (count > 2 && !IsOneOf(StepPairs625[DigitAt(fraction, 1)], DigitAt(fraction, 2)))
        return false;
    if (count > 3 && DigitAt(fraction, 3) != StepNext125[DigitAt(fraction, 2)])
        return false;
    return count <= 4 || DigitAt(fraction, 4) == StepNext25[DigitAt(fraction, 3)];
}

bool FitsStep2500(const wxString& fraction) {
    const size_t count = fraction.length();
    if (count > 2 && !IsQuarter(DigitAt(fraction, 2)))
        return false;
    if (count > 3 && DigitAt(fraction, 3) != StepNext25[DigitAt(fraction, 2)])
        return false;
    return count <= 4 || fraction[4] == '0';
}

// Intentional: the first digit of the pattern is unchecked, as at 12.5 kHz.
bool FitsStep1250(const wxString& fraction) {
    const size_t count = fraction.length();
    if (count > 3 && DigitAt(fraction, 3) != StepNext125[DigitAt(fraction, 2)])
        return false;
    return count <= 4 || DigitAt(fraction, 4) == StepNext25[DigitAt(fraction, 3)];
}

bool FitsStep(int mhz, const wxString& fraction, int step) {
    switch (step) {
    case 1250:
        return FitsStep1250(fraction);
    case 2500:
        return FitsStep2500(fraction);
    case 6250:
        return FitsStep6250(fraction);
    case 8333:
        // Only the voice channels have the narrow raster; the rest of the band keeps to 25 kHz.
        return mhz < 118 || mhz > 138 ? FitsStep25000(fraction) : FitsStep8333(fraction);
    case 12500:
        return FitsStep12500(fraction);
    case 25000:
        return FitsStep25000(fraction);
    default:
        return true;
    }
}

/// Plan of FormatFreq: the number of free characters at the step, counted from the point (included), and the
/// row of StepComplete for the digit after them.
struct Completion {
    size_t freeDigits;
    int row;
};

Completion CompletionOf(int step) {
    switch (step) {
    case 1250:
        return {4, 1};
    case 2500:
        return {4, 0};
    case 6250:
        return {3, 2};
    case 12500:
        return {3, 1};
    default:
        return {3, 0};
    }
}

} // namespace

size_t FrequencyWidth(int band, int step) {
    if (band == Fm30To50 || band == Fm66To88 || step == 8333)
        return 7;
    return step == 1250 ? 9 : 8;
}

bool IsOkFreq(const wxString& text, int band, int step) {
    const size_t point = text.find('.');
    if (point == wxString::npos)
        return true;
    const wxString megahertz = text.Left(point);
    const wxString fraction = text.Mid(point + 1);
    if (megahertz.empty() || megahertz.length() > 3 || fraction.length() >= 6)
        return false;
    if (!std::all_of(fraction.begin(), fraction.end(), IsDigit))
        return false;
    if (band < 0 || band >= BandTotal)
        return false;
    const auto [low, high] = BandLimit[band];
    const int mhz = ReadDecimal(megahertz);
    if (mhz < low || mhz > high)
        return false;
    if (mhz == high)
        return fraction.find_first_not_of('0') == wxString::npos;
    return FitsStep(mhz, fraction, step);
}

bool FormatFreq(wxString& text, int band, int step, size_t width) {
    wxString complete = text;
    if (complete.find('.') == wxString::npos)
        complete += '.';
    if (!IsOkFreq(complete, band, step))
        return false;
    auto [freeDigits, row] = CompletionOf(step);
    size_t last = complete.find('.') + freeDigits;
    for (; complete.length() > last; ++last)
        --row;
    if (complete.length() >= width)
        return true;
    complete.Pad(last - complete.length(), '0');
    for (; row >= 0 && complete.length() < width; --row)
        complete += StepComplete[row * 10 + DigitAt(complete, complete.length() - 1)];
    if (complete.length() < width)
        complete.Pad(width - complete.length(), '0');
    text = complete;
    return true;
}

bool CheckRxOnlyFreq(const wxString& text) {
    const int mhz = ReadDecimal(text.BeforeFirst('.'));
    // Intentional: "117.900" counts as below 117.975, "117.9000" doesn't.
    return (mhz >= 108 && mhz <= 116) || (mhz == 117 && ReadDecimal(text.AfterFirst('.')) <= 974);
}
