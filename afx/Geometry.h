// Points, sizes and rectangles, in pixels unless said otherwise.
#pragma once

#include "afx/Export.h"

class CSize : public SIZE
{
public:
    CSize() : CSize(0, 0) {}
    CSize(int width, int height)
    {
        cx = width;
        cy = height;
    }
    CSize(const SIZE& size) : SIZE(size) {}
};

class CPoint : public POINT
{
public:
    CPoint() : CPoint(0, 0) {}
    CPoint(int left, int top)
    {
        x = left;
        y = top;
    }
    CPoint(const POINT& point) : POINT(point) {}
    /// From the parameter of a mouse message.
    explicit CPoint(LPARAM packed) : CPoint(static_cast<short>(LOWORD(packed)), static_cast<short>(HIWORD(packed))) {}

    void Offset(int dx, int dy) { *this = CPoint(x + dx, y + dy); }
};

inline CPoint operator+(CPoint point, SIZE size) { return CPoint(point.x + size.cx, point.y + size.cy); }
inline CPoint operator-(CPoint point, SIZE size) { return CPoint(point.x - size.cx, point.y - size.cy); }
inline bool operator==(CPoint a, CPoint b) { return a.x == b.x && a.y == b.y; }
inline bool operator!=(CPoint a, CPoint b) { return !(a == b); }
inline bool operator==(CSize a, CSize b) { return a.cx == b.cx && a.cy == b.cy; }
inline bool operator!=(CSize a, CSize b) { return !(a == b); }

/// The right and bottom edges lie outside.
class CRect : public RECT
{
public:
    CRect() : CRect(0, 0, 0, 0) {}
    CRect(int l, int t, int r, int b) { ::SetRect(this, l, t, r, b); }
    CRect(const RECT& rect) : RECT(rect) {}
    CRect(POINT corner, SIZE size) : CRect(corner.x, corner.y, corner.x + size.cx, corner.y + size.cy) {}
    CRect(POINT topLeft, POINT bottomRight) : CRect(topLeft.x, topLeft.y, bottomRight.x, bottomRight.y) {}

    operator LPRECT() { return this; }
    operator LPCRECT() const { return this; }

    int Width() const { return right - left; }
    int Height() const { return bottom - top; }
    CSize Size() const { return CSize(Width(), Height()); }
    CPoint TopLeft() const { return CPoint(left, top); }
    CPoint BottomRight() const { return CPoint(right, bottom); }
    CPoint CenterPoint() const { return CPoint((left + right) / 2, (top + bottom) / 2); }
    BOOL IsRectEmpty() const { return ::IsRectEmpty(this); }
    BOOL PtInRect(POINT point) const { return ::PtInRect(this, point); }

    void SetRect(int l, int t, int r, int b) { *this = CRect(l, t, r, b); }
    void SetRectEmpty() { *this = CRect(); }
    void OffsetRect(int dx, int dy) { ::OffsetRect(this, dx, dy); }
    void InflateRect(int dx, int dy) { ::InflateRect(this, dx, dy); }
    void DeflateRect(int dx, int dy) { ::InflateRect(this, -dx, -dy); }
};

inline bool operator==(const CRect& a, const CRect& b) { return ::EqualRect(&a, &b) != FALSE; }
inline bool operator!=(const CRect& a, const CRect& b) { return !(a == b); }
