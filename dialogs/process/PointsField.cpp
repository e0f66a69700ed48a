#include "dialogs/process/PointsField.h"

#include "core/FunWizard.h"
#include "core/Values.h"
#include "dialogs/base/WzdResults.h"

namespace
{

enum EPointColumn
{
    kX,
    kY,
    kColumns
};

class CPointsField : public CGridField
{
public:
    CPointsField(CWzdDlgBase& base, const SWzdRow& row, CGridDlg& dialog, CGridColumns columns,
                 const SPointValues& values, const SPointCount& count, int record)
        : CGridField(base, row, dialog, columns), m_values(values), m_count(count), m_record(record)
    {
    }

    bool FollowsEdit(UINT edit) const override { return edit == m_count.edit; }

    void OnChanged(UINT id) override
    {
        if (id == m_grid.Controls().editor)
            Count(m_grid.ToldRows(), m_grid.Model().UsedRows());
    }

    void Refresh() override
    {
        m_grid.Model().SetMostRows(m_count.most);
        m_grid.Model().SetWantedRows(m_count.points);
        CGridField::Refresh();
    }

    bool Collect(CWzdResults& results) override
    {
        std::vector<LONGLONG> columns[kColumns];
        for (int row = 0; row < m_count.points; ++row)
            for (const int column : {kX, kY})
            {
                LONGLONG value;
                if (!ReadCell({row, column}, value))
                    return false;
                columns[column].push_back(value);
            }
        if (!CheckOrder(columns[kX]))
            return false;
        SWzdEntry entry = {m_row.entry.offset, m_row.entry.type};
        for (const auto& column : columns)
            for (const LONGLONG value : column)
            {
                results.AddData(entry, m_values.format, static_cast<LONG>(value));
                entry.offset = entry.End();
            }
        return true;
    }

protected:
    int MostRows() const override { return m_count.most; }

    void Restore() override
    {
        SFunSetData data;
        const CFunWizard& wizard = m_dialog.Wizard();
        if (m_record == CWzdExchange::kNoRecord || !wizard.GetDataInfo(m_record - 1, &data))
            return;
        const int points = std::min<int>(data.value, wizard.GetDataInfoCount()); // hosts may say more
        const int rows = std::min(points, m_grid.Model().MostRows());
        const auto read = [&](int column, int row) {
            return wizard.GetDataInfo(m_record + column * points + row, &data) && data.format == m_values.format;
        };
        for (const int column : {kX, kY})
            for (int row = 0; row < rows && read(column, row); ++row)
                SetValue({row, column}, data.value);
    }

private:
    // An empty number, or one equal to the number of rows, follows the rows. A larger one stays until they pass it, and
    // a smaller one is the user's own choice. No table has a single row.
    void Count(int before, int now) const
    {
        const CString text = m_dialog.ItemText(m_count.edit);
        LONGLONG entered = 0;
        const bool follows = Trimmed(text).IsEmpty() || (kUnsigned.Parse(text, entered) && entered == before);
        if (follows || (entered > before && now > entered))
            m_dialog.SetItemText(m_count.edit, now > 1 ? FormatDecimal64(now) : CString());
    }

    bool CheckOrder(const std::vector<LONGLONG>& x)
    {
        for (size_t row = 1; row < x.size(); ++row)
            if (m_values.number(x[row]) <= m_values.number(x[row - 1]))
                return m_grid.Refuse({static_cast<int>(row), kX}, IDS_ERR_DATA_X_ORDER);
        return true;
    }

    const SPointValues& m_values;
    const SPointCount& m_count;
    int m_record;
};

} // namespace

void WDX_Points(CWzdExchange* wx, CGridDlg& dialog, const SPointValues& values, const SPointCount& count,
                CGridColumns columns)
{
    const SWzdRow row = {.entry = {1, values.type, static_cast<LONGLONG>(kColumns) * count.points}};
    const int record = wx->AddEntry(row.entry);
    WzdDeclare<CPointsField>(wx, row, dialog, columns, values, count, record);
}
