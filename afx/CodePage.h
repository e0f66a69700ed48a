// Narrow texts and the windows, which hold wide ones.
//
// The library's narrow texts are in one code page, that of the language library in use, and it need not be the
// system's: a Japanese library can be read on an English system. So no text passes the narrow functions of the system
// on its way to a window, a message box, a menu, the clipboard or a drawing, nor on its way back: the classes of this
// folder turn it into a wide one and back, by means of what stands here. Where both pages are the same nothing is
// different.
//
// Two things go by the system's page instead: what the host gave us (its name, paths), and messages that are sent by
// SendMessage with a text of one's own.
#pragma once

#include "afx/String.h"

/// The code page of narrow texts: a number such as 932, or CP_ACP for the system's.
AFX_API UINT AfxGetTextPage();
/// Makes a code page the one of narrow texts; returns the one before.
AFX_API UINT AfxSetTextPage(UINT page);

/// Narrow texts are in a code page while it lives.
class CTextPage
{
public:
    explicit CTextPage(UINT page) : m_before(AfxSetTextPage(page)) {}
    ~CTextPage() { AfxSetTextPage(m_before); }
    CTextPage(const CTextPage&) = delete;
    CTextPage& operator=(const CTextPage&) = delete;

private:
    UINT m_before;
};

/// The code page that the texts of a module are in, by the language that one of its strings stands in. English fits all
/// of them and goes by the system's (CP_ACP), as do a language without a page and a page that this system does not
/// know.
UINT AfxPageOfString(HINSTANCE module, UINT id);

/// Room for a wide text; a short one needs no allocation. Throws a CMemoryException.
class AFX_API CWideBuffer
{
public:
    explicit CWideBuffer(int size);
    CWideBuffer(const CWideBuffer&) = delete;
    CWideBuffer& operator=(const CWideBuffer&) = delete;

    LPWSTR Get() const { return m_text; }

private:
    static constexpr int kBrief = 512;

    WCHAR m_brief[kBrief];
    CString m_long;
    LPWSTR m_text;
};

/// A narrow text made wide, for a function of the system. It does not allocate below 512 characters.
class AFX_API CWideText
{
public:
    /// With length -1 the text is terminated, and null stays null.
    explicit CWideText(LPCSTR text, int length = -1, UINT page = AfxGetTextPage());

    operator LPCWSTR() const { return m_isNull ? nullptr : m_buffer.Get(); }
    int GetLength() const { return m_length; }

private:
    bool m_isNull;
    int m_length;
    CWideBuffer m_buffer;
};

/// A wide text made narrow; a character that the page lacks becomes a question mark.
AFX_API CString AfxNarrow(LPCWSTR text, int length, UINT page = AfxGetTextPage());
/// The same in a buffer of `size` bytes, cut after a whole character and always terminated. Returns the length.
int AfxNarrow(LPCWSTR text, int length, LPSTR buffer, int size);

/// Whether a window shows exactly this text: what it shows may have no narrow form.
BOOL AfxShows(const class CWnd* window, LPCSTR text);
