// Shapes. Nothing is drawn: a good device context is all that these functions check.

#include "afx/offscreen/GdiState.h"

using namespace offscreen;

namespace
{
BOOL Drawn(HDC dc) { return DcOf(dc) != nullptr; }
} // namespace

int FillRect(HDC dc, const RECT*, HBRUSH) { return Drawn(dc); }
int FrameRect(HDC dc, const RECT*, HBRUSH) { return Drawn(dc); }
BOOL InvertRect(HDC dc, const RECT*) { return Drawn(dc); }
BOOL DrawFocusRect(HDC dc, const RECT*) { return Drawn(dc); }

BOOL DrawEdge(HDC dc, LPRECT rect, UINT edge, UINT flags)
{
    if (flags & BF_ADJUST)
    {
        const bool outer = (edge & (BDR_RAISEDOUTER | BDR_SUNKENOUTER)) != 0;
        const bool inner = (edge & (BDR_RAISEDINNER | BDR_SUNKENINNER)) != 0;
        const int width = outer + inner;
        rect->left += flags & BF_LEFT ? width : 0;
        rect->top += flags & BF_TOP ? width : 0;
        rect->right -= flags & BF_RIGHT ? width : 0;
        rect->bottom -= flags & BF_BOTTOM ? width : 0;
    }
    return Drawn(dc);
}

BOOL DrawFrameControl(HDC dc, LPRECT, UINT, UINT) { return Drawn(dc); }
BOOL Rectangle(HDC dc, int, int, int, int) { return Drawn(dc); }
BOOL RoundRect(HDC dc, int, int, int, int, int, int) { return Drawn(dc); }
BOOL Ellipse(HDC dc, int, int, int, int) { return Drawn(dc); }
BOOL Polygon(HDC dc, const POINT*, int count) { return Drawn(dc) && count >= 2; }
BOOL Polyline(HDC dc, const POINT*, int count) { return Drawn(dc) && count >= 2; }

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
COLORREF SetPixel(HDC dc, int, int, COLORREF color) { return Drawn(dc) ? color : CLR_INVALID; }

BOOL BitBlt(HDC target, int, int, int, int, HDC source, int, int, DWORD operation)
{
    const bool needsSource = operation != BLACKNESS && operation != WHITENESS && operation != DSTINVERT &&
                             operation != PATCOPY && operation != PATINVERT;
    return Drawn(target) && (!needsSource || Drawn(source));
}

BOOL PatBlt(HDC dc, int, int, int, int, DWORD) { return Drawn(dc); }
int IntersectClipRect(HDC dc, int, int, int, int) { return Drawn(dc) ? 2 : 0; } // SIMPLEREGION
int ExcludeClipRect(HDC dc, int, int, int, int) { return Drawn(dc) ? 3 : 0; }   // COMPLEXREGION
BOOL GdiFlush() { return TRUE; }
