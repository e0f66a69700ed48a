#include "afx/DialogRobotWindows.h"

namespace robot
{
namespace
{
bool g_inside = false;

BOOL CALLBACK AddWindow(HWND window, LPARAM list)
{
    reinterpret_cast<std::vector<HWND>*>(list)->push_back(window);
    return TRUE;
}
} // namespace

bool CInside::Get() { return g_inside; }

bool CInside::Set(bool inside) { return std::exchange(g_inside, inside); }

CString WindowText(HWND window)
{
    std::vector<WCHAR> text(static_cast<size_t>(GetWindowTextLengthW(window)) + 1);
    return AfxNarrow(text.data(), GetWindowTextW(window, text.data(), static_cast<int>(text.size())));
}

CString ClassName(HWND window)
{
    char name[80] = "";
    GetClassNameA(window, name, sizeof name);
    return CString(name);
}

bool HasClass(HWND window, LPCSTR name) { return ClassName(window).CompareNoCase(name) == 0; }

DWORD StyleOf(HWND window) { return static_cast<DWORD>(GetWindowLongA(window, GWL_STYLE)); }

UINT IdOf(HWND control) { return static_cast<UINT>(GetDlgCtrlID(control)) & 0xFFFF; }

bool IsDialog(HWND window) { return HasClass(window, "#32770"); }

bool IsBox(HWND window) { return IsDialog(window) && CWnd::FromHandlePermanent(window) == nullptr; }

bool IsStillOpen(HWND window) { return IsWindow(window) && IsWindowVisible(window); }

std::vector<HWND> TopLevelWindows()
{
    std::vector<HWND> windows;
    EnumThreadWindows(GetCurrentThreadId(), AddWindow, reinterpret_cast<LPARAM>(&windows));
    return windows;
}

std::vector<HWND> Children(HWND window)
{
    std::vector<HWND> children;
    for (HWND child = GetWindow(window, GW_CHILD); child != nullptr; child = GetWindow(child, GW_HWNDNEXT))
        children.push_back(child);
    return children;
}

// The id of the text differs from system to system: it is the one static control that is no icon.
CString BoxText(HWND box)
{
    for (HWND child : Children(box))
    {
        if (HasClass(child, "Static") && (StyleOf(child) & SS_TYPEMASK) != SS_ICON)
            return WindowText(child);
    }
    return CString();
}

// The system's icons exist once each, so that their handles tell them apart.
UINT BoxIcon(HWND box)
{
    struct SIcon
    {
        UINT flag;
        LPCSTR name;
    };
    const SIcon icons[] = {{MB_ICONHAND, IDI_HAND},
                           {MB_ICONQUESTION, IDI_QUESTION},
                           {MB_ICONEXCLAMATION, IDI_EXCLAMATION},
                           {MB_ICONASTERISK, IDI_ASTERISK}};
    for (HWND child : Children(box))
    {
        const auto shown = reinterpret_cast<HICON>(SendMessageA(child, STM_GETICON, 0, 0));
        for (const SIcon& icon : icons)
        {
            if (shown != nullptr && HasClass(child, "Static") && shown == LoadIconA(nullptr, icon.name))
                return icon.flag;
        }
    }
    return 0;
}

CString Describe(HWND window)
{
    if (IsBox(window))
        return Format("message box \"%s\": \"%s\"", WindowText(window), BoxText(window));
    return Format("dialog \"%s\"", WindowText(window));
}

std::vector<UINT> BoxButtons(HWND box)
{
    std::vector<UINT> buttons;
    for (UINT id : {IDCANCEL, IDNO, IDABORT, IDIGNORE, IDOK, IDYES, IDRETRY})
    {
        HWND button = GetDlgItem(box, static_cast<int>(id));
        if (button != nullptr && IsWindowEnabled(button))
            buttons.push_back(id);
    }
    return buttons;
}

void ClickButton(HWND button)
{
    Outside([&] { return SendMessageA(button, BM_CLICK, 0, 0); });
}
} // namespace robot
