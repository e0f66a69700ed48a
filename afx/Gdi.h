// Drawing objects and device contexts. Creating operations return FALSE on failure. An object made here owns its handle
// and deletes it with itself; FromHandle gives a temporary object, valid until the running message handler returns.
#pragma once

#include "afx/Geometry.h"
#include "afx/Object.h"
#include "afx/String.h"

class CDC;
class CWnd;

class AFX_API CGdiObject : public CObject
{
    DECLARE_DYNAMIC(CGdiObject)

    CGdiObject() = default;
    ~CGdiObject() override { DeleteObject(); }

    static CGdiObject* PASCAL FromHandle(HGDIOBJ object);

    operator HGDIOBJ() const { return m_hObject; }
    HGDIOBJ GetSafeHandle() const { return m_hObject; }
    /// Takes a handle over; the object must be empty.
    BOOL Attach(HGDIOBJ object);
    /// Gives the handle away.
    HGDIOBJ Detach();
    BOOL DeleteObject();
    int GetObject(int size, LPVOID description) const { return ::GetObjectA(m_hObject, size, description); }

    HGDIOBJ m_hObject = nullptr;
};

class AFX_API CFont : public CGdiObject
{
    DECLARE_DYNAMIC(CFont)

    static CFont* PASCAL FromHandle(HFONT font) { return static_cast<CFont*>(CGdiObject::FromHandle(font)); }
    operator HFONT() const { return static_cast<HFONT>(m_hObject); }

    BOOL CreateFontIndirect(const LOGFONTA* font) { return Attach(::CreateFontIndirectA(font)); }
    /// `tenths` of a point, for the given device or the screen.
    BOOL CreatePointFont(int tenths, LPCSTR faceName, CDC* dc = nullptr);
    /// Takes lfHeight as tenths of a point.
    BOOL CreatePointFontIndirect(const LOGFONTA* font, CDC* dc = nullptr);
    int GetLogFont(LOGFONTA* font) const { return GetObject(sizeof *font, font); }
};

class AFX_API CBrush : public CGdiObject
{
    DECLARE_DYNAMIC(CBrush)

    CBrush() = default;
    /// Throws a CResourceException on failure.
    explicit CBrush(COLORREF color);

    static CBrush* PASCAL FromHandle(HBRUSH brush) { return static_cast<CBrush*>(CGdiObject::FromHandle(brush)); }
    operator HBRUSH() const { return static_cast<HBRUSH>(m_hObject); }
    BOOL CreateSolidBrush(COLORREF color) { return Attach(::CreateSolidBrush(color)); }
};

class AFX_API CPen : public CGdiObject
{
    DECLARE_DYNAMIC(CPen)

    CPen() = default;
    /// Throws a CResourceException on failure.
    CPen(int style, int width, COLORREF color);

    static CPen* PASCAL FromHandle(HPEN pen) { return static_cast<CPen*>(CGdiObject::FromHandle(pen)); }
    operator HPEN() const { return static_cast<HPEN>(m_hObject); }
    BOOL CreatePen(int style, int width, COLORREF color) { return Attach(::CreatePen(style, width, color)); }
};

class AFX_API CDC : public CObject
{
    DECLARE_DYNAMIC(CDC)

    CDC() = default;
    ~CDC() override { DeleteDC(); }

    static CDC* PASCAL FromHandle(HDC dc);

    operator HDC() const { return m_hDC; }
    HDC GetSafeHdc() const { return m_hDC; }
    BOOL Attach(HDC dc);
    HDC Detach();
    /// Deletes a context of one's own; those of windows are released instead.
    BOOL DeleteDC();
    int SaveDC() { return ::SaveDC(m_hDC); }
    BOOL RestoreDC(int saved) { return ::RestoreDC(m_hDC, saved); }
    int GetDeviceCaps(int index) const { return ::GetDeviceCaps(m_hDC, index); }

    // Return the object selected before, as a temporary one; null on failure.
    CGdiObject* SelectObject(CGdiObject* object);
    CFont* SelectObject(CFont* font) { return static_cast<CFont*>(SelectObject(static_cast<CGdiObject*>(font))); }
    CBrush* SelectObject(CBrush* brush) { return static_cast<CBrush*>(SelectObject(static_cast<CGdiObject*>(brush))); }
    CPen* SelectObject(CPen* pen) { return static_cast<CPen*>(SelectObject(static_cast<CGdiObject*>(pen))); }
    CGdiObject* SelectStockObject(int index) { return SelectObject(CGdiObject::FromHandle(::GetStockObject(index))); }

    COLORREF SetTextColor(COLORREF color) { return ::SetTextColor(m_hDC, color); }
    COLORREF SetBkColor(COLORREF color) { return ::SetBkColor(m_hDC, color); }
    int SetBkMode(int mode) { return ::SetBkMode(m_hDC, mode); }

    /// The size of a text in one line; empty on failure.
    CSize GetTextExtent(LPCSTR text, int length) const;
    CSize GetTextExtent(const CString& text) const { return GetTextExtent(text, text.GetLength()); }
    BOOL GetTextMetrics(TEXTMETRICA* metrics) const { return ::GetTextMetricsA(m_hDC, metrics); }
    BOOL TextOut(int x, int y, const CString& text);
    int DrawText(const CString& text, LPRECT rect, UINT format);

    void FillRect(LPCRECT rect, CBrush* brush) { ::FillRect(m_hDC, rect, *brush); }
    void FillSolidRect(LPCRECT rect, COLORREF color);
    void FrameRect(LPCRECT rect, CBrush* brush) { ::FrameRect(m_hDC, rect, *brush); }
    void DrawFocusRect(LPCRECT rect) { ::DrawFocusRect(m_hDC, rect); }
    BOOL Rectangle(LPCRECT rect) { return ::Rectangle(m_hDC, rect->left, rect->top, rect->right, rect->bottom); }
    BOOL Ellipse(LPCRECT rect) { return ::Ellipse(m_hDC, rect->left, rect->top, rect->right, rect->bottom); }
    BOOL Polygon(const POINT* points, int count) { return ::Polygon(m_hDC, points, count); }
    void MoveTo(int x, int y) { ::MoveToEx(m_hDC, x, y, nullptr); }
    BOOL LineTo(int x, int y) { return ::LineTo(m_hDC, x, y); }

    HDC m_hDC = nullptr;
};

// Contexts of a window, or of the screen for null. They are released with the object; the constructors throw a
// CResourceException when there is none.

class AFX_API CClientDC : public CDC
{
    DECLARE_DYNAMIC(CClientDC)

    explicit CClientDC(CWnd* window);
    ~CClientDC() override;

private:
    HWND m_hWnd;
};

/// For handlers of WM_PAINT: the window counts as painted when the object is gone.
class AFX_API CPaintDC : public CDC
{
    DECLARE_DYNAMIC(CPaintDC)

    explicit CPaintDC(CWnd* window);
    ~CPaintDC() override;

    PAINTSTRUCT m_ps;

private:
    HWND m_hWnd;
};
