// A picture in memory: what is drawn into it can be looked at, pixel by pixel, on either desktop.
#pragma once

#include "afx/afx.h"

#include <vector>

class CCanvas
{
public:
    CCanvas(int width, int height);
    ~CCanvas();
    CCanvas(const CCanvas&) = delete;
    CCanvas& operator=(const CCanvas&) = delete;

    CDC& DC() { return m_dc; }
    /// The color of a pixel. Texts are not to be seen on every desktop.
    COLORREF ColorAt(CPoint point) const;
    std::vector<COLORREF> ColorsAt(const std::vector<CPoint>& points) const;

private:
    CDC m_dc;
    HGDIOBJ m_bitmap = nullptr;
    HGDIOBJ m_previous = nullptr;
};
