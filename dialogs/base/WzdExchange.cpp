#include "dialogs/base/WzdExchange.h"

#include "core/Devices.h"
#include "core/FunWizard.h"
#include "dialogs/base/WzdDlgBase.h"

int CWzdExchange::AddEntry(const SWzdEntry& entry)
{
    Reserve(entry);
    if (!m_active)
        return kNoRecord;
    const int record = m_nextRecord++;
    int number;
    return IsOfTable(record, number) ? record : kNoRecord;
}

int CWzdExchange::AddOptionalEntry(const SWzdEntry& entry)
{
    Reserve(entry);
    int number;
    const bool stored = m_active && IsOfTable(m_nextRecord, number) && number == StoredTable().value + entry.offset;
    return stored ? m_nextRecord++ : kNoRecord;
}

SOperand CWzdExchange::StoredTable() const
{
    short code;
    int number;
    const bool stored = m_dialog.Wizard().GetOprdInfo(m_tableStart.operand, code, number);
    if (!stored || (!m_tableStart.anyDevice && code != kDeviceDT))
        return {-1, kDeviceDT};
    return {number, static_cast<WORD>(code)};
}

bool CWzdExchange::IsOfTable(int record, int& number) const
{
    SFunSetData data;
    if (!m_dialog.Wizard().GetDataInfo(record, &data) || data.code != StoredTable().Code())
        return false;
    number = data.number;
    return true;
}

void CWzdExchange::Declare(CWzdField& field)
{
    if (m_active || VisitsInactive())
        m_succeeded = m_succeeded && Visit(field);
}
