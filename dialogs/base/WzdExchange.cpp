#include "dialogs/base/WzdExchange.h"

#include "core/Devices.h"
#include "core/FunWizard.h"
#include "dialogs/base/WzdDlgBase.h"

int CWzdExchange::AddEntry(const SWzdEntry& entry)
{
    Reserve(entry);
    return m_active ? m_nextRecord++ : kNoRecord;
}

int CWzdExchange::AddOptionalEntry(const SWzdEntry& entry)
{
    Reserve(entry);
    SFunSetData data;
    const bool stored = m_active && m_dialog.Wizard().GetDataInfo(m_nextRecord, &data) && data.code == kDeviceDT &&
                        data.number == m_dialog.StoredTableStart() + entry.offset;
    return stored ? m_nextRecord++ : kNoRecord;
}

void CWzdExchange::Declare(CWzdField& field)
{
    if (m_active || VisitsInactive())
        m_succeeded = m_succeeded && Visit(field);
}
