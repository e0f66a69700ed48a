#include "afx/Controls.h"

#include "afx/CodePage.h"

#include <algorithm>

IMPLEMENT_DYNAMIC(CStatic, CWnd)
IMPLEMENT_DYNAMIC(CButton, CWnd)
IMPLEMENT_DYNAMIC(CEdit, CWnd)
IMPLEMENT_DYNAMIC(CComboBox, CWnd)
IMPLEMENT_DYNAMIC(CListBox, CWnd)
IMPLEMENT_DYNAMIC(CScrollBar, CWnd)

// Temporary objects are plain windows that are used as these.
static_assert(sizeof(CStatic) == sizeof(CWnd) && sizeof(CButton) == sizeof(CWnd) && sizeof(CEdit) == sizeof(CWnd) &&
              sizeof(CComboBox) == sizeof(CWnd) && sizeof(CListBox) == sizeof(CWnd) &&
              sizeof(CScrollBar) == sizeof(CWnd));

namespace
{
int AddItem(HWND list, UINT message, LPCSTR text)
{
    const CWideText wide(text);
    return static_cast<int>(::SendMessageW(list, message, 0, reinterpret_cast<LPARAM>(static_cast<LPCWSTR>(wide))));
}

// Both kinds of lists tell a text's length first and then the text.
void ReadItem(HWND list, UINT lengthMessage, UINT textMessage, int index, CString& text)
{
    const auto item = static_cast<WPARAM>(index);
    const auto length = static_cast<int>(::SendMessageW(list, lengthMessage, item, 0));
    const CWideBuffer shown(std::max(length, 0) + 1);
    ::SendMessageW(list, textMessage, item, reinterpret_cast<LPARAM>(shown.Get()));
    text = AfxNarrow(shown.Get(), std::max(length, 0));
}
} // namespace

int CComboBox::AddString(LPCSTR text) { return AddItem(m_hWnd, CB_ADDSTRING, text); }

void CComboBox::GetLBText(int index, CString& text) const
{
    ReadItem(m_hWnd, CB_GETLBTEXTLEN, CB_GETLBTEXT, index, text);
}

int CListBox::AddString(LPCSTR text) { return AddItem(m_hWnd, LB_ADDSTRING, text); }

void CListBox::GetText(int index, CString& text) const { ReadItem(m_hWnd, LB_GETTEXTLEN, LB_GETTEXT, index, text); }
