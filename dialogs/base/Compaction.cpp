#include "dialogs/base/Compaction.h"

CRect RectInDialog(const CWnd* control)
{
    CRect rect;
    control->GetWindowRect(&rect);
    control->GetParent()->ScreenToClient(&rect);
    return rect;
}

CWnd* Neighbour(CWnd* control, UINT direction, int steps)
{
    while (control != nullptr && steps-- > 0)
        control = control->GetWindow(direction);
    return control;
}

void HideControls(CWnd* first, int count)
{
    for (CWnd* control = first; control != nullptr && count-- > 0; control = control->GetWindow(GW_HWNDNEXT))
        control->ShowWindow(SW_HIDE);
}

void ShowControls(CWnd* first, const CWnd* last, bool shown)
{
    if (last == nullptr)
        return;
    for (CWnd* control = first; control != nullptr; control = control->GetWindow(GW_HWNDNEXT))
    {
        control->ShowWindow(shown ? SW_SHOW : SW_HIDE);
        control->EnableWindow(shown);
        if (control->m_hWnd == last->m_hWnd)
            break;
    }
}

void CloseGap(CWnd* first, UINT last, int height)
{
    CWnd* const dialog = first != nullptr ? first->GetParent() : nullptr;
    if (dialog == nullptr || dialog->GetDlgItem(static_cast<int>(last)) == nullptr)
        return;
    for (CWnd* control = first; control != nullptr; control = control->GetWindow(GW_HWNDNEXT))
    {
        CRect rect = RectInDialog(control);
        rect.OffsetRect(0, -height);
        control->MoveWindow(&rect);
        if (control->GetDlgCtrlID() == static_cast<int>(last))
            break;
    }
    CRect window;
    dialog->GetWindowRect(&window);
    dialog->SetWindowPos(nullptr, 0, 0, window.Width(), window.Height() - height,
                         SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
}
