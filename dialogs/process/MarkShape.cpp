#include "dialogs/process/MarkShape.h"

#include "dialogs/process/ScreenSettings.h"

namespace
{

/// A polygon in a square of 12 units.
struct SMarkShape
{
    int points;
    POINT corners[12];
};

constexpr int kUnits = 12;

constexpr SMarkShape kMarks[kScreenMarks] = {
    {3, {{6, 1}, {12, 11}, {0, 11}}},                                          // triangle up
    {3, {{0, 1}, {12, 1}, {6, 11}}},                                           // triangle down
    {3, {{11, 0}, {11, 12}, {1, 6}}},                                          // triangle left
    {3, {{1, 0}, {11, 6}, {1, 12}}},                                           // triangle right
    {8, {{4, 0}, {8, 0}, {12, 4}, {12, 8}, {8, 12}, {4, 12}, {0, 8}, {0, 4}}}, // dot
    {4, {{1, 1}, {11, 1}, {11, 11}, {1, 11}}},                                 // square
    {4, {{6, 0}, {12, 6}, {6, 12}, {0, 6}}},                                   // diamond
    {12, {{4, 0}, {8, 0}, {8, 4}, {12, 4}, {12, 8}, {8, 8}, {8, 12}, {4, 12}, {4, 8}, {0, 8}, {0, 4}, {4, 4}}}, // cross
};

} // namespace

void DrawMark(CDC& dc, int mark, const CRect& place)
{
    const SMarkShape& shape = kMarks[mark];
    const int side = std::min(place.Width(), place.Height());
    const CPoint origin(place.CenterPoint().x - side / 2, place.CenterPoint().y - side / 2);
    POINT corners[std::size(shape.corners)];
    for (int i = 0; i < shape.points; ++i)
        corners[i] = {origin.x + shape.corners[i].x * side / kUnits, origin.y + shape.corners[i].y * side / kUnits};
    dc.Polygon(corners, shape.points);
}
