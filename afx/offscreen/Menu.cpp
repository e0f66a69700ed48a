// Menus: what they hold, and the modal loop of a popup menu.

#include "afx/offscreen/Internal.h"

namespace offscreen
{
namespace
{
struct MenuItem
{
    UINT flags = 0;
    UINT_PTR id = 0;
    std::u16string text;
};

struct Menu
{
    std::vector<MenuItem> items;
};

constexpr char16_t kMenuClass[] = u"#32768"; // The window of an open menu
constexpr UINT MN_GETHMENU = 0x01E1;
constexpr UINT kModelledFlags = MF_STRING | MF_SEPARATOR | MF_GRAYED | MF_DISABLED;

struct MenuState
{
    HandleTable<Menu> menus{4};
    bool tracking = false;
};

MenuState& State()
{
    static auto* state = new MenuState;
    return *state;
}

Menu* MenuOf(HMENU handle)
{
    Menu* menu = State().menus.Find(handle);
    if (!menu)
        SetLastError(ERROR_INVALID_MENU_HANDLE);
    return menu;
}

MenuItem* ItemOf(HMENU handle, UINT id, UINT flags)
{
    Menu* menu = MenuOf(handle);
    if (!menu)
        return nullptr;
    if (flags & MF_BYPOSITION)
        return id < menu->items.size() ? &menu->items[id] : nullptr;
    for (MenuItem& item : menu->items)
        if (item.id == id && !(item.flags & MF_SEPARATOR))
            return &item;
    return nullptr;
}

// ----------------------------------------------------------------------------------------------------------- tracking

LRESULT CALLBACK MenuWindowProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    Inside inside;
    if (message == MN_GETHMENU)
        return GetWindowLongPtrW(window, GWLP_USERDATA);
    return DefWindowProcW(window, message, wParam, lParam);
}

bool CanChoose(const MenuItem& item) { return !(item.flags & (MF_SEPARATOR | MF_GRAYED | MF_DISABLED)); }

int Step(const Menu& menu, int position, int by)
{
    const int count = static_cast<int>(menu.items.size());
    for (int i = 0; i < count; ++i)
    {
        position = position < 0 ? (by > 0 ? 0 : count - 1) : (position + by + count) % count;
        if (!(menu.items[static_cast<std::size_t>(position)].flags & MF_SEPARATOR))
            return position;
    }
    return -1;
}

int ByMnemonic(const Menu& menu, WPARAM character)
{
    const char16_t wanted = UpperCase(static_cast<char16_t>(character));
    for (std::size_t i = 0; i < menu.items.size(); ++i)
        if (MnemonicOf(menu.items[i].text) == wanted)
            return static_cast<int>(i);
    return -1;
}

bool LeavesMenu(const MSG& msg)
{
    return msg.message == WM_CANCELMODE ||
           (msg.message == WM_KEYDOWN && (msg.wParam == VK_ESCAPE || msg.wParam == VK_MENU));
}

// Runs until an item is chosen (its id) or the menu is left (0).
UINT_PTR Track(HMENU handle, HWND owner, HWND window)
{
    int position = -1;
    MSG msg{};
    while (Find(owner))
    {
        if (!PeekMessageW(&msg, nullptr, 0, 0, PM_NOREMOVE))
            Send(owner, WM_ENTERIDLE, MSGF_MENU, reinterpret_cast<LPARAM>(window));
        if (!GetMessageW(&msg, nullptr, 0, 0))
        {
            PostQuitMessage(static_cast<int>(msg.wParam));
            break;
        }
        const Menu* menu = MenuOf(handle);
        if (!menu)
            continue;
        if (LeavesMenu(msg))
            break;
        int chosen = -1;
        if (msg.message == WM_KEYDOWN && msg.wParam == VK_DOWN)
            position = Step(*menu, position, 1);
        else if (msg.message == WM_KEYDOWN && msg.wParam == VK_UP)
            position = Step(*menu, position, -1);
        else if (msg.message == WM_KEYDOWN && msg.wParam == VK_RETURN)
            chosen = position;
        else if (msg.message == WM_KEYDOWN)
            TranslateMessage(&msg);
        else if (msg.message == WM_CHAR || msg.message == WM_SYSCHAR)
            chosen = ByMnemonic(*menu, msg.wParam);
        else if (msg.message != WM_KEYUP)
            DispatchMessageW(&msg);

        menu = MenuOf(handle);
        if (!menu || chosen < 0 || chosen >= static_cast<int>(menu->items.size()))
            continue;
        const MenuItem& item = menu->items[static_cast<std::size_t>(chosen)];
        if (CanChoose(item))
            return item.id;
    }
    return 0;
}
} // namespace

void ResetMenus()
{
    State().menus.Clear();
    State().tracking = false;
}

int CountMenus() { return State().menus.Count(); }
} // namespace offscreen

using namespace offscreen;

