#include "tests/afx/desktop/TestDialog.h"

using namespace desktop;

namespace
{
class ButtonControl : public ::testing::Test
{
protected:
    ButtonControl()
        : dialog(TemplateBuilder(WS_POPUP | WS_CAPTION | WS_VISIBLE)
                     .Control(kButton, 1, "&OK", BS_DEFPUSHBUTTON | WS_TABSTOP)
                     .Control(kButton, 2, "&Back", BS_PUSHBUTTON | WS_TABSTOP)
                     .Control(kButton, 10, "auto", BS_AUTOCHECKBOX | WS_TABSTOP)
                     .Control(kButton, 11, "manual", BS_CHECKBOX | WS_TABSTOP)
                     .Control(kButton, 13, "group", BS_GROUPBOX)
                     .Control(kButton, 20, "a", BS_AUTORADIOBUTTON | WS_GROUP | WS_TABSTOP)
                     .Control(kButton, 21, "b", BS_AUTORADIOBUTTON)
                     .Control(kButton, 22, "c", BS_AUTORADIOBUTTON)
                     .Control(kButton, 30, "x", BS_AUTORADIOBUTTON | BS_PUSHLIKE | WS_GROUP | WS_TABSTOP)
                     .Control(kButton, 31, "y", BS_AUTORADIOBUTTON | BS_PUSHLIKE)
                     .Control(kButton, 40, "n", BS_PUSHBUTTON | BS_NOTIFY | WS_GROUP | WS_TABSTOP))
    {
        dialog.Log();
    }

    UINT Checked(int id) const { return IsDlgButtonChecked(dialog.Window(), id); }
    void Click(int id) { dialog.Send(id, BM_CLICK); }
    std::string Radio(int first, int last)
    {
        std::string checks;
        for (int id = first; id <= last; ++id)
            checks += Checked(id) ? '1' : '0';
        return checks;
    }

    TestDialog dialog;
};
} // namespace

TEST_F(ButtonControl, AClickTellsTheParent)
{
    Click(2);
    EXPECT_EQ(dialog.Log(), "2:0");
    EXPECT_EQ(dialog.FocusId(), 2);
}

TEST_F(ButtonControl, CheckBoxesChange)
{
    Click(10);
    EXPECT_EQ(Checked(10), 1u);
    Click(10);
    EXPECT_EQ(Checked(10), 0u);
    EXPECT_EQ(dialog.Log(), "10:0 10:0");
    Click(11); // The program checks this one itself.
    EXPECT_EQ(Checked(11), 0u);
}

TEST_F(ButtonControl, CheckingByTheProgramIsSilent)
{
    CheckDlgButton(dialog.Window(), 10, BST_CHECKED);
    EXPECT_EQ(Checked(10), 1u);
    EXPECT_EQ(dialog.Send(10, BM_GETCHECK), 1);
    CheckDlgButton(dialog.Window(), 1, BST_CHECKED); // A push button has no check.
    EXPECT_EQ(Checked(1), 0u);
    CheckDlgButton(dialog.Window(), 10, 5);
    EXPECT_EQ(Checked(10), 1u);
    EXPECT_EQ(dialog.Log(), "");
}

TEST_F(ButtonControl, RadioButtonsOfAGroupExclude)
{
    Click(21);
    EXPECT_EQ(Radio(20, 22), "010");
    Click(22);
    EXPECT_EQ(Radio(20, 22), "001");
    Click(30);
    EXPECT_EQ(Radio(20, 22), "001");
    EXPECT_EQ(Radio(30, 31), "10");
    Click(31);
    EXPECT_EQ(Radio(30, 31), "01");
    CheckRadioButton(dialog.Window(), 20, 22, 20);
    EXPECT_EQ(Radio(20, 22), "100");
    // Without the dialog's help only the one button changes.
    CheckDlgButton(dialog.Window(), 22, BST_CHECKED);
    EXPECT_EQ(Radio(20, 22), "101");
}

TEST_F(ButtonControl, TheCheckedRadioButtonIsTheTabStop)
{
    Click(21);
    EXPECT_EQ(GetWindowLongA(dialog.Item(20), GWL_STYLE) & static_cast<LONG>(WS_TABSTOP), 0);
    EXPECT_NE(GetWindowLongA(dialog.Item(21), GWL_STYLE) & static_cast<LONG>(WS_TABSTOP), 0);
}

TEST_F(ButtonControl, TheSpaceKeyClicks)
{
    SetFocus(dialog.Item(10));
    dialog.Log();
    SendMessageA(dialog.Item(10), WM_KEYDOWN, VK_SPACE, 1);
    EXPECT_EQ(Checked(10), 0u);
    EXPECT_TRUE(dialog.Send(10, BM_GETSTATE) & BST_PUSHED);
    SendMessageA(dialog.Item(10), WM_KEYUP, VK_SPACE, static_cast<LPARAM>(0xC0000001));
    EXPECT_EQ(Checked(10), 1u);
    EXPECT_EQ(dialog.Log(), "10:0");
}

TEST_F(ButtonControl, TheMouseClicks)
{
    SendMessageA(dialog.Item(2), WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(3, 3));
    EXPECT_EQ(GetCapture(), dialog.Item(2));
    EXPECT_EQ(dialog.FocusId(), 2);
    EXPECT_EQ(dialog.Log(), "");
    SendMessageA(dialog.Item(2), WM_LBUTTONUP, 0, MAKELPARAM(3, 3));
    EXPECT_EQ(dialog.Log(), "2:0");
    EXPECT_EQ(GetCapture(), nullptr);
    // Let go beside it
    SendMessageA(dialog.Item(2), WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(3, 3));
    SendMessageA(dialog.Item(2), WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(-9, 3));
    SendMessageA(dialog.Item(2), WM_LBUTTONUP, 0, MAKELPARAM(-9, 3));
    EXPECT_EQ(dialog.Log(), "");
}

TEST_F(ButtonControl, FocusIsToldWhenAskedFor)
{
    SetFocus(dialog.Item(40));
    EXPECT_EQ(dialog.Log(), "40:6");
    SetFocus(dialog.Item(2));
    EXPECT_EQ(dialog.Log(), "40:7");
}

TEST_F(ButtonControl, DialogCodes)
{
    EXPECT_EQ(dialog.Send(1, WM_GETDLGCODE), DLGC_BUTTON | DLGC_DEFPUSHBUTTON);
    EXPECT_EQ(dialog.Send(2, WM_GETDLGCODE), DLGC_BUTTON | DLGC_UNDEFPUSHBUTTON);
    EXPECT_EQ(dialog.Send(10, WM_GETDLGCODE), DLGC_BUTTON);
    EXPECT_EQ(dialog.Send(13, WM_GETDLGCODE), DLGC_STATIC);
    EXPECT_EQ(dialog.Send(20, WM_GETDLGCODE), DLGC_BUTTON | DLGC_RADIOBUTTON);
}

TEST_F(ButtonControl, DisabledButtonsDoNotTakeTheFocus)
{
    EnableWindow(dialog.Item(2), FALSE);
    SetFocus(dialog.Item(2));
    EXPECT_NE(dialog.FocusId(), 2);
}
