// Where to look at a picture of the screen, and what is to be seen there.
#pragma once

#include "dialogs/process/ScreenDrawing.h"
#include "tests/support/Canvas.h"

#include <ostream>
#include <string>
#include <vector>

/// The middle of a segment, a point or a mark, and its color.
struct SScreenSpot
{
    std::string what;
    CPoint at;
    COLORREF color;
};

/// The height of the name that a context draws.
int NameHeight(CDC& dc);
/// All spots of a screen drawn into `place`, lit or dark.
std::vector<SScreenSpot> ScreenSpots(const CRect& place, int nameHeight, const SScreenSettings& settings);
/// Looks at all of them.
void ExpectScreen(CCanvas& canvas, const CRect& place, const SScreenSettings& settings);