HMENU CreatePopupMenu()
{
    Inside inside;
    return State().menus.Add<HMENU>(std::make_unique<Menu>());
}

BOOL DestroyMenu(HMENU handle)
{
    Inside inside;
    if (State().menus.Remove(handle))
        return TRUE;
    SetLastError(ERROR_INVALID_MENU_HANDLE);
    return FALSE;
}

BOOL IsMenu(HMENU handle) { return State().menus.Find(handle) != nullptr; }

BOOL AppendMenuW(HMENU handle, UINT flags, UINT_PTR id, LPCWSTR text)
{
    Inside inside;
    Menu* menu = MenuOf(handle);
    if (!menu)
        return FALSE;
    if (flags & ~kModelledFlags)
        return NotModelled("menu items with these flags", FALSE);
    menu->items.push_back({flags, id, text && !(flags & MF_SEPARATOR) ? text : u""});
    return TRUE;
}

BOOL AppendMenuA(HMENU handle, UINT flags, UINT_PTR id, LPCSTR text)
{
    Inside inside;
    return AppendMenuW(handle, flags, id, Widened(text));
}

BOOL EnableMenuItem(HMENU handle, UINT id, UINT flags)
{
    Inside inside;
    MenuItem* item = ItemOf(handle, id, flags);
    if (!item)
        return -1;
    constexpr UINT kMask = MF_GRAYED | MF_DISABLED;
    const UINT before = item->flags & kMask;
    item->flags = (item->flags & ~kMask) | (flags & kMask);
    return static_cast<BOOL>(before);
}

int GetMenuItemCount(HMENU handle)
{
    Inside inside;
    const Menu* menu = MenuOf(handle);
    return menu ? static_cast<int>(menu->items.size()) : -1;
}

UINT GetMenuItemID(HMENU handle, int position)
{
    Inside inside;
    const MenuItem* item = ItemOf(handle, static_cast<UINT>(position), MF_BYPOSITION);
    return item ? static_cast<UINT>(item->id) : static_cast<UINT>(-1);
}

UINT GetMenuState(HMENU handle, UINT id, UINT flags)
{
    Inside inside;
    const MenuItem* item = ItemOf(handle, id, flags);
    return item ? item->flags : static_cast<UINT>(-1);
}

int GetMenuStringW(HMENU handle, UINT id, LPWSTR text, int size, UINT flags)
{
    Inside inside;
    const MenuItem* item = ItemOf(handle, id, flags);
    if (!item)
        return 0;
    if (!text || size <= 0)
        return static_cast<int>(item->text.size());
    return CopyText(item->text, text, static_cast<std::size_t>(size));
}

int GetMenuStringA(HMENU handle, UINT id, LPSTR text, int size, UINT flags)
{
    Inside inside;
    const MenuItem* item = ItemOf(handle, id, flags);
    if (!item)
        return 0;
    if (!text || size <= 0)
        return static_cast<int>(ToAnsi(item->text).size());
    return CopyAnsi(item->text, text, static_cast<std::size_t>(size));
}

BOOL TrackPopupMenu(HMENU handle, UINT flags, int x, int y, int, HWND owner, const RECT*)
{
    Inside inside;
    MenuState& state = State();
    if (!MenuOf(handle) || !Lookup(owner) || state.tracking)
        return FALSE;
    if (!FindClass(kMenuClass))
        RegisterBuiltIn(kMenuClass, MenuWindowProc, 0, 0x8000);
    state.tracking = true;
    const bool notify = !(flags & TPM_NONOTIFY);
    if (notify)
    {
        Send(owner, WM_ENTERMENULOOP, TRUE);
        Send(owner, WM_INITMENU, reinterpret_cast<WPARAM>(handle));
        Send(owner, WM_INITMENUPOPUP, reinterpret_cast<WPARAM>(handle));
    }
    const HWND window = CreateWindowExW(WS_EX_NOACTIVATE, kMenuClass, u"", WS_POPUP, x, y, 100,
                                        20 * std::max(GetMenuItemCount(handle), 1), owner, nullptr, nullptr, nullptr);
    SetWindowLongPtrW(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(handle));
    ShowWindow(window, SW_SHOWNA);

    const UINT_PTR chosen = Track(handle, owner, window);
    state.tracking = false;
    if (Find(window))
        DestroyWindow(window);
    if (notify && Find(owner))
    {
        Send(owner, WM_UNINITMENUPOPUP, reinterpret_cast<WPARAM>(handle));
        Send(owner, WM_MENUSELECT, MAKEWPARAM(0, 0xFFFF));
        Send(owner, WM_EXITMENULOOP, TRUE);
    }
    if (flags & TPM_RETURNCMD)
        return static_cast<BOOL>(chosen);
    if (chosen && notify)
        PostMessageW(owner, WM_COMMAND, MAKEWPARAM(chosen, 0), 0);
    return TRUE;
}
