#include "tests/support/Canvas.h"

std::vector<COLORREF> CCanvas::ColorsAt(const std::vector<CPoint>& points) const
{
    std::vector<COLORREF> colors;
    colors.reserve(points.size());
    for (const CPoint& point : points)
        colors.push_back(ColorAt(point));
    return colors;
}
