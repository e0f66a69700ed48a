#include "dialogs/base/WzdResults.h"

#include "afx/System.h"
#include "core/FunWizard.h"

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

void CWzdResults::AddComment(const CString& text)
{
    if (text.GetLength() <= kLongestComment)
    {
        m_comments.push_back(text);
        return;
    }
    int length = 0;
    for (int next = 0; next <= kLongestComment; next += AfxCharLength(static_cast<LPCSTR>(text) + next))
        length = next;
    m_comments.push_back(text.Left(length));
}

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
    return StoreContacts(wizard) && StoreOperands(wizard) && StoreData(wizard) && StoreComments(wizard);
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
    if (m_commentRecord)
        wizard.SetCmtRec(*m_commentRecord);
    if (!wizard.IsCmtRec())
        return true;
    wizard.RemoveAllCmtInfo();
    for (const CString& comment : m_comments)
        if (!wizard.AddCmtInfo(comment))
            return false;
    return true;
}
