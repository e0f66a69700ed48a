// Menus: what they hold, and the modal loop of a popup menu.

#include "afx/offscreen/Internal.h"

#include <cstring>

namespace offscreen
{
namespace
{
struct MenuItem
{
    UINT flags = 0;
    UINT_PTR id = 0; // Or the handle of the submenu
    std::string text;
};

struct Menu
{
    std::vector<MenuItem> items;
};

constexpr char kMenuClass[] = "#32768"; // The window of an open menu
constexpr UINT MN_GETHMENU = 0x01E1;

struct MenuState
{
    HandleTable<Menu> menus{4};
    bool tracking = false;
    bool ended = false;
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

HMENU Make() { return State().menus.Add<HMENU>(std::make_unique<Menu>()); }

MenuItem* ItemOf(HMENU handle, UINT id, UINT flags)
{
    Menu* menu = MenuOf(handle);
    if (!menu)
        return nullptr;
    if (flags & MF_BYPOSITION)
        return id < menu->items.size() ? &menu->items[id] : nullptr;
    for (MenuItem& item : menu->items)
    {
        if (!(item.flags & MF_POPUP) && item.id == id && !(item.flags & MF_SEPARATOR))
            return &item;
        if (item.flags & MF_POPUP)
            if (MenuItem* found = ItemOf(reinterpret_cast<HMENU>(item.id), id, MF_BYCOMMAND))
                return found;
    }
    return nullptr;
}

MenuItem MakeItem(UINT flags, UINT_PTR id, LPCSTR text)
{
    const bool hasText = text && !(flags & (MF_SEPARATOR | MF_BITMAP | MF_OWNERDRAW));
    return {flags & ~static_cast<UINT>(MF_BYPOSITION), id, hasText ? text : ""};
}

// ---------------------------------------------------------------------------------------------------------- templates

class MenuReader
{
public:
    explicit MenuReader(Bytes bytes) : m_bytes(bytes) {}

    WORD Word()
    {
        WORD value = 0;
        if (m_bytes.size < sizeof value)
        {
            m_bytes.size = 0;
            m_failed = true;
            return 0;
        }
        std::memcpy(&value, m_bytes.data, sizeof value);
        m_bytes.data += sizeof value;
        m_bytes.size -= sizeof value;
        return value;
    }

    HMENU Read(int depth = 0)
    {
        constexpr WORD kLast = 0x0080;
        const HMENU menu = Make();
        WORD flags = 0;
        do
        {
            flags = Word();
            const bool popup = (flags & MF_POPUP) != 0;
            const UINT_PTR id = popup ? 0 : Word();
            std::u16string text;
            while (const WORD c = Word())
                text.push_back(static_cast<char16_t>(c));
            if (m_failed || (popup && depth > 8))
                break;
            UINT itemFlags = flags & ~static_cast<UINT>(kLast);
            if (!popup && id == 0 && text.empty())
                itemFlags |= MF_SEPARATOR;
            const UINT_PTR target = popup ? reinterpret_cast<UINT_PTR>(Read(depth + 1)) : id;
            AppendMenuA(menu, itemFlags, target, ToAnsi(text).c_str());
        } while (!(flags & kLast) && !m_failed);
        return menu;
    }

private:
    Bytes m_bytes;
    bool m_failed = false;
};

// ----------------------------------------------------------------------------------------------------------- tracking

LRESULT CALLBACK MenuWindowProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    Inside inside;
    if (message == MN_GETHMENU)
        return GetWindowLongPtrA(window, GWLP_USERDATA);
    return DefWindowProcA(window, message, wParam, lParam);
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
    const char c = static_cast<char>(character);
    const char wanted = UpperCase({&c, 1})[0];
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
    MenuState& state = State();
    int position = -1;
    MSG msg{};
    while (!state.ended && Find(owner))
    {
        if (!PeekMessageA(&msg, nullptr, 0, 0, PM_NOREMOVE))
            Send(owner, WM_ENTERIDLE, MSGF_MENU, reinterpret_cast<LPARAM>(window));
        if (state.ended)
            break;
        if (!GetMessageA(&msg, nullptr, 0, 0))
        {
            PostQuitMessage(static_cast<int>(msg.wParam));
            break;
        }
        const Menu* menu = MenuOf(handle);
        if (!menu || CallMsgFilterA(&msg, MSGF_MENU))
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
            DispatchMessageA(&msg);

        menu = MenuOf(handle);
        if (!menu || chosen < 0 || chosen >= static_cast<int>(menu->items.size()))
            continue;
        const MenuItem& item = menu->items[static_cast<std::size_t>(chosen)];
        if (item.flags & MF_POPUP)
            return NotModelled("submenus of a popup menu", UINT_PTR{0});
        if (CanChoose(item))
            return item.id;
    }
    return 0;
}
} // namespace

void ResetMenus()
{
    State().menus.Clear();
    State().tracking = State().ended = false;
}

int CountMenus() { return State().menus.Count(); }
} // namespace offscreen

using namespace offscreen;

HMENU CreateMenu()
{
    Inside inside;
    return Make();
}

HMENU CreatePopupMenu() { return CreateMenu(); }

BOOL DestroyMenu(HMENU handle)
{
    Inside inside;
    const std::unique_ptr<Menu> menu = State().menus.Remove(handle);
    if (!menu)
    {
        SetLastError(ERROR_INVALID_MENU_HANDLE);
        return FALSE;
    }
    for (const MenuItem& item : menu->items)
        if (item.flags & MF_POPUP)
            DestroyMenu(reinterpret_cast<HMENU>(item.id));
    return TRUE;
}

