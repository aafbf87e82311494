#include "files/PrintLayout.h"

#include <algorithm>
#include <cstdint>
#include <utility>

namespace {

constexpr int A4Width = 210, A4Height = 297;
constexpr double MillimetresPerInch = 25.4;

/// Truncates to whole pixels and limits them to a range that is safe for calculating coordinates.
int WholePixels(double pixels) {
    constexpr double Limit = 1e8;
    return static_cast<int>(std::clamp(pixels, -Limit, Limit));
}

} // namespace

int CountRowsPerPage(wxSize paper, const PageMargins& margins, bool landscape, int totalWidth,
                     const std::vector<int>& rowHeights) {
    if (paper.x < 1 || paper.y < 1)
        paper.Set(A4Width, A4Height);
    if (landscape)
        std::swap(paper.x, paper.y);
    const int64_t usableWidth = int64_t{paper.x} - margins.topLeft.x - margins.bottomRight.x;
    const int64_t usableHeight = int64_t{paper.y} - margins.topLeft.y - margins.bottomRight.y - HeadingSpace;
    if (usableWidth < 1 || usableHeight < 1)
        return 1;
    const int64_t height = totalWidth * usableHeight / usableWidth;
    int64_t sum = 0;
    int rows = 0;
    for (const int rowHeight : rowHeights) {
        sum += rowHeight;
        if (sum > height)
            break;
        ++rows;
    }
    return std::max(rows, 1);
}

int CountPages(int rows, int rowsPerPage) {
    return (rows + rowsPerPage - 1) / rowsPerPage;
}

PageMargins InDevicePixels(const PageMargins& margins, int extraTop, wxSize pixelsPerInch, double scale) {
    const double across = pixelsPerInch.x * scale / MillimetresPerInch;
    const double down = pixelsPerInch.y * scale / MillimetresPerInch;
    return {
        {WholePixels(margins.topLeft.x * across), WholePixels((double(margins.topLeft.y) + extraTop) * down)},
        {WholePixels(margins.bottomRight.x * across), WholePixels(margins.bottomRight.y * down)}};
}
