#include "dialogs/posunit/StartOutputGroup.h"

#include "dialogs/base/Compaction.h"
#include "resources/resource.h"

namespace
{

constexpr int kGroupControls = 12;     // frame and check box included
constexpr int kOutputWordControls = 5; // three labels, the word and its range
constexpr int kSameConditionControls = 4;
constexpr int kJogDirectionControls = 2;

} // namespace

CStartOutputGroup::CStartOutputGroup(CWnd* dialog)
    : m_dialog(dialog), m_extended(dialog->GetDlgItem(IDC_JOG_DIRECTION) != nullptr)
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
    CRect frameRect = RectInDialog(frame);
    const CRect wordRect = RectInDialog(word);
    const CRect markerRect = RectInDialog(marker);
    if (startType == 0)
    {
        HideControls(frame, kGroupControls + (m_extended ? kJogDirectionControls : 0));
        CloseGap(afterGroup, IDC_UNIT_CLEAR_SETTINGS, markerRect.top - frameRect.top);
        return;
    }
    HideControls(Neighbour(word, GW_HWNDPREV, 3), kOutputWordControls);
    frameRect.bottom = wordRect.top + wordRect.Height() / (m_extended ? 2 : 4);
    frame->MoveWindow(&frameRect);
    CloseGap(afterGroup, IDC_UNIT_CLEAR_SETTINGS, markerRect.top - wordRect.bottom);
}