BOOL IsMenu(HMENU handle) { return State().menus.Find(handle) != nullptr; }

BOOL AppendMenuA(HMENU handle, UINT flags, UINT_PTR id, LPCSTR text)
{
    return InsertMenuA(handle, static_cast<UINT>(-1), flags | MF_BYPOSITION, id, text);
}

BOOL InsertMenuA(HMENU handle, UINT position, UINT flags, UINT_PTR id, LPCSTR text)
{
    Inside inside;
    Menu* menu = MenuOf(handle);
    if (!menu)
        return FALSE;
    std::size_t at = std::min<std::size_t>(position, menu->items.size());
    if (!(flags & MF_BYPOSITION))
    {
        const auto it = std::find_if(menu->items.begin(), menu->items.end(),
                                     [=](const MenuItem& item) { return item.id == position; });
        if (it == menu->items.end())
            return FALSE;
        at = static_cast<std::size_t>(it - menu->items.begin());
    }
    menu->items.insert(menu->items.begin() + static_cast<std::ptrdiff_t>(at), MakeItem(flags, id, text));
    return TRUE;
}

BOOL ModifyMenuA(HMENU handle, UINT position, UINT flags, UINT_PTR id, LPCSTR text)
{
    Inside inside;
    MenuItem* item = ItemOf(handle, position, flags);
    if (!item)
        return FALSE;
    *item = MakeItem(flags, id, text);
    return TRUE;
}

BOOL DeleteMenu(HMENU handle, UINT position, UINT flags)
{
    Inside inside;
    Menu* menu = MenuOf(handle);
    const MenuItem* item = ItemOf(handle, position, flags);
    if (!menu || !item)
        return FALSE;
    if (item < menu->items.data() || item >= menu->items.data() + menu->items.size())
        return NotModelled("DeleteMenu in a submenu", FALSE);
    if (item->flags & MF_POPUP)
        DestroyMenu(reinterpret_cast<HMENU>(item->id));
    menu->items.erase(menu->items.begin() + (item - menu->items.data()));
    return TRUE;
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

DWORD CheckMenuItem(HMENU handle, UINT id, UINT flags)
{
    Inside inside;
    MenuItem* item = ItemOf(handle, id, flags);
    if (!item)
        return static_cast<DWORD>(-1);
    const UINT before = item->flags & MF_CHECKED;
    item->flags = (item->flags & ~MF_CHECKED) | (flags & MF_CHECKED);
    return before;
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
    return !item || (item->flags & MF_POPUP) ? static_cast<UINT>(-1) : static_cast<UINT>(item->id);
}

UINT GetMenuState(HMENU handle, UINT id, UINT flags)
{
    Inside inside;
    const MenuItem* item = ItemOf(handle, id, flags);
    return item ? item->flags : static_cast<UINT>(-1);
}

int GetMenuStringA(HMENU handle, UINT id, LPSTR text, int size, UINT flags)
{
    Inside inside;
    const MenuItem* item = ItemOf(handle, id, flags);
    if (!item)
        return 0;
    if (!text || size <= 0)
        return static_cast<int>(item->text.size());
    return CopyText(item->text, text, static_cast<std::size_t>(size));
}

HMENU GetSubMenu(HMENU handle, int position)
{
    Inside inside;
    const MenuItem* item = ItemOf(handle, static_cast<UINT>(position), MF_BYPOSITION);
    return item && (item->flags & MF_POPUP) ? reinterpret_cast<HMENU>(item->id) : nullptr;
}

HMENU LoadMenuA(HINSTANCE instance, LPCSTR name)
{
    Inside inside;
    const Bytes bytes = FindResourceBytes(instance, name, RT_MENU);
    if (!bytes.data)
        return nullptr;
    MenuReader reader(bytes);
    const WORD version = reader.Word();
    if (version != 0)
        return NotModelled("extended menu templates", HMENU{});
    for (WORD skip = reader.Word(); skip >= 2; skip = static_cast<WORD>(skip - 2))
        reader.Word();
    return reader.Read();
}

BOOL TrackPopupMenu(HMENU handle, UINT flags, int x, int y, int, HWND owner, const RECT*)
{
    Inside inside;
    MenuState& state = State();
    if (!MenuOf(handle) || !Lookup(owner) || state.tracking)
        return FALSE;
    if (!FindClass(kMenuClass))
        RegisterBuiltIn(kMenuClass, MenuWindowProc, CS_DBLCLKS, 0, 0x8000);
    state.tracking = true;
    state.ended = false;
    const bool notify = !(flags & TPM_NONOTIFY);
    if (notify)
    {
        Send(owner, WM_ENTERMENULOOP, TRUE);
        Send(owner, WM_INITMENU, reinterpret_cast<WPARAM>(handle));
        Send(owner, WM_INITMENUPOPUP, reinterpret_cast<WPARAM>(handle));
    }
    const HWND window = CreateWindowExA(WS_EX_NOACTIVATE, kMenuClass, "", WS_POPUP, x, y, 100,
                                        20 * std::max(GetMenuItemCount(handle), 1), owner, nullptr, nullptr, nullptr);
    SetWindowLongPtrA(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(handle));
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
        PostMessageA(owner, WM_COMMAND, MAKEWPARAM(chosen, 0), 0);
    return TRUE;
}

BOOL EndMenu()
{
    MenuState& state = State();
    state.ended = state.tracking;
    return state.tracking;
}
