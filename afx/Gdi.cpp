#include "afx/Gdi.h"

#include "afx/CodePage.h"
#include "afx/ThreadState.h"

#include <cstdlib>

IMPLEMENT_DYNAMIC(CGdiObject, CObject)
IMPLEMENT_DYNAMIC(CFont, CGdiObject)
IMPLEMENT_DYNAMIC(CBrush, CGdiObject)
IMPLEMENT_DYNAMIC(CPen, CGdiObject)
IMPLEMENT_DYNAMIC(CDC, CObject)
IMPLEMENT_DYNAMIC(CClientDC, CDC)
IMPLEMENT_DYNAMIC(CPaintDC, CDC)

namespace
{

HWND HandleOf(CWnd* window) { return window ? window->m_hWnd : nullptr; }

void AttachOrThrow(CDC& dc, HDC handle)
{
    if (!dc.Attach(handle))
        AfxThrowResourceException();
}

} // namespace

STemporaries& AfxTemporaries() { return AfxThreadState().temporaries; }

// ---- Objects --------------------------------------------------------------------------------------------------------

CGdiObject* PASCAL CGdiObject::FromHandle(HGDIOBJ object) { return AfxTemporaries().gdiObjects.FromHandle(object); }

BOOL CGdiObject::Attach(HGDIOBJ object)
{
    ASSERT(!m_hObject);
    m_hObject = object;
    return object != nullptr;
}

HGDIOBJ CGdiObject::Detach() { return std::exchange(m_hObject, nullptr); }

BOOL CGdiObject::DeleteObject() { return m_hObject && ::DeleteObject(Detach()); }

BOOL CFont::CreatePointFont(int tenths, LPCSTR faceName, CDC* dc)
{
    LOGFONTA font = {};
    font.lfCharSet = DEFAULT_CHARSET;
    font.lfHeight = tenths;
    ::lstrcpynA(font.lfFaceName, faceName, LF_FACESIZE);
    return CreatePointFontIndirect(&font, dc);
}

BOOL CFont::CreatePointFontIndirect(const LOGFONTA* font, CDC* dc)
{
    const HDC device = dc ? dc->m_hDC : ::GetDC(nullptr);
    POINT points[2] = {{0, 0}, {0, ::GetDeviceCaps(device, LOGPIXELSY) * font->lfHeight / 720}};
    ::DPtoLP(device, points, 2);
    if (!dc)
        ::ReleaseDC(nullptr, device);

    LOGFONTA logical = *font;
    logical.lfHeight = -std::abs(points[1].y - points[0].y); // negative: without the space above the characters
    return CreateFontIndirect(&logical);
}

CBrush::CBrush(COLORREF color)
{
    if (!CreateSolidBrush(color))
        AfxThrowResourceException();
}

CPen::CPen(int style, int width, COLORREF color)
{
    if (!CreatePen(style, width, color))
        AfxThrowResourceException();
}

// ---- Device contexts ------------------------------------------------------------------------------------------------

CDC* PASCAL CDC::FromHandle(HDC dc) { return AfxTemporaries().contexts.FromHandle(dc); }

BOOL CDC::Attach(HDC dc)
{
    ASSERT(!m_hDC);
    m_hDC = dc;
    return dc != nullptr;
}

HDC CDC::Detach() { return std::exchange(m_hDC, nullptr); }

BOOL CDC::DeleteDC() { return m_hDC && ::DeleteDC(Detach()); }

CGdiObject* CDC::SelectObject(CGdiObject* object)
{
    return object ? CGdiObject::FromHandle(::SelectObject(m_hDC, object->m_hObject)) : nullptr;
}

CSize CDC::GetTextExtent(LPCSTR text, int length) const
{
    CSize size;
    const CWideText wide(text, length);
    ::GetTextExtentPoint32W(m_hDC, wide, wide.GetLength(), &size);
    return size;
}

BOOL CDC::TextOut(int x, int y, const CString& text)
{
    const CWideText wide(text, text.GetLength());
    return ::TextOutW(m_hDC, x, y, wide, wide.GetLength());
}

int CDC::DrawText(const CString& text, LPRECT rect, UINT format)
{
    const CWideText wide(text, text.GetLength());
    return ::DrawTextW(m_hDC, wide, wide.GetLength(), rect, format);
}

void CDC::FillSolidRect(LPCRECT rect, COLORREF color)
{
    SetBkColor(color);
    ::ExtTextOutW(m_hDC, 0, 0, ETO_OPAQUE, rect, nullptr, 0, nullptr);
}

CClientDC::CClientDC(CWnd* window) : m_hWnd(HandleOf(window)) { AttachOrThrow(*this, ::GetDC(m_hWnd)); }

CClientDC::~CClientDC() { ::ReleaseDC(m_hWnd, Detach()); }

CPaintDC::CPaintDC(CWnd* window) : m_hWnd(window->m_hWnd) { AttachOrThrow(*this, ::BeginPaint(m_hWnd, &m_ps)); }

CPaintDC::~CPaintDC()
{
    ::EndPaint(m_hWnd, &m_ps);
    Detach();
}
