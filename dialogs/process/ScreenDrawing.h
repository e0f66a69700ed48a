// The picture of the seven-segment screen.
#pragma once

#include "dialogs/process/ScreenImage.h"

/// Where everything stands in a rectangle, whatever its size and font: the name of the screen, the marks in a row, and
/// below them the two lines.
class CScreenLayout
{
public:
    /// `nameHeight` is the height of the text that names the screen; it is left out where it takes too much.
    CScreenLayout(const CRect& place, int nameHeight);

    const CRect& Name() const { return m_name; }
    /// By its place in the row, from the left.
    CRect Mark(int position) const;
    /// By its position from the left.
    CRect Digit(int line, int position) const;
    /// The six corners of a segment (0..6).
    std::array<POINT, 6> Segment(int line, int position, int segment) const;
    CRect Point(int line, int position) const;
    CRect UpperPoint(int line, int position) const;

private:
    int Thickness() const;

    CRect m_name;
    CRect m_marks;
    CRect m_lines;
};

/// The marks as they stand in the row: the upper four buttons of the dialog, then the lower four.
constexpr std::array<int, kScreenMarks> kMarkOrder = {0, 1, 2, 7, 3, 4, 5, 6};

/// The color that a mark, a segment or a point has when it is lit; dark, they can just be seen.
COLORREF ScreenColor(DWORD color);

constexpr COLORREF kScreenBackground = RGB(20, 22, 26);
constexpr COLORREF kScreenDark = RGB(44, 47, 54);
constexpr COLORREF kScreenMark = RGB(255, 255, 255);

/// Draws the screen with its frame, all pixels of `place`, with the font that is selected.
void DrawScreen(CDC& dc, const CRect& place, const SScreenSettings& settings, const CString& name);
