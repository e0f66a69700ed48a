// Shapes. Nothing is drawn: a good device context is all that these functions check.

#include "afx/offscreen/GdiState.h"

using namespace offscreen;

namespace
{
BOOL Drawn(HDC dc) { return DcOf(dc) != nullptr; }
} // namespace

int FillRect(HDC dc, const RECT*, HBRUSH) { return Drawn(dc); }
int FrameRect(HDC dc, const RECT*, HBRUSH) { return Drawn(dc); }
BOOL DrawFocusRect(HDC dc, const RECT*) { return Drawn(dc); }

BOOL Rectangle(HDC dc, int, int, int, int) { return Drawn(dc); }
BOOL Ellipse(HDC dc, int, int, int, int) { return Drawn(dc); }
BOOL Polygon(HDC dc, const POINT*, int count) { return Drawn(dc) && count >= 2; }

BOOL MoveToEx(HDC dc, int x, int y, LPPOINT previous)
{
    Dc* found = DcOf(dc);
    if (!found)
        return FALSE;
    if (previous)
        *previous = found->position;
    found->position = {x, y};
    return TRUE;
}

BOOL LineTo(HDC dc, int x, int y) { return MoveToEx(dc, x, y, nullptr); }
