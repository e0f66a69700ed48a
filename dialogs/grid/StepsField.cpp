#include "dialogs/grid/StepsField.h"

#include "core/Devices.h"
#include "core/FillText.h"
#include "core/FunWizard.h"
#include "dialogs/base/WzdResults.h"

namespace
{

class CStepsField : public CGridField
{
public:
    CStepsField(CWzdDlgBase& base, const SWzdRow& row, CGridDlg& dialog, CGridColumns columns, int record)
        : CGridField(base, row, dialog, columns), m_record(record)
    {
    }

    bool Collect(CWzdResults& results) override
    {
        const CGridModel& cells = m_grid.Model();
        std::vector<CString> comments(static_cast<size_t>(cells.Columns()));
        for (int column = 0; column < cells.Columns(); ++column)
            comments[static_cast<size_t>(column)].LoadString(Column(column).comment);
        SWzdEntry entry = {m_row.entry.offset, m_row.entry.type};
        const auto add = [&](LONGLONG value) {
            results.AddData(entry, kDecimalConstant, static_cast<LONG>(value));
            entry.offset = entry.End();
        };
        for (int row = 0; row < cells.UsedRows(); ++row)
            for (int column = 0; column < cells.Columns(); ++column)
            {
                LONGLONG value;
                if (!ReadCell({row, column}, value))
                    return false;
                add(value);
                results.AddComment(FillText(comments[static_cast<size_t>(column)], {row + 1}));
            }
        add(0);
        return true;
    }

protected:
    int MostRows() const override
    {
        int lowest, highest; // starts of a table with one row
        if (!m_dialog.GetDataTableRange(lowest, highest))
            return 1;
        const SWzdEntry cells = {0, m_row.entry.type, m_grid.Model().Columns()};
        return static_cast<int>(1 + (static_cast<LONGLONG>(highest) - lowest) / cells.Registers());
    }

    void Restore() override
    {
        const CFunWizard& wizard = m_dialog.Wizard();
        const CGridModel& cells = m_grid.Model();
        SFunSetData data;
        int count = 0;
        const auto read = [&](int index) {
            return m_record != CWzdExchange::kNoRecord && wizard.GetDataInfo(m_record + index, &data) &&
                   data.code == kDeviceDT;
        };
        const LONGLONG most = static_cast<LONGLONG>(cells.MostRows()) * cells.Columns();
        for (; count < most && read(count + 1); ++count) // the last one is the end mark
        {
            read(count);
            SetValue({count / cells.Columns(), count % cells.Columns()}, data.value);
        }
    }

private:
    int m_record;
};

} // namespace

void WDX_Steps(CWzdExchange* wx, CGridDlg& dialog, LONGLONG offset, CGridColumns columns)
{
    const CGridModel& cells = dialog.Grid().Model();
    const LONGLONG values = static_cast<LONGLONG>(cells.UsedRows()) * cells.Columns() + 1;
    const SWzdRow row = {.entry = {offset, kTwoRegisters, values}};
    const int record = wx->AddEntry(row.entry);
    WzdDeclare<CStepsField>(wx, row, dialog, columns, record);
}
