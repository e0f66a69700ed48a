#include "tests/dialogs/FillDialog.h"

#include "core/Values.h"
#include "resources/resource.h"
#include "tests/dialogs/base/FieldRecorder.h"
#include "tests/dialogs/grid/GridRobot.h"

#include <gtest/gtest.h>

namespace
{

bool CanBeUsed(CDialogRobot& robot, UINT id) { return robot.Enabled(id) && robot.Visible(id); }

/// The lowest or the highest entry that a field takes.
CString Bound(CWzdDlgBase& dialog, const SDeclaredField& field, bool highest)
{
    short kind, code;
    int low, high;
    if (field.combo != 0 && dialog.GetSelectedDevice(field.combo, kind, code))
        for (const SWzdConstant& constant : field.constants)
        {
            if (constant.code != code)
                continue;
            if (constant.rangeText != 0)
                return highest ? "3.402822e+38" : "-3.402822e+38";
            return constant.format.Format(highest ? constant.range.high : constant.range.low);
        }
    if (field.combo != 0 && dialog.GetSelectedDeviceRange(field.combo, kind, code, low, high))
    {
        const auto behind = field.less > 0 ? static_cast<int>(dialog.TableWords()) - 1 : 0;
        return FormatDeviceNumber(code, highest ? high - behind : low);
    }
    if (field.IsEntry() || field.range.low <= field.range.high)
        return field.format.Format(highest ? field.range.high : field.range.low);
    EXPECT_TRUE(dialog.GetDataTableRange(low, high));
    return FormatDecimal64(highest ? high : low);
}

/// Fills some rows of the dialog's table, if it has one, with numbers that every column takes. They are typed: what
/// goes through the clipboard stays with the system.
void FillTable(CWzdDlgBase& dialog, CDialogRobot& robot, int round)
{
    if (dynamic_cast<CGridDlg*>(&dialog) == nullptr)
        return;
    robot.Focus(kGridCells);
    PressCtrl(robot, VK_HOME);
    for (int row = 0; row <= 1 + round % 11; ++row) // ascending, whatever stood there before
        TypeCells(robot, {std::to_string(500 + 10 * row + round % 10).c_str(), std::to_string(600 + row).c_str()});
    PressCtrl(robot, VK_HOME);
}

} // namespace

void FillDialog(CWzdDlgBase& dialog, CDialogRobot& robot, int round)
{
    for (const UINT check : {IDC_START_OUTPUT_ENABLE, IDC_SAME_CONDITION})
        if (robot.Exists(check))
            robot.Check(check, check == IDC_START_OUTPUT_ENABLE);
    int choice = round; // not the same in every combo: two contacts would become one
    for (const SDeclaredField& field : RecordFields(dialog))
        if (field.combo != 0)
            robot.Select(field.combo, choice++ % static_cast<int>(robot.Items(field.combo).size()));
    for (const SDeclaredField& field : RecordFields(dialog)) // where a table starts, it may have to end soon
        if (field.less > 0)
            robot.Type(field.edit, Bound(dialog, field, false));
    FillTable(dialog, robot, round);
    for (const SDeclaredField& field : RecordFields(dialog)) // their ranges may depend on the combos
    {
        if (field.check != 0 && CanBeUsed(robot, field.check))
            robot.Check(field.check);
        if (field.edit != 0 && field.edit != IDC_SCAL_POINTS && CanBeUsed(robot, field.edit)) // that follows the table
            robot.Type(field.edit, Bound(dialog, field, round % 2 != 0));
    }
    robot.Focus(IDOK); // leaving an edit may change what else is shown
}
