#include "dialogs/base/WzdResults.h"

#include "core/FunWizard.h"
#include "core/Values.h"

void CWzdResults::AddContact(short kind, short code, int number)
{
    m_contacts.push_back({number, static_cast<DWORD>(MAKELONG(code, kind))});
}

void CWzdResults::SetOperand(int index, short code, int value)
{
    if (m_operands.size() <= static_cast<size_t>(index))
        m_operands.resize(static_cast<size_t>(index) + 1);
    m_operands[static_cast<size_t>(index)] = {value, static_cast<WORD>(code)};
}

void CWzdResults::AddData(const SWzdEntry& entry, EConstantFormat format, LONG value)
{
    m_data.push_back({m_tableStart, entry.offset, entry.type, format, value});
}

void CWzdResults::AddControlCode(const SWzdEntry& entry, EConstantFormat format)
{
    m_codeRecord = m_data.size();
    AddData(entry, format, 0);
}

void CWzdResults::AddToControlCode(DWORD bits)
{
    ASSERT(m_codeRecord);
    if (m_codeRecord && !m_codeEnded)
        m_data[*m_codeRecord].value |= static_cast<LONG>(bits);
}

void CWzdResults::AddComment(const CString& text) { m_comments.push_back(LeftWhole(text, kLongestComment)); }

void CWzdResults::AddCommentFrom(const CWnd* label)
{
    if (label == nullptr)
        return;
    CString text;
    label->GetWindowText(text);
    AddComment(text);
}

bool CWzdResults::StoreIn(CFunWizard& wizard) const
{
    SetCommentRecordIn(wizard, kBeforeTheLists);
    if (!StoreContacts(wizard) || !StoreOperands(wizard))
        return false;
    StoreDialogData(wizard);
    return StoreData(wizard) && StoreComments(wizard);
}

void CWzdResults::SetCommentRecordIn(CFunWizard& wizard, ECommentFlag when) const
{
    if (m_commentRecord && m_setsCommentRecord == when)
        wizard.SetCmtRec(*m_commentRecord);
}

bool CWzdResults::StoreContacts(CFunWizard& wizard) const
{
    if (!m_keepsContacts)
        wizard.RemoveAllContInfo();
    for (const SContact& contact : m_contacts)
        if (!wizard.AddContInfo(contact.Kind(), contact.Code(), contact.number))
            return false;
    return true;
}

bool CWzdResults::StoreOperands(CFunWizard& wizard) const
{
    wizard.RemoveAllOprdInfo();
    for (const SOperand& operand : m_operands)
        if (!wizard.AddOprdInfo(operand.Code(), operand.value))
            return false;
    return true;
}

// The wizard frees it as untyped memory.
void CWzdResults::StoreDialogData(CFunWizard& wizard) const
{
    if (m_dialogData.empty())
        return;
    auto* block = static_cast<WORD*>(::operator new(m_dialogData.size() * sizeof(WORD)));
    std::copy(m_dialogData.begin(), m_dialogData.end(), block);
    wizard.RemoveDlgData();
    wizard.SetDlgDataPtr(block);
}

bool CWzdResults::StoreData(CFunWizard& wizard) const
{
    wizard.RemoveAllDataInfo();
    for (const SData& data : m_data)
        if (!wizard.AddDataInfo(data.table.Code(), static_cast<int>(data.table.value + data.offset), data.type,
                                data.format, data.value))
            return false;
    return true;
}

bool CWzdResults::StoreComments(CFunWizard& wizard) const
{
    SetCommentRecordIn(wizard, kBehindTheLists);
    if (!wizard.IsCmtRec())
        return true;
    wizard.RemoveAllCmtInfo();
    for (const CString& comment : m_comments)
        if (!wizard.AddCmtInfo(comment))
            return false;
    return true;
}
