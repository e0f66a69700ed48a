// The dialog of the control code as it comes up: controls, labels, items, and the way around it by keyboard.
#include "tests/dialogs/posunit/CtrlCodeTest.h"

namespace
{

std::vector<SShownControl> ExpectedCodeControls()
{
    std::vector<SShownControl> controls;
    for (const SCodeCombo& combo : kCodeCombos)
    {
        if (combo.id == 3067)
            controls.push_back({kSharedId, "Button", "Pulse input"});
        if (combo.id == 3065)
            controls.push_back({kSharedId, "Button", "Pulse output"});
        controls.push_back({kSharedId, "Static", combo.label});
        controls.push_back({combo.id, "ComboBox", AxisFieldAt(combo.shift).items[0]});
    }
    controls.insert(controls.end(), {{kSharedId, "Button", "Control code (Hex)"},
                                     {3356, "Static", "00000000"},
                                     {3357, "Button", "&Direct input"},
                                     {1, "Button", "&OK"},
                                     {2, "Button", "Cancel"},
                                     {2003, "Button", "&Help", false, false}});
    return controls;
}

TEST_F(CCtrlCodeTest, ComesUpWithItsControls)
{
    for (const bool library : {false, true})
    {
        SCOPED_TRACE(library ? "library" : "module");
        if (library)
            UseLibrary();
        Look(0, [](CDialogRobot& dialog) {
            EXPECT_EQ(dialog.Caption(), CString("Positioning control code check/input"));
            ExpectControls(dialog, ExpectedCodeControls());
            EXPECT_EQ(dialog.FocusId(), 3351u);
        });
    }
}

TEST_F(CCtrlCodeTest, ListsItsItemsInOrder)
{
    for (const bool library : {false, true})
    {
        if (library)
            UseLibrary();
        Look(0xFFFFFFFF, [](CDialogRobot& dialog) {
            for (const SCodeCombo& combo : kCodeCombos)
            {
                const auto& items = AxisFieldAt(combo.shift).items;
                EXPECT_EQ(dialog.Items(combo.id), std::vector<CString>(items.begin(), items.end()))
                    << "of list " << combo.id;
            }
        });
    }
}

TEST_F(CCtrlCodeTest, OffersHelpWhenThereIsAHelpFile)
{
    m_wizard.SetHelpPath("C:\\tool\\help.chm");
    Look(0, [](CDialogRobot& dialog) {
        EXPECT_TRUE(dialog.Enabled(IDC_HELP_TOPIC));
        EXPECT_TRUE(dialog.Visible(IDC_HELP_TOPIC));
    });
    m_wizard.SetHelpPath("");
    Look(0, [](CDialogRobot& dialog) {
        EXPECT_FALSE(dialog.Enabled(IDC_HELP_TOPIC));
        EXPECT_FALSE(dialog.Visible(IDC_HELP_TOPIC));
    });
}

TEST_F(CCtrlCodeTest, TabGoesThroughTheListsInOrder)
{
    Look(0, [](CDialogRobot& dialog) {
        std::vector<UINT> order;
        for (const SCodeCombo& combo : kCodeCombos)
            order.push_back(combo.id);
        order.insert(order.end(), {kDirectInput, IDOK, IDCANCEL});
        ExpectTabOrder(dialog, order);
    });
}

TEST_F(CCtrlCodeTest, HasTheFontOfTheDialogs)
{
    Look(0,
         [this](CDialogRobot& dialog) {
             ExpectDialogFont(dialog);
             dialog.Click(kDirectInput);
         },
         {[this](CDialogRobot& input) {
             ExpectDialogFont(input);
             input.Click(IDCANCEL);
         }});
    EXPECT_EQ(SFunWizardTest::DialogFont(m_wizard), nullptr) << "deleted with the dialog";
}

} // namespace
