#include "dialogs/unseen/FormDescriber.h"

#include "afx/CodePage.h"
#include "dialogs/grid/GridField.h"

#include <algorithm>

namespace
{

std::string Utf8(const CString& text)
{
    const CWideText wide(text);
    return static_cast<LPCSTR>(AfxNarrow(wide, wide.GetLength(), CP_UTF8));
}

SFieldNumbers NumbersOf(const SWzdAccepted& accepted)
{
    return {accepted.range, static_cast<LPCSTR>(accepted.lowest), static_cast<LPCSTR>(accepted.highest),
            accepted.decimals};
}

} // namespace

SFieldDescription* CFormDescriber::FindField(UINT control)
{
    for (SFieldDescription& field : m_fields)
        if (field.control == control)
            return &field;
    return nullptr;
}

void CFormDescriber::Finish(CWzdDialog& dialog)
{
    CString caption;
    dialog.GetWindowText(caption);
    m_caption = Utf8(caption);
    DescribeControls(dialog);
    if (auto* const instruction = dynamic_cast<CWzdDlgBase*>(&dialog))
    {
        AddDeclarations(*instruction);
        instruction->CheckEachField();
    }
}

// Only while the fields are checked, one by one: what each of them is refused with.
void CFormDescriber::BeRefused(UINT message, UINT control, int, int)
{
    SFieldDescription* const field = FindField(control);
    if (field != nullptr && field->problem == 0)
        field->problem = message;
}

void CFormDescriber::DescribeControls(CWzdDialog& dialog)
{
    for (const CField& field : CField::AllOf(dialog))
    {
        SFieldDescription& description = m_fields.emplace_back();
        description.control = field.Id();
        description.kind = field.Kind();
        description.name = field.Name();
        description.label = static_cast<LPCSTR>(field.Label());
        description.text = static_cast<LPCSTR>(field.Text());
        description.enabled = field.IsEnabled();
        description.limit = field.LimitOfText();
        description.digitsOnly = field.TakesDigitsOnly();
        description.selected = field.Selected();
        description.mostRows = field.MostRows();
        for (int item = 0; item < field.ItemCount(); ++item)
            description.items.push_back({field.ItemCode(item), static_cast<LPCSTR>(field.ItemText(item))});
    }
}

void CFormDescriber::AddColumns(const CGridField& table)
{
    SFieldDescription* const field = FindField(IDC_GRID_CELLS);
    for (size_t i = 0; field != nullptr && i < std::min(field->items.size(), table.Columns().size()); ++i)
    {
        const SGridColumn& column = table.Columns()[i];
        field->items[i].limit = column.limit;
        if (column.range.low <= column.range.high && column.rangeText == 0) // which tells it in words
            field->items[i].numbers = NumbersOf(CWzdField::NumbersOf(column.range, column.format));
    }
}

void CFormDescriber::AddDeclarations(CWzdDlgBase& dialog)
{
    const auto add = [&](CWzdField& field) {
        const SWzdRow& row = field.Describe();
        if (SFieldDescription* const list = row.combo != 0 && row.bits.width > 0 ? FindField(row.combo) : nullptr)
            list->bits = row.bits;
        if (const auto* const table = dynamic_cast<const CGridField*>(&field))
            AddColumns(*table);
        SFieldDescription* const edit = row.edit != 0 ? FindField(row.edit) : nullptr;
        if (edit == nullptr)
            return true;
        if (row.comment.label != 0)
        {
            CString label = dialog.ItemText(row.comment.label) + " " + dialog.ItemText(row.comment.secondLabel);
            label.TrimRight();
            edit->label = Utf8(label);
        }
        edit->message = row.message;
        edit->entry = row.entry;
        if (const auto accepted = field.AcceptedNumbers())
            edit->numbers = NumbersOf(*accepted);
        return true;
    };
    CWzdWalk walk(dialog, false, add);
    dialog.DoFieldExchange(&walk);
}
