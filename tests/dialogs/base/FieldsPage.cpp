#include "tests/dialogs/base/FieldsPage.h"

#include "core/FillText.h"
#include "core/Values.h"
#include "dialogs/grid/GridField.h"
#include "dialogs/unseen/FieldNames.h"
#include "tests/dialogs/InstructionDialogs.h"
#include "tests/dialogs/base/FieldRecorder.h"
#include "tests/support/Controller.h"

#include "afx/DialogRobot.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>
#include <sstream>

namespace
{

/// A field as the page shows it: what it has in one state of the dialog or another.
struct SPageRow
{
    SDeclaredField field;
    std::vector<SWzdChoice> items;
    std::vector<std::string> ranges;
    std::vector<UINT> messages;
    std::vector<SGridColumn> columns = {};
    std::vector<std::vector<std::string>> columnRanges = {};
};

template <typename T>
void AddOnce(std::vector<T>& all, const T& one)
{
    if (std::find(all.begin(), all.end(), one) == all.end())
        all.push_back(one);
}

std::string Std(const CString& text) { return static_cast<const char*>(text); }

std::string InOneLine(std::string text)
{
    std::replace(text.begin(), text.end(), '\n', ' ');
    std::replace(text.begin(), text.end(), '\t', ' ');
    return text;
}

std::string TextOf(UINT id)
{
    CString text;
    text.LoadString(id);
    return Std(text);
}

std::string RangeText(const SWzdFormat& format, const SWzdRange& range, UINT text)
{
    return text != 0 ? TextOf(text) : Std(format.Format(range.low)) + " to " + Std(format.Format(range.high));
}

/// Also the fields that do not count at the moment; what takes neither a control nor registers is none of the page.
class CPageRecorder : public CWzdExchange
{
public:
    CPageRecorder(CWzdDlgBase& dialog, std::vector<SPageRow>& rows) : CWzdExchange(dialog), m_rows(rows) {}

protected:
    bool Visit(CWzdField& field) override
    {
        const SDeclaredField declared(field.Describe());
        const auto* table = dynamic_cast<CGridField*>(&field);
        if (declared.combo != 0 || declared.edit != 0 || declared.IsEntry() || table != nullptr)
            Add(declared, table);
        return true;
    }
    bool VisitsInactive() const override { return true; }

private:
    static bool AreSame(const SDeclaredField& a, const SDeclaredField& b)
    {
        return a.combo == b.combo && a.edit == b.edit && a.rangeLabel == b.rangeLabel &&
               a.comment.text == b.comment.text && a.entry.offset == b.entry.offset;
    }

    void Add(const SDeclaredField& field, const CGridField* table)
    {
        auto row = std::find_if(m_rows.begin(), m_rows.end(),
                                [&](const SPageRow& known) { return AreSame(known.field, field); });
        if (row == m_rows.end())
            row = m_rows.insert(m_rows.end(), SPageRow{field, {}, {}, {}});
        for (const SWzdChoice& choice : field.items)
            if (IndexOfCode(row->items, choice.code) < 0)
                row->items.push_back(choice);
        if (field.edit != 0 && field.IsEntry())
            AddOnce(row->ranges, RangeText(field.format, field.range, 0));
        if (field.message != 0)
            AddOnce(row->messages, field.message);
        if (table == nullptr)
            return;
        row->columns.assign(table->Columns().begin(), table->Columns().end());
        row->columnRanges.resize(row->columns.size());
        for (size_t i = 0; i < row->columns.size(); ++i)
            AddOnce(row->columnRanges[i],
                    RangeText(row->columns[i].format, row->columns[i].range, row->columns[i].rangeText));
    }

