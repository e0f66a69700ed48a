#include "dialogs/posunit/StartOutputGroup.h"

#include "resources/resource.h"

namespace
{

constexpr int kGroupControls = 12;     // frame and check box included
constexpr int kOutputWordControls = 5; // three labels, the word and its range
constexpr int kSameConditionControls = 4;
constexpr int kJogDirectionControls = 2;

CRect RectInDialog(CWnd* dialog, CWnd* control)
{
    CRect rect;
    control->GetWindowRect(&rect);
    dialog->ScreenToClient(&rect);
    return rect;
}

CWnd* Neighbour(CWnd* control, UINT direction, int steps)
{
    while (control != nullptr && steps-- > 0)
        control = control->GetWindow(direction);
    return control;
}

} // namespace

CStartOutputGroup::CStartOutputGroup(CWnd* dialog, bool extended) : m_dialog(dialog), m_extended(extended)
{
    m_complete = true;
    for (const int id :
         {IDC_START_OUTPUT_ENABLE, IDC_START_OUTPUT_WORD, IDC_START_OUTPUT_RANGE, IDC_UNIT_CLEAR_SETTINGS})
        m_complete = m_complete && dialog->GetDlgItem(id) != nullptr;
}

void CStartOutputGroup::UpdateEnabling() const
{
    if (!m_complete)
        return;
    const bool wanted = m_dialog->IsDlgButtonChecked(IDC_START_OUTPUT_ENABLE) == BST_CHECKED;
    const bool same = m_dialog->IsDlgButtonChecked(IDC_SAME_CONDITION) == BST_CHECKED;
    const int count = kGroupControls - 2 + (m_extended ? kJogDirectionControls : 0);
    CWnd* control = m_dialog->GetDlgItem(IDC_START_OUTPUT_ENABLE);
    for (int position = 1; position <= count && (control = control->GetWindow(GW_HWNDNEXT)) != nullptr; position++)
    {
        const bool ofSecondCondition = position >= 2 && position < 2 + kSameConditionControls;
        control->EnableWindow(wanted && !(same && ofSecondCondition));
    }
}

void CStartOutputGroup::Compact(BYTE startType) const
{
    if (!m_complete || startType > 1)
        return;
    CWnd* const frame = m_dialog->GetDlgItem(IDC_START_OUTPUT_ENABLE)->GetWindow(GW_HWNDPREV);
    CWnd* const word = m_dialog->GetDlgItem(IDC_START_OUTPUT_WORD);
    CWnd* const marker = m_dialog->GetDlgItem(IDC_UNIT_CLEAR_SETTINGS);
    CWnd* const afterGroup = m_dialog->GetDlgItem(IDC_START_OUTPUT_RANGE)->GetWindow(GW_HWNDNEXT);
    if (frame == nullptr)
        return;
    CRect frameRect = RectInDialog(m_dialog, frame);
    const CRect wordRect = RectInDialog(m_dialog, word);
    const CRect markerRect = RectInDialog(m_dialog, marker);
    if (startType == 0)
    {
        HideFrom(frame, kGroupControls + (m_extended ? kJogDirectionControls : 0));
        MoveUp(afterGroup, markerRect.top - frameRect.top);
        return;
    }
    HideFrom(Neighbour(word, GW_HWNDPREV, 3), kOutputWordControls);
    frameRect.bottom = wordRect.top + wordRect.Height() / (m_extended ? 2 : 4);
    frame->MoveWindow(&frameRect);
    MoveUp(afterGroup, markerRect.top - wordRect.bottom);
}

void CStartOutputGroup::HideFrom(CWnd* first, int count) const
{
    for (CWnd* control = first; control != nullptr && count-- > 0; control = control->GetWindow(GW_HWNDNEXT))
        control->ShowWindow(SW_HIDE);
}

// Moves the controls up to and including "Clear settings" and shortens the dialog.
void CStartOutputGroup::MoveUp(CWnd* first, int distance) const
{
    for (CWnd* control = first; control != nullptr; control = control->GetWindow(GW_HWNDNEXT))
    {
        CRect rect = RectInDialog(m_dialog, control);
        rect.OffsetRect(0, -distance);
        control->MoveWindow(&rect);
        if (control->GetDlgCtrlID() == IDC_UNIT_CLEAR_SETTINGS)
            break;
    }
    CRect window;
    m_dialog->GetWindowRect(&window);
    m_dialog->SetWindowPos(nullptr, 0, 0, window.Width(), window.Height() - distance, SWP_NOMOVE | SWP_NOZORDER);
}
