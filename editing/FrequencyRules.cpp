#include "editing/FrequencyRules.h"

#include "catalogue/RadioCatalogue.h"
#include "catalogue/TextNumbers.h"

using namespace RadioCatalogue;

namespace {

/// Splits text at its first point. 0, or the FreqFault of its form.
int SplitFrequency(const wxString& text, wxString& megahertz, wxString& fraction) {
    const size_t point = text.find('.');
    if (point == wxString::npos)
        return FreqNoPoint;
    megahertz = text.Left(point);
    fraction = text.Mid(point + 1);
    if (fraction.find('.') != wxString::npos)
        return FreqSecondPoint;
    megahertz.Trim();
    fraction.Trim();
    if (megahertz.length() >= 4 || fraction.length() >= 6)
        return FreqTooLong;
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
    wxString megahertz, fraction;
    if (const int fault = SplitFrequency(text, megahertz, fraction))
        return fault;
    return IsInBand(ReadDecimal(megahertz), ReadDecimal(fraction), band) ? 0 : FreqNotInBand;
}

int GetFreqBand(const wxString& text, int type) {
    wxString megahertz, fraction;
    if (const int fault = SplitFrequency(text, megahertz, fraction))
        return fault;
    for (int band = 0; band < BandTotal; ++band)
        if (IsInBand(ReadDecimal(megahertz), ReadDecimal(fraction), band))
            return band == 4 && !IsP25Type(type) ? 5 : band;
    return FreqInNoBand;
}
