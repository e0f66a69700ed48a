// The marks of the screen.
#pragma once

#include "afx/afx.h"

/// Fills a mark (0..7) into a rectangle, with the brush and pen that are selected.
void DrawMark(CDC& dc, int mark, const CRect& place);
