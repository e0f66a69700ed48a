// Shapes. Nothing is drawn: a good device context is all that these functions check. What is filled in a memory context
// is noted down when a test wants to see it.

#include "afx/offscreen/Desktop.h"
#include "afx/offscreen/GdiState.h"

#include <algorithm>

namespace offscreen
{
namespace
{
void Note(Dc& dc, Fill fill)
{
    Inside inside;
    if (Gdi().recording && dc.memory)
        dc.fills.push_back(std::move(fill));
}

COLORREF ColorOf(HGDIOBJ brush)
{
    const GdiObject* object = Gdi().objects.Find(brush);
    return object && object->kind == OBJ_BRUSH ? object->brush.lbColor : CLR_INVALID;
}

// Pixels are hit in their middle.
bool IsInPolygon(const std::vector<POINT>& corners, double x, double y)
{
    bool inside = false;
    for (std::size_t i = 0, j = corners.size() - 1; i < corners.size(); j = i++)
    {
        const POINT a = corners[i], b = corners[j];
        if ((a.y > y) != (b.y > y) && x < (b.x - a.x) * (y - a.y) / (b.y - a.y) + a.x)
            inside = !inside;
    }
    return inside;
}

bool IsInEllipse(POINT from, POINT to, double x, double y)
{
    const double dx = (2 * x - from.x - to.x) / (to.x - from.x), dy = (2 * y - from.y - to.y) / (to.y - from.y);
    return dx * dx + dy * dy <= 1;
}

bool IsFilled(const Fill& fill, double x, double y)
{
    return fill.ellipse ? IsInEllipse(fill.corners[0], fill.corners[1], x, y) : IsInPolygon(fill.corners, x, y);
}
} // namespace

void NoteRect(Dc& dc, const RECT& rect, COLORREF color)
{
    Note(dc, {{{rect.left, rect.top}, {rect.right, rect.top}, {rect.right, rect.bottom}, {rect.left, rect.bottom}},
              false,
              color});
}

COLORREF ColorAt(HDC handle, int x, int y)
{
    const Dc* dc = DcOf(handle);
    if (!dc)
        return CLR_INVALID;
    const auto last = std::find_if(dc->fills.rbegin(), dc->fills.rend(),
                                   [=](const Fill& fill) { return IsFilled(fill, x + 0.5, y + 0.5); });
    return last != dc->fills.rend() ? last->color : CLR_INVALID;
}
} // namespace offscreen

using namespace offscreen;

int FillRect(HDC dc, const RECT* rect, HBRUSH brush)
{
    Dc* found = DcOf(dc);
    if (found && rect)
        NoteRect(*found, *rect, ColorOf(brush));
    return found != nullptr;
}

int FrameRect(HDC dc, const RECT*, HBRUSH) { return DcOf(dc) != nullptr; }

BOOL DrawFocusRect(HDC dc, const RECT* rect)
{
    Dc* found = DcOf(dc);
    if (!found || !rect)
        return FALSE;
    const auto [left, top, right, bottom] = *rect;
    for (const RECT& edge : {RECT{left, top, right, top + 1}, RECT{left, bottom - 1, right, bottom},
                             RECT{left, top, left + 1, bottom}, RECT{right - 1, top, right, bottom}})
        NoteRect(*found, edge, RGB(0, 0, 0));
    return TRUE;
}

BOOL Rectangle(HDC dc, int left, int top, int right, int bottom)
{
    Dc* found = DcOf(dc);
    if (found)
        NoteRect(*found, {left, top, right, bottom}, ColorOf(found->brush));
    return found != nullptr;
}

BOOL Ellipse(HDC dc, int left, int top, int right, int bottom)
{
    Dc* found = DcOf(dc);
    if (found)
        Note(*found, {{{left, top}, {right, bottom}}, true, ColorOf(found->brush)});
    return found != nullptr;
}

BOOL Polygon(HDC dc, const POINT* corners, int count)
{
    Dc* found = DcOf(dc);
    if (!found || count < 2)
        return FALSE;
    Note(*found, {std::vector<POINT>(corners, corners + count), false, ColorOf(found->brush)});
    return TRUE;
}

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
