// Filled shapes.
#pragma once

#include "afx/afx.h"

/// For as long as it lives, shapes are filled with a color and have no outline.
class CFill
{
public:
    CFill(CDC& dc, COLORREF color) : m_dc(dc), m_pen(dc.SelectStockObject(NULL_PEN))
    {
        m_brush.CreateSolidBrush(color);
        m_previous = dc.SelectObject(&m_brush);
    }
    ~CFill()
    {
        m_dc.SelectObject(m_previous);
        m_dc.SelectObject(m_pen);
    }

    CFill(const CFill&) = delete;
    CFill& operator=(const CFill&) = delete;

private:
    CDC& m_dc;
    CGdiObject* m_pen;
    CBrush m_brush;
    CBrush* m_previous;
};
