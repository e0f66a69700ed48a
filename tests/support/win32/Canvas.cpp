#include "tests/support/Canvas.h"

CCanvas::CCanvas(int width, int height)
{
    BITMAPINFO info = {};
    info.bmiHeader = {sizeof info.bmiHeader, width, -height, 1, 24, BI_RGB, 0, 0, 0, 0, 0};
    void* bits = nullptr;
    m_dc.Attach(::CreateCompatibleDC(nullptr));
    m_bitmap = ::CreateDIBSection(m_dc, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
    m_previous = ::SelectObject(m_dc, m_bitmap);
}

CCanvas::~CCanvas()
{
    ::SelectObject(m_dc, m_previous);
    ::DeleteObject(m_bitmap);
}

COLORREF CCanvas::ColorAt(CPoint point) const
{
    return ::GetPixel(m_dc, static_cast<int>(point.x), static_cast<int>(point.y));
}
