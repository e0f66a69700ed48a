#include "afx/Menu.h"

#include <utility>

IMPLEMENT_DYNAMIC(CMenu, CObject)

BOOL CMenu::Attach(HMENU menu)
{
    ASSERT(!m_hMenu);
    m_hMenu = menu;
    return menu != nullptr;
}

HMENU CMenu::Detach() { return std::exchange(m_hMenu, nullptr); }

BOOL CMenu::DestroyMenu() { return m_hMenu && ::DestroyMenu(Detach()); }
