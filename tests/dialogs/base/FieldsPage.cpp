#include "tests/dialogs/base/FieldsPage.h"

#include "core/FillText.h"
#include "core/Values.h"
#include "dialogs/grid/GridDlg.h"
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

/// Also the fields that do not count at the moment.
class CWholeRecorder : public CFieldRecorder
{
public:
    using CFieldRecorder::CFieldRecorder;

protected:
    bool VisitsInactive() const override { return true; }
};

/// A field, with the ranges that it has in one state of the dialog or another.
struct SPageRow
{
    SDeclaredField field;
    std::vector<std::string> ranges;
};

std::string Std(const CString& text) { return static_cast<const char*>(text); }

std::string InOneLine(std::string text)
{
    std::replace(text.begin(), text.end(), '\n', ' ');
    std::replace(text.begin(), text.end(), '\t', ' ');
    return text;
}

std::string RangeOf(const SDeclaredField& field)
{
    if (field.edit == 0 || !field.IsEntry())
        return "";
    return Std(field.format.Format(field.range.low)) + " to " + Std(field.format.Format(field.range.high));
}

void AddRanges(std::vector<SPageRow>& rows, CWzdDlgBase& dialog)
{
    CWholeRecorder recorder(dialog);
    dialog.DoFieldExchange(&recorder);
    for (const SDeclaredField& field : recorder.m_fields)
    {
        const auto same = [&](const SPageRow& row) {
            return row.field.edit == field.edit && row.field.combo == field.combo &&
                   row.field.entry.offset == field.entry.offset && row.field.rangeLabel == field.rangeLabel;
        };
        auto row = std::find_if(rows.begin(), rows.end(), same);
        if (row == rows.end())
            row = rows.insert(rows.end(), SPageRow{field, {}});
        const std::string range = RangeOf(field);
        if (!range.empty() && std::find(row->ranges.begin(), row->ranges.end(), range) == row->ranges.end())
            row->ranges.push_back(range);
    }
}

/// In every state that the items of one list lead to.
std::vector<SPageRow> RowsOf(CWzdDlgBase& dialog)
{
    std::vector<SPageRow> rows;
    AddRanges(rows, dialog);
    const std::vector<SPageRow> first = rows;
    for (const SPageRow& row : first)
    {
        for (size_t item = 0; item < row.field.items.size(); ++item)
        {
            dialog.Select(row.field.combo, static_cast<int>(item));
            AddRanges(rows, dialog);
        }
        if (!row.field.items.empty())
            dialog.Select(row.field.combo, 0);
    }
    return rows;
}

std::string LabelOf(const CWzdDlgBase& dialog, const SDeclaredField& field)
{
    if (field.check != 0)
        return Std(dialog.ItemText(field.check));
    if (field.comment.label != 0)
        return Std(dialog.ItemText(field.comment.label) + " " + dialog.ItemText(field.comment.secondLabel));
    CString text;
    const UINT id = field.combo != 0 ? field.combo : field.edit;
    if (const CWnd* label = id != 0 ? dialog.ControlBefore(id) : nullptr)
        label->GetWindowText(text);
    else if (field.comment.text != 0)
        text.LoadString(field.comment.text);
    return Std(text);
}

std::string ControlsOf(const SDeclaredField& field)
{
    std::string ids;
    for (const UINT id : {field.check, field.combo, field.edit})
        if (id != 0)
            ids += (ids.empty() ? "" : ", ") + std::to_string(id);
    return ids;
}

std::string Items(const SDeclaredField& field)
{
    std::ostringstream text;
    for (const SWzdChoice& choice : field.items)
    {
        CString item;
        if (choice.argument == SWzdChoice::kPlainText)
            item.LoadString(choice.text);
        else
            item = FillText(choice.text, {choice.argument});
        text << (&choice == field.items.data() ? "" : "<br>") << "`" << std::hex << std::uppercase << choice.code
             << std::dec << "` " << static_cast<const char*>(item);
    }
    return text.str();
}

std::string Devices(const SDeclaredField& field)
{
    std::string text = field.devices == kListBits    ? "bit device and number"
                       : field.devices == kListWords ? "word device and number"
                                                     : "device and number";
    for (const SWzdConstant& constant : field.constants)
        text += std::string("<br>") + static_cast<const char*>(FormatDeviceName(constant.code)) + " " +
                Std(constant.format.Format(constant.range.low)) + " to " +
                Std(constant.format.Format(constant.range.high));
    return text;
}

std::string ContentOf(const SPageRow& row)
{
    if (!row.field.items.empty())
        return Items(row.field);
    if (row.field.combo != 0)
        return Devices(row.field);
    std::string text;
    for (const std::string& range : row.ranges)
        text += (text.empty() ? "" : "<br>") + range;
    return text;
}

std::string PlaceOf(const SDeclaredField& field)
{
    if (field.bits.width > 0)
        return "control code, bits " + std::to_string(field.bits.shift) + " to " +
               std::to_string(field.bits.shift + field.bits.width - 1);
    if (!field.IsEntry())
        return "";
    const std::string each = field.entry.type == kOneRegister ? "one register" : "two registers";
    return "n+" + std::to_string(field.entry.offset) + ", " + each +
           (field.entry.count > 1 ? " each, " + std::to_string(field.entry.count) + " of them" : "");
}

void PrintRow(std::ostream& out, const CWzdDlgBase& dialog, const SPageRow& row)
{
    const SDeclaredField& field = row.field;
    const std::string controls = ControlsOf(field), place = PlaceOf(field);
    if (controls.empty() && place.empty())
        return; // a label that follows others
    out << "| " << InOneLine(LabelOf(dialog, field)) << " | " << controls << " | " << InOneLine(ContentOf(row)) << " | "
        << place << " | " << (field.message != 0 ? std::to_string(field.message) : "") << " |\n";
}

void PrintDialog(std::ostream& out, const SInstructionDialog& row, CWzdDlgBase& dialog)
{
    CString caption;
    dialog.GetWindowText(caption);
    out << "\n## " << row.name << ": " << static_cast<const char*>(caption) << "\n\n"
        << "| field | controls | content | place | message |\n|---|---|---|---|---|\n";
    for (const SPageRow& pageRow : RowsOf(dialog))
        PrintRow(out, dialog, pageRow);
    if (auto* withTable = dynamic_cast<CGridDlg*>(&dialog))
        for (const UINT heading : withTable->Grid().Controls().headings)
            out << "| column " << InOneLine(Std(dialog.ItemText(heading))) << " | " << heading << " | | | |\n";
}

} // namespace

std::string FieldsPage()
{
    std::ostringstream out;
    out << "# The fields of the dialogs\n\n"
           "Made from what the dialogs declare; a test compares it (`PEXLO_WRITE_PAGES=1` writes it anew). Each row is "
           "a "
           "field in the\norder in which it is checked: the ids of its controls; its items, each with its code in "
           "hexadecimal, or its range, one for\neach state of the lists that it depends on; where it stands in the "
           "data table, which begins at register n; and the message\nthat is shown when an entry is outside the range. "
           "What no number can be read from is told by message 20001.\n";
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
