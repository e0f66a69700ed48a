#include "afx/Controls.h"

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
// Both kinds of lists tell a text's length first and then the text.
template <class LIST>
void ReadItem(const LIST& list, int (LIST::*read)(int, LPSTR) const, int index, int length, CString& text)
{
    (list.*read)(index, text.GetBufferSetLength(std::max(length, 0)));
    text.ReleaseBuffer(std::max(length, 0));
}
} // namespace

void CComboBox::GetLBText(int index, CString& text) const
{
    ReadItem<CComboBox>(*this, &CComboBox::GetLBText, index, GetLBTextLen(index), text);
}

void CListBox::GetText(int index, CString& text) const
{
    ReadItem<CListBox>(*this, &CListBox::GetText, index, GetTextLen(index), text);
}
