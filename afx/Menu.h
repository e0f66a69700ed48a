// Menus that pop up.
#pragma once

#include "afx/Window.h"

/// Owns its menu and destroys it with itself.
class AFX_API CMenu : public CObject
{
    DECLARE_DYNAMIC(CMenu)

    CMenu() = default;
    ~CMenu() override { DestroyMenu(); }

    BOOL CreatePopupMenu() { return Attach(::CreatePopupMenu()); }
    BOOL Attach(HMENU menu);
    HMENU Detach();
    BOOL DestroyMenu();

    BOOL AppendMenu(UINT flags, UINT_PTR id = 0, LPCSTR text = nullptr);
    UINT EnableMenuItem(UINT id, UINT flags) { return static_cast<UINT>(::EnableMenuItem(m_hMenu, id, flags)); }
    /// Shows the menu at a point of the screen. `window` gets the command, unless TPM_RETURNCMD makes it the result.
    BOOL TrackPopupMenu(UINT flags, int x, int y, CWnd* window, LPCRECT stayOpen = nullptr)
    {
        return ::TrackPopupMenu(m_hMenu, flags, x, y, 0, window->m_hWnd, stayOpen);
    }

    HMENU m_hMenu = nullptr;
};
