#include "dialogs/process/DrawnControls.h"

#include "dialogs/process/Fill.h"
#include "dialogs/process/MarkShape.h"
#include "dialogs/process/ScreenDrawing.h"

namespace
{

CRect Smaller(CRect rect, int by)
{
    rect.DeflateRect(by, by);
    return rect;
}

/// The edges of a button: light at the upper left when it is up, at the lower right when it is down.
void DrawEdges(CDC& dc, const CRect& rect, bool down)
{
    const COLORREF light = ::GetSysColor(COLOR_BTNHIGHLIGHT), shadow = ::GetSysColor(COLOR_BTNSHADOW);
    dc.FillSolidRect(rect, down ? light : shadow);
    dc.FillSolidRect(CRect(rect.left, rect.top, rect.right - 1, rect.bottom - 1), down ? shadow : light);
}

} // namespace

void DrawMarkButton(const DRAWITEMSTRUCT& item, int mark, bool shown)
{
    constexpr int kEdge = 1, kFace = 3, kMargin = 3;
    CDC& dc = *CDC::FromHandle(item.hDC);
    const CRect button = item.rcItem;
    DrawEdges(dc, button, shown || (item.itemState & ODS_SELECTED) != 0);
    dc.FillSolidRect(Smaller(button, kEdge), ::GetSysColor(COLOR_BTNFACE));
    const CRect glass = Smaller(button, kFace);
    dc.FillSolidRect(glass, kScreenBackground);
    {
        const CFill fill(dc, shown ? kScreenMark : kScreenDark);
        DrawMark(dc, mark, Smaller(glass, kMargin));
    }
    if ((item.itemState & ODS_FOCUS) != 0)
        dc.DrawFocusRect(Smaller(button, kEdge));
}

void DrawSwatch(const DRAWITEMSTRUCT& item, COLORREF color, const CString& name)
{
    constexpr int kMargin = 2;
    CDC& dc = *CDC::FromHandle(item.hDC);
    const CRect place = item.rcItem;
    const bool selected = (item.itemState & ODS_SELECTED) != 0;
    const bool disabled = (item.itemState & ODS_DISABLED) != 0;
    dc.FillSolidRect(place, ::GetSysColor(disabled ? COLOR_BTNFACE : selected ? COLOR_HIGHLIGHT : COLOR_WINDOW));
    CRect swatch = Smaller(place, kMargin);
    swatch.right = swatch.left + 2 * swatch.Height();
    dc.FillSolidRect(swatch, ::GetSysColor(COLOR_BTNSHADOW));
    dc.FillSolidRect(Smaller(swatch, 1), disabled ? ::GetSysColor(COLOR_BTNFACE) : color);
    dc.SetBkMode(TRANSPARENT);
    dc.SetTextColor(::GetSysColor(disabled ? COLOR_GRAYTEXT : selected ? COLOR_HIGHLIGHTTEXT : COLOR_WINDOWTEXT));
    CRect text = place;
    text.left = swatch.right + 2 * kMargin;
    dc.DrawText(name, text, DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX);
    if ((item.itemState & ODS_FOCUS) != 0)
        dc.DrawFocusRect(place);
}
