#include "afx/Menu.h"

#include "afx/CodePage.h"

#include <utility>

IMPLEMENT_DYNAMIC(CMenu, CObject)

BOOL CMenu::Attach(HMENU menu)
{
    ASSERT(!m_hMenu);
    m_hMenu = menu;
    return menu != nullptr;
}

BOOL CMenu::AppendMenu(UINT flags, UINT_PTR id, LPCSTR text)
{
    return ::AppendMenuW(m_hMenu, flags, id, CWideText(text));
}

HMENU CMenu::Detach() { return std::exchange(m_hMenu, nullptr); }

BOOL CMenu::DestroyMenu() { return m_hMenu && ::DestroyMenu(Detach()); }
