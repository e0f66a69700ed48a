#include "afx/Clipboard.h"

#include "afx/CodePage.h"

#include <algorithm>
#include <cstring>

namespace
{

// Closes the clipboard at its end.
class COpenClipboard
{
public:
    explicit COpenClipboard(CWnd* owner) : m_isOpen(::OpenClipboard(owner->m_hWnd)) {}
    ~COpenClipboard()
    {
        if (m_isOpen)
            ::CloseClipboard();
    }
    COpenClipboard(const COpenClipboard&) = delete;
    COpenClipboard& operator=(const COpenClipboard&) = delete;

    explicit operator bool() const { return m_isOpen; }

private:
    BOOL m_isOpen;
};

} // namespace

BOOL AfxIsClipboardText() { return ::IsClipboardFormatAvailable(CF_UNICODETEXT); }

BOOL AfxGetClipboardText(CWnd* owner, CString& text)
{
    const COpenClipboard clipboard(owner);
    const HANDLE data = clipboard ? ::GetClipboardData(CF_UNICODETEXT) : nullptr;
    const auto* content = data ? static_cast<LPCWSTR>(::GlobalLock(data)) : nullptr;
    if (!content)
        return FALSE;
    // What other programs leave need not be terminated.
    const LPCWSTR last = content + ::GlobalSize(data) / sizeof(WCHAR);
    text = AfxNarrow(content, static_cast<int>(std::find(content, last, WCHAR(0)) - content));
    ::GlobalUnlock(data);
    return TRUE;
}

BOOL AfxSetClipboardText(CWnd* owner, LPCSTR text)
{
    const COpenClipboard clipboard(owner);
    const CWideText wide(text);
    const size_t size = static_cast<size_t>(wide.GetLength() + 1) * sizeof(WCHAR);
    const HGLOBAL data = clipboard && ::EmptyClipboard() ? ::GlobalAlloc(GMEM_MOVEABLE, size) : nullptr;
    if (!data)
        return FALSE;
    std::memcpy(::GlobalLock(data), wide, size);
    ::GlobalUnlock(data);
    if (::SetClipboardData(CF_UNICODETEXT, data)) // which takes the memory over
        return TRUE;
    ::GlobalFree(data);
    return FALSE;
}
