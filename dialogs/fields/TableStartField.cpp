// The register at which the data table starts.
#include "core/Devices.h"
#include "core/FunWizard.h"
#include "core/Values.h"
#include "dialogs/base/WzdDlgBase.h"
#include "dialogs/base/WzdResults.h"
#include "dialogs/fields/Rows.h"

namespace
{

class CTableStartField : public CWzdField
{
public:
    using CWzdField::CWzdField;

    bool Open() override
    {
        short code;
        int number;
        const bool stored = m_dialog.Wizard().GetOprdInfo(m_row.position, code, number) && code == kDeviceDT;
        m_dialog.SetItemText(m_row.edit, stored ? FormatDecimal64(number) : CString());
        return true;
    }

    bool IsPossible() const override { return Range().has_value(); }

    std::optional<SWzdAccepted> AcceptedNumbers() const override
    {
        const auto range = Range();
        return range ? std::optional(NumbersOf(*range, m_row.format)) : std::nullopt;
    }

    // The longer the table, the lower the highest start.
    void Refresh() override
    {
        m_dialog.ShowDataTableRange(m_row.rangeLabel);
        const auto range = Range();
        m_dialog.LimitText(m_row.edit, range ? FormatDecimal64(range->high).GetLength() : 0);
    }

    void Clear() override { m_dialog.SetItemText(m_row.edit, ""); }

    bool Collect(CWzdResults& results) override
    {
        constexpr SWzdRange kNone = {0, -1};
        LONGLONG start;
        if (!m_dialog.ReadNumber(m_row.edit, Range().value_or(kNone), m_row.message, start, m_row.format))
            return false;
        results.SetOperand(m_row.position, kDeviceDT, static_cast<int>(start));
        results.SetTableStart(kDeviceDT, static_cast<int>(start));
        return true;
    }

private:
    std::optional<SWzdRange> Range() const
    {
        int low, high;
        if (!m_dialog.GetDataTableRange(low, high))
            return std::nullopt;
        return SWzdRange{low, high};
    }
};

} // namespace

void WDX_TableStart(CWzdExchange* wx, const SWzdRow& row)
{
    wx->SetTableStart({row.edit, row.format, row.position});
    SWzdRow complete = row;
    complete.message = IDS_ERR_TABLE_START;
    WzdDeclare<CTableStartField>(wx, complete);
}
