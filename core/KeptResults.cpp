#include "core/KeptResults.h"

#include "core/Memory.h"

#include <utility>

namespace
{

template <class TArray, class TRecord>
void CopyOf(const TArray& list, std::vector<TRecord>& copy)
{
    copy.reserve(static_cast<size_t>(list.GetSize()));
    for (int i = 0; i < list.GetSize(); ++i)
        copy.push_back(list.ElementAt(i));
}

template <class TArray, class TRecord>
void Replace(TArray& list, const std::vector<TRecord>& records)
{
    list.RemoveAll();
    for (const TRecord& record : records)
        list.Add(record);
}

} // namespace

CKeptResults::CKeptResults(CFunWizard& wizard, bool holdsDialogData)
    : m_wizard(&wizard), m_holdsDialogData(holdsDialogData), m_unitMode(wizard.m_unitMode),
      m_axisType(wizard.m_axisType), m_lastInstruction(wizard.m_lastInstruction), m_lastVariant(wizard.m_lastVariant),
      m_commentRecord(wizard.m_commentRecord), m_onlyDataTable(wizard.m_onlyDataTable)
{
    CopyOf(wizard.m_contacts, m_contacts);
    CopyOf(wizard.m_operands, m_operands);
    CopyOf(wizard.m_data, m_data);
    CopyOf(wizard.m_instructions, m_instructions);
    CopyOf(wizard.m_comments, m_comments);
    if (m_holdsDialogData)
        m_dialogData = std::exchange(wizard.m_dialogData, nullptr);
}

CKeptResults::~CKeptResults()
{
    if (m_wizard != nullptr)
        static_cast<void>(WithMemory([this] { PutBack(); }));
}

void CKeptResults::GiveUp()
{
    m_wizard = nullptr;
    ::operator delete(m_dialogData);
}

void CKeptResults::PutBack()
{
    if (m_holdsDialogData)
    {
        m_wizard->RemoveDlgData();
        m_wizard->m_dialogData = m_dialogData;
    }
    m_wizard->RecordWizard(m_unitMode, m_lastInstruction, m_lastVariant);
    m_wizard->m_axisType = m_axisType;
    m_wizard->m_commentRecord = m_commentRecord;
    m_wizard->m_onlyDataTable = m_onlyDataTable;
    Replace(m_wizard->m_contacts, m_contacts);
    Replace(m_wizard->m_operands, m_operands);
    Replace(m_wizard->m_data, m_data);
    Replace(m_wizard->m_instructions, m_instructions);
    Replace(m_wizard->m_comments, m_comments);
}