    std::vector<SPageRow>& m_rows;
};

/// In every state that the items of one list or two lead to, and two buttons that choose between lists.
std::vector<SPageRow> RowsOf(CWzdDlgBase& dialog)
{
    std::vector<SPageRow> rows;
    const auto add = [&] {
        CPageRecorder recorder(dialog, rows);
        dialog.DoFieldExchange(&recorder);
    };
    std::vector<UINT> lists;
    const auto forEachItem = [&](UINT list, const auto& action) {
        const int count = static_cast<CComboBox*>(dialog.GetDlgItem(list))->GetCount();
        for (int item = 0; item < count; ++item)
        {
            dialog.Select(list, item);
            action();
        }
        dialog.Select(list, 0);
    };
    add();
    for (const SPageRow& row : rows)
        if (!row.items.empty())
            lists.push_back(row.field.combo);
    for (size_t i = 0; i < lists.size(); ++i)
        for (size_t other = i; other < lists.size(); ++other)
            forEachItem(lists[i], [&] {
                if (other == i)
                    add();
                else
                    forEachItem(lists[other], add);
            });
    for (const bool coarse : {true, false})
    {
        dialog.Check(IDC_PWMH_RESOLUTION_1000, !coarse);
        dialog.Check(IDC_PWMH_RESOLUTION_100, coarse);
        add();
    }
    return rows;
}

bool IsOfClass(const CWnd* window, const char* name)
{
    char text[32] = "";
    ::GetClassNameA(window->m_hWnd, text, sizeof text);
    return std::string(text) == name;
}

/// The text before a control; the name of its device and buttons that belong to it stand between them.
std::string LabelBefore(const CWzdDlgBase& dialog, UINT id)
{
    const CWnd* window = dialog.ControlBefore(id);
    for (; window != nullptr; window = window->GetWindow(GW_HWNDPREV))
    {
        CString text;
        window->GetWindowText(text);
        if (IsOfClass(window, "Static") && text != "DT" && text != "Y")
            return Std(text);
        if (!IsOfClass(window, "Static") && !IsOfClass(window, "Button"))
            return "";
    }
    return "";
}

std::string LabelOf(const CWzdDlgBase& dialog, const SDeclaredField& field)
{
    if (field.check != 0)
        return Std(dialog.ItemText(field.check));
    if (field.comment.label != 0)
        return Std(dialog.ItemText(field.comment.label) + " " + dialog.ItemText(field.comment.secondLabel));
    if (const UINT id = field.combo != 0 ? field.combo : field.edit)
        return LabelBefore(dialog, id);
    if (field.comment.text != 0)
        return TextOf(field.comment.text);
    return field.rangeLabel != 0 ? "filled by the program" : "always the same";
}

std::string ControlsOf(const CWzdDialog& dialog, const SDeclaredField& field)
{
    std::string controls;
    for (const UINT id : {field.check, field.combo, field.edit})
    {
        if (id == 0)
            continue;
        const std::string name(FieldName(dialog.TemplateId(), id));
        controls += (controls.empty() ? "" : "<br>") + std::to_string(id) + (name.empty() ? "" : " `" + name + "`");
    }
    return controls;
}

std::string Items(const std::vector<SWzdChoice>& items)
{
    std::ostringstream text;
    for (const SWzdChoice& choice : items)
    {
        const std::string item = choice.argument == SWzdChoice::kPlainText
                                     ? TextOf(choice.text)
                                     : Std(FillText(choice.text, {choice.argument}));
        text << (&choice == items.data() ? "" : "<br>") << "`" << std::hex << std::uppercase << choice.code << std::dec
             << "` " << item;
    }
    return text.str();
}

std::string Devices(const SDeclaredField& field)
{
    std::string text = field.devices == kListBits    ? "bit device and number"
                       : field.devices == kListWords ? "word device and number"
                                                     : "device and number";
    for (const SWzdConstant& constant : field.constants)
        text += "<br>" + Std(FormatDeviceName(constant.code)) + " " +
                RangeText(constant.format, constant.range, constant.rangeText);
    return text;
}

template <typename T, typename TText>
std::string Lines(const std::vector<T>& all, TText text)
{
    std::string lines;
    for (const T& one : all)
        lines += (lines.empty() ? "" : "<br>") + text(one);
    return lines;
}

std::string ContentOf(const SPageRow& row)
{
    if (!row.items.empty())
        return Items(row.items);
    if (row.field.combo != 0)
        return Devices(row.field);
    return Lines(row.ranges, [](const std::string& range) { return range; });
}

std::string PlaceOf(const SDeclaredField& field)
{
    const int last = field.bits.shift + field.bits.width - 1;
    if (field.bits.width == 1)
        return "control code, bit " + std::to_string(last);
    if (field.bits.width > 1)
        return "control code, bits " + std::to_string(field.bits.shift) + " to " + std::to_string(last);
    if (!field.IsEntry())
        return "";
    const std::string each = field.entry.type == kOneRegister ? "one register" : "two registers";
    return "n+" + std::to_string(field.entry.offset) + ", " + each;
}

void PrintRow(std::ostream& out, const CWzdDlgBase& dialog, const SPageRow& row)
{
    const auto number = [](UINT message) { return std::to_string(message); };
    if (row.columns.empty())
    {
        out << "| " << InOneLine(LabelOf(dialog, row.field)) << " | " << ControlsOf(dialog, row.field) << " | "
            << InOneLine(ContentOf(row)) << " | " << PlaceOf(row.field) << " | " << Lines(row.messages, number)
            << " |\n";
        return;
    }
    const auto& grid = dynamic_cast<const CGridDlg&>(dialog).Grid();
    for (size_t i = 0; i < row.columns.size(); ++i)
    {
        const SGridColumn& column = row.columns[i];
        const CString heading = dialog.ItemText(grid.Controls().headings[i]);
        const int end = heading.Find('\n');
        out << "| column " << Std(end < 0 ? heading : heading.Left(end)) << " | " << grid.Controls().headings[i]
            << " | " << Lines(row.columnRanges[i], [](const std::string& range) { return range; }) << " | from n+"
            << row.field.entry.offset << ", "
            << (row.field.entry.type == kOneRegister ? "one register" : "two registers") << " each | " << column.message
            << " |\n";
    }
}

void PrintDialog(std::ostream& out, const SInstructionDialog& row, CWzdDlgBase& dialog)
{
    CString caption;
    dialog.GetWindowText(caption);
    out << "\n## " << Std(caption) << " (" << row.name << ")\n\n"
        << "| field | controls | content | place | message |\n|---|---|---|---|---|\n";
    for (const SPageRow& pageRow : RowsOf(dialog))
        PrintRow(out, dialog, pageRow);
}

constexpr char kHead[] = R"(# The fields of the dialogs

Made from what the dialogs declare; a test compares it, and `PEXLO_WRITE_PAGES=1` in its environment writes it anew. Each
row is a field, in the order in which it is checked: the ids of its controls with the names by which hosts without windows
call them; its items, each with its code in hexadecimal, or its ranges, which depend on the lists above it; where it stands
in the data table, which begins at register n; and the message that is shown when an entry is outside the range. What no
number can be read from is told by message 20001.

F174 stores its table row by row and a 0 behind it, scaling its points column by column; both are called `table`. The
controls of the screen's lines and marks are in `dialogs/process/ScreenField.cpp`, what they make of the control data in
`ScreenSettings.h`. Names that end in B and C are the dialogs of those families of controllers.
)";

} // namespace

std::string FieldsPage()
{
    std::ostringstream out;
    out << kHead;
    for (const SInstructionDialog& row : kInstructionDialogs)
    {
        CFunWizard wizard;
        SetUpController(wizard);
        wizard.SetLanguageInfo(0);
        wizard.SetStartType(2);
        const auto dialog = row.make(&wizard);
        CDialogRobot robot;
        robot.Play([&] { return static_cast<int>(dialog->DoModal()); }, {[&](CDialogRobot& opened) {
                       PrintDialog(out, row, *dialog);
                       opened.Click(IDCANCEL);
                   }});
        EXPECT_TRUE(robot.Failures().empty()) << row.name;
    }
    return out.str();
}
