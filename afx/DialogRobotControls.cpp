// Looking at the controls of a dialog, and acting on them.
#include "afx/DialogRobotWindows.h"

#include <algorithm>
#include <cstring>

using namespace robot;

namespace
{
// Combo boxes and list boxes answer the same questions by different messages.
struct SListMessages
{
    UINT getCount;
    UINT getSelection;
    UINT setSelection;
    UINT getTextLength;
    UINT getText;
    UINT selectionChanged;
};

SListMessages ListMessages(HWND list)
{
    if (HasClass(list, "ComboBox"))
        return {CB_GETCOUNT, CB_GETCURSEL, CB_SETCURSEL, CB_GETLBTEXTLEN, CB_GETLBTEXT, CBN_SELCHANGE};
    return {LB_GETCOUNT, LB_GETCURSEL, LB_SETCURSEL, LB_GETTEXTLEN, LB_GETTEXT, LBN_SELCHANGE};
}

CString ItemText(HWND list, int index)
{
    const SListMessages messages = ListMessages(list);
    const LRESULT length = SendMessageW(list, messages.getTextLength, static_cast<WPARAM>(index), 0);
    std::vector<WCHAR> text(static_cast<size_t>(std::max<LRESULT>(length, 0)) + 1);
    SendMessageW(list, messages.getText, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(text.data()));
    return AfxNarrow(text.data(), static_cast<int>(text.size()) - 1);
}

// As the Tab key moves it, so that the default button follows and an edit selects its text.
void FocusControl(HWND control)
{
    SendMessageA(GetParent(control), WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(control), TRUE);
}
} // namespace

// ---- Looking --------------------------------------------------------------------------------------------------------

CWnd* CDialogRobot::Dialog() const { return Current() == nullptr ? nullptr : CWnd::FromHandle(Current()); }

CString CDialogRobot::Caption() const
{
    const CInside inside(true);
    return WindowText(Current());
}

bool CDialogRobot::IsMessageBox() const { return IsBox(Current()); }

bool CDialogRobot::IsOpen() const { return IsStillOpen(Current()); }

bool CDialogRobot::Exists(UINT id) const { return GetDlgItem(Current(), static_cast<int>(id)) != nullptr; }

HWND CDialogRobot::Control(UINT id)
{
    HWND control = GetDlgItem(Current(), static_cast<int>(id));
    if (control == nullptr)
        Fail(Format("There is no control %u.", id));
    return control;
}

CString CDialogRobot::Text(UINT id)
{
    const CInside inside(true);
    if (id == 0)
        return BoxText(Current());
    HWND control = Control(id);
    return control == nullptr ? CString() : WindowText(control);
}

bool CDialogRobot::Enabled(UINT id)
{
    const CInside inside(true);
    HWND control = Control(id);
    return control != nullptr && IsWindowEnabled(control);
}

bool CDialogRobot::Visible(UINT id)
{
    const CInside inside(true);
    HWND control = Control(id);
    return control != nullptr && (StyleOf(control) & WS_VISIBLE) != 0;
}

bool CDialogRobot::Checked(UINT id)
{
    const CInside inside(true);
    HWND control = Control(id);
    return control != nullptr && SendMessageA(control, BM_GETCHECK, 0, 0) == BST_CHECKED;
}

int CDialogRobot::Selection(UINT id)
{
    const CInside inside(true);
    HWND list = Control(id);
    return list == nullptr ? -1 : static_cast<int>(SendMessageA(list, ListMessages(list).getSelection, 0, 0));
}

std::vector<CString> CDialogRobot::Items(UINT id)
{
    const CInside inside(true);
    std::vector<CString> items;
    HWND list = Control(id);
    if (list == nullptr)
        return items;
    const SListMessages messages = ListMessages(list);
    const LRESULT count = SendMessageA(list, messages.getCount, 0, 0);
    for (LRESULT i = 0; i < count; ++i)
        items.push_back(ItemText(list, static_cast<int>(i)));
    return items;
}

int CDialogRobot::Limit(UINT id)
{
    HWND edit = Control(id);
    return edit == nullptr ? 0 : static_cast<int>(SendMessageA(edit, EM_GETLIMITTEXT, 0, 0));
}

std::pair<int, int> CDialogRobot::SelectedRange(UINT id)
{
    DWORD first = 0;
    DWORD last = 0;
    if (HWND edit = Control(id))
        SendMessageA(edit, EM_GETSEL, reinterpret_cast<WPARAM>(&first), reinterpret_cast<LPARAM>(&last));
    return {static_cast<int>(first), static_cast<int>(last)};
}

UINT CDialogRobot::FocusId() const
{
    // The focus may be in a part of the control, such as the edit of a combo box.
    HWND focus = GetFocus();
    while (focus != nullptr && GetParent(focus) != Current())
        focus = (StyleOf(focus) & WS_CHILD) != 0 ? GetParent(focus) : nullptr;
    return focus == nullptr ? 0 : IdOf(focus);
}

std::vector<SRobotControl> CDialogRobot::Controls() const
{
    const CInside inside(true);
    std::vector<SRobotControl> controls;
    for (HWND child : Children(Current()))
    {
        RECT rect = {};
        GetWindowRect(child, &rect);
        MapWindowPoints(nullptr, Current(), reinterpret_cast<POINT*>(&rect), 2);
        const DWORD style = StyleOf(child);
        controls.push_back({IdOf(child), ClassName(child), WindowText(child), style, IsWindowEnabled(child) != FALSE,
                            (style & WS_VISIBLE) != 0, rect});
    }
    return controls;
}

