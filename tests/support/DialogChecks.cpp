#include "tests/support/DialogChecks.h"

#include "resources/resource.h"
#include "tests/resources/EnglishTexts.h"
#include "tests/support/AllocationFaults.h"
#include "tests/support/PrintTo.h"

#include <gtest/gtest.h>

#include <map>
#include <span>

namespace
{

std::string TextOf(const CWnd* control)
{
    CString text;
    if (control != nullptr)
        control->GetWindowText(text);
    return static_cast<LPCSTR>(text);
}

} // namespace

std::string MessageText(unsigned id)
{
    for (const std::span<const SEnglishText> texts :
         {std::span<const SEnglishText>(kEnglishTexts), std::span<const SEnglishText>(kLibraryMessages)})
        for (const SEnglishText& text : texts)
            if (text.id == id)
                return text.text;
    return "no message " + std::to_string(id);
}

std::string DeviceName(int code)
{
    static const std::map<int, const char*> names = {{3, "X"}, {2, "Y"}, {1, "R"},  {20001, "Sp.R"}, {4, "T"},
                                                     {5, "C"}, {0, "L"}, {18, "E"}, {17, "P"}};
    return names.at(code);
}

void ExpectRefusal(CDialogRobot& dialog, unsigned message, unsigned edit)
{
    const size_t boxes = dialog.MessageBoxes().size();
    EXPECT_EQ(dialog.ClickAndAnswer(IDOK), CString(MessageText(message).c_str()));
    ASSERT_EQ(dialog.MessageBoxes().size(), boxes + 1);
    EXPECT_EQ(dialog.MessageBoxes().back().caption, CString(kTestAppName));
    EXPECT_EQ(dialog.MessageBoxes().back().icon, UINT{MB_ICONEXCLAMATION});
    EXPECT_TRUE(dialog.IsOpen());
    EXPECT_EQ(dialog.FocusId(), edit);
    const std::pair<int, int> all = {0, dialog.Text(edit).GetLength()};
    EXPECT_EQ(dialog.SelectedRange(edit), all) << "of edit " << edit;
}

int ConfirmShortOfMemory(CDialogRobot& dialog)
{
    constexpr int kTooMany = 1000;
    int refusals = 0;
    while (dialog.IsOpen() && refusals < kTooMany)
    {
        CString message;
        bool failed = false;
        {
            CAllocationFaults faults(refusals);
            message = dialog.ClickAndAnswer(IDOK);
            failed = faults.Failures() > 0;
        }
        EXPECT_EQ(message, failed ? CString(MessageText(20002).c_str()) : CString());
        EXPECT_EQ(dialog.IsOpen(), failed);
        if (testing::Test::HasFailure())
            break;
        refusals += failed ? 1 : 0;
    }
    return refusals;
}

void ExpectControls(const CDialogRobot& dialog, const std::vector<SShownControl>& expected)
{
    const std::vector<SRobotControl> controls = dialog.Controls();
    ASSERT_EQ(controls.size(), expected.size());
    for (size_t i = 0; i < controls.size(); ++i)
    {
        SCOPED_TRACE(testing::Message() << "control " << i << ": " << expected[i].text);
        EXPECT_EQ(controls[i].id, expected[i].id);
        EXPECT_EQ(controls[i].className, CString(expected[i].className));
        EXPECT_EQ(controls[i].text, CString(expected[i].text));
        EXPECT_EQ(controls[i].enabled, expected[i].enabled);
        EXPECT_EQ(controls[i].visible, expected[i].visible);
    }
}

void ExpectTabOrder(CDialogRobot& dialog, const std::vector<UINT>& order)
{
    for (size_t i = 0; i <= order.size(); ++i)
    {
        EXPECT_EQ(dialog.FocusId(), order[i % order.size()]) << "after " << i << " tabs";
        dialog.PressKey(VK_TAB);
    }
    dialog.PressKey(VK_TAB, {VK_SHIFT});
    for (size_t i = order.size(); i-- > 0;)
    {
        dialog.PressKey(VK_TAB, {VK_SHIFT});
        EXPECT_EQ(dialog.FocusId(), order[i]) << "on the way back";
    }
}

void ExpectOnlyFirstAndBack(const CDialogRobot& dialog)
{
    const std::vector<SRobotControl> controls = dialog.Controls();
    for (size_t i = 0; i < controls.size(); ++i)
        EXPECT_EQ(controls[i].enabled, i == 0 || controls[i].id == IDCANCEL) << "control " << i;
}

void ExpectLimits(CDialogRobot& dialog, const std::vector<std::pair<UINT, int>>& limits)
{
    for (const auto& [edit, limit] : limits)
    {
        EXPECT_EQ(dialog.Limit(edit), limit) << "of edit " << edit;
        dialog.Type(edit, "12345678901234567890");
        EXPECT_EQ(dialog.Text(edit), CString("12345678901234567890").Left(limit)) << "typed into edit " << edit;
    }
}

CWnd* ControlBefore(CDialogRobot& dialog, UINT id, int steps)
{
    CWnd* control = dialog.Dialog()->GetDlgItem(id);
    while (control != nullptr && steps-- > 0)
        control = control->GetWindow(GW_HWNDPREV);
    return control;
}

CWnd* ControlAfter(CDialogRobot& dialog, UINT id, int steps)
{
    CWnd* control = dialog.Dialog()->GetDlgItem(id);
    while (control != nullptr && steps-- > 0)
        control = control->GetWindow(GW_HWNDNEXT);
    return control;
}

std::string TextBefore(CDialogRobot& dialog, UINT id) { return TextOf(ControlBefore(dialog, id)); }

std::string TextAfter(CDialogRobot& dialog, UINT id, int steps) { return TextOf(ControlAfter(dialog, id, steps)); }

void SelectSilently(CDialogRobot& dialog, UINT combo, int index)
{
    dialog.Dialog()->SendDlgItemMessage(combo, CB_SETCURSEL, static_cast<WPARAM>(index));
}

void SelectByProgram(CDialogRobot& dialog, UINT combo, int index)
{
    SelectSilently(dialog, combo, index);
    dialog.Dialog()->SendMessage(WM_COMMAND, MAKEWPARAM(combo, CBN_SELCHANGE));
}

void SetTextByProgram(CDialogRobot& dialog, UINT id, const std::string& text)
{
    dialog.Dialog()->GetDlgItem(id)->SendMessage(WM_SETTEXT, 0, reinterpret_cast<LPARAM>(text.c_str()));
}
