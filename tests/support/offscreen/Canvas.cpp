#include "tests/support/Canvas.h"

#include "afx/offscreen/Desktop.h"

CCanvas::CCanvas(int, int)
{
    offscreen::RecordDrawing(true);
    m_dc.Attach(::CreateCompatibleDC(nullptr));
}

CCanvas::~CCanvas() { offscreen::RecordDrawing(false); }

COLORREF CCanvas::ColorAt(CPoint point) const
{
    return offscreen::ColorAt(m_dc.GetSafeHdc(), static_cast<int>(point.x), static_cast<int>(point.y));
}