// ---- Acting ---------------------------------------------------------------------------------------------------------

HWND CDialogRobot::UsableControl(UINT id)
{
    HWND control = Control(id);
    if (control == nullptr)
        return nullptr;
    const LPCSTR obstacle = !IsOpen()                              ? "cannot be used: the dialog has been ended"
                            : !IsWindowEnabled(control)            ? "is disabled"
                            : (StyleOf(control) & WS_VISIBLE) == 0 ? "is hidden"
                                                                   : nullptr;
    if (obstacle == nullptr)
        return control;
    Fail(Format("Control %u %s.", id, obstacle));
    return nullptr;
}

void CDialogRobot::Notify(UINT id, HWND control, UINT code)
{
    const HWND dialog = Current();
    Outside([&] { return SendMessageA(dialog, WM_COMMAND, MAKEWPARAM(id, code), reinterpret_cast<LPARAM>(control)); });
}

void CDialogRobot::Type(UINT id, LPCSTR text)
{
    const CInside inside(true);
    HWND edit = UsableControl(id);
    if (edit == nullptr)
        return;
    Outside([&] {
        FocusControl(edit);
        SendMessageA(edit, EM_SETSEL, 0, -1);
        SendMessageA(edit, WM_CLEAR, 0, 0);
    });
    const CWideText typed(text);
    for (int i = 0; i < typed.GetLength(); ++i)
        PostMessageW(edit, WM_CHAR, static_cast<LPCWSTR>(typed)[i], 1);
    Pump();
}

void CDialogRobot::SetText(UINT id, LPCSTR text)
{
    const CInside inside(true);
    if (HWND control = UsableControl(id))
        Outside([&] { SetWindowTextW(control, CWideText(text)); });
}

void CDialogRobot::Select(UINT id, int index)
{
    const CInside inside(true);
    HWND list = UsableControl(id);
    if (list == nullptr)
        return;
    const SListMessages messages = ListMessages(list);
    if (index < 0 || index >= SendMessageA(list, messages.getCount, 0, 0))
    {
        Fail(Format("The list %u has no item %d.", id, index));
        return;
    }
    Outside([&] {
        FocusControl(list);
        SendMessageA(list, messages.setSelection, static_cast<WPARAM>(index), 0);
    });
    if (messages.getCount == CB_GETCOUNT || (StyleOf(list) & LBS_NOTIFY) != 0)
        Notify(id, list, messages.selectionChanged);
}

void CDialogRobot::SelectText(UINT id, LPCSTR text)
{
    const CInside inside(true);
    if (UsableControl(id) == nullptr)
        return;
    const std::vector<CString> items = Items(id);
    const auto item = std::find(items.begin(), items.end(), text);
    if (item == items.end())
        Fail(Format("The list %u has no item \"%s\".", id, text));
    else
        Select(id, static_cast<int>(item - items.begin()));
}

void CDialogRobot::Click(UINT id)
{
    const CInside inside(true);
    HWND button = UsableControl(id);
    if (button == nullptr)
        return;
    if (IsMessageBox())
        m_boxes.back().answer = id;
    ClickButton(button);
}

void CDialogRobot::Check(UINT id, bool checked)
{
    const CInside inside(true);
    if (UsableControl(id) != nullptr && Checked(id) != checked)
        Click(id);
}

void CDialogRobot::DoubleClick(UINT id)
{
    const CInside inside(true);
    HWND list = UsableControl(id);
    if (list != nullptr && (StyleOf(list) & LBS_NOTIFY) != 0)
        Notify(id, list, LBN_DBLCLK);
}

void CDialogRobot::Focus(UINT id)
{
    const CInside inside(true);
    if (HWND control = UsableControl(id))
        Outside([&] { FocusControl(control); });
}

void CDialogRobot::PressKey(UINT key, std::initializer_list<UINT> held)
{
    const CInside inside(true);
    const HWND focus = GetFocus();
    const HWND target = focus != nullptr ? focus : Current();

    BYTE keys[256] = {};
    GetKeyboardState(keys);
    BYTE pressed[256];
    std::copy(std::begin(keys), std::end(keys), pressed);
    for (UINT modifier : {VK_SHIFT, VK_CONTROL, VK_MENU}) // a busy system may still take one for held
        pressed[modifier] = 0;
    for (UINT modifier : held)
        pressed[modifier] = 0x80;

    SetKeyboardState(pressed);
    PostMessageA(target, WM_KEYDOWN, key, 1);
    PostMessageA(target, WM_KEYUP, key, static_cast<LPARAM>(0xC0000001));
    Pump();
    SetKeyboardState(keys);
}

void CDialogRobot::Paste(LPCSTR text)
{
    const CInside inside(true);
    const CWideText wide(text);
    const size_t size = static_cast<size_t>(wide.GetLength() + 1) * sizeof(WCHAR);
    const HGLOBAL data = GlobalAlloc(GMEM_MOVEABLE, size);
    std::memcpy(GlobalLock(data), wide, size);
    GlobalUnlock(data);
    const bool opened = OpenClipboard(Current()) && EmptyClipboard();
    if (!opened || SetClipboardData(CF_UNICODETEXT, data) == nullptr)
    {
        GlobalFree(data);
        Fail("The clipboard cannot be used.");
    }
    if (opened)
        CloseClipboard();
    PressKey('V', {VK_CONTROL});
}

CString CDialogRobot::ClickAndAnswer(UINT id, UINT answer)
{
    const CInside inside(true);
    return Answering(answer, [=, this] { Click(id); });
}
