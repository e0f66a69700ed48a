#include "afx/Clipboard.h"

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

BOOL AfxIsClipboardText() { return ::IsClipboardFormatAvailable(CF_TEXT); }

BOOL AfxGetClipboardText(CWnd* owner, CString& text)
{
    const COpenClipboard clipboard(owner);
    const HANDLE data = clipboard ? ::GetClipboardData(CF_TEXT) : nullptr;
    const auto* content = data ? static_cast<LPCSTR>(::GlobalLock(data)) : nullptr;
    if (!content)
        return FALSE;
    // What other programs leave need not be terminated.
    const void* end = std::memchr(content, '\0', ::GlobalSize(data));
    text = CString(content, static_cast<int>(end ? static_cast<LPCSTR>(end) - content : ::GlobalSize(data)));
    ::GlobalUnlock(data);
    return TRUE;
}

BOOL AfxSetClipboardText(CWnd* owner, LPCSTR text)
{
    const COpenClipboard clipboard(owner);
    const size_t size = std::strlen(text) + 1;
    const HGLOBAL data = clipboard && ::EmptyClipboard() ? ::GlobalAlloc(GMEM_MOVEABLE, size) : nullptr;
    if (!data)
        return FALSE;
    std::memcpy(::GlobalLock(data), text, size);
    ::GlobalUnlock(data);
    if (::SetClipboardData(CF_TEXT, data)) // which takes the memory over
        return TRUE;
    ::GlobalFree(data);
    return FALSE;
}
