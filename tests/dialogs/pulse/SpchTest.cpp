// What is particular to the dialog of F176: the labels, messages, registers and results of both arc methods.
#include "tests/dialogs/pulse/PulseFormTest.h"

namespace
{

class CSpchTest : public CPulseFormTest
{
protected:
    const SPulseForm& m_pass = PulseForm("SpchPass");
    const SPulseForm& m_center = PulseForm("SpchCenter");
};

/// The controls that belong to the calculated center: from 2514 to 2516 in tab order.
void ExpectMethod(CDialogRobot& dialog, bool center)
{
    EXPECT_EQ(dialog.Text(2510), CString(center ? "Center position" : "Pass position"));
    int inside = 0;
    bool isInside = false;
    for (const SRobotControl& control : dialog.Controls())
    {
        isInside = isInside || control.id == 2514;
        inside += isInside ? 1 : 0;
        EXPECT_EQ(control.visible, !isInside || !center) << control.id << ", " << control.text;
        EXPECT_EQ(control.enabled, !isInside || !center) << control.id << ", " << control.text;
        isInside = isInside && control.id != 2516;
    }
    EXPECT_EQ(inside, 5); // "Center position", "X-axis", its register, "Y-axis", its register
}

void ExpectResults(CDialogRobot& dialog, int start)
{
    const std::pair<UINT, int> kOffsets[] = {{2513, 12}, {2515, 14}, {2516, 16}};
    for (const auto& [label, offset] : kOffsets)
    {
        if (label != 2513 && !dialog.Visible(label))
            continue; // nobody sees them
        EXPECT_EQ(std::string(dialog.Text(label)), start < 0 ? "" : " DT " + std::to_string(start + offset))
            << "of " << label;
    }
}

void EnterStart(CDialogRobot& dialog, const char* text)
{
    SetTextByProgram(dialog, 2501, text);
    dialog.Focus(2501);
    dialog.Focus(2052);
}

} // namespace

TEST_F(CSpchTest, FollowsTheMethod)
{
    Leave(m_pass, [](CDialogRobot& dialog) {
        ExpectMethod(dialog, false);
        EXPECT_EQ(dialog.Text(2502), CString("(0 - 32747)"));
        for (int round = 0; round < 2; ++round)
        {
            dialog.Select(2506, 1);
            ExpectMethod(dialog, true);
            EXPECT_EQ(dialog.Text(2502), CString("(0 - 32751)"));
            dialog.Select(2506, 0);
            ExpectMethod(dialog, false);
            EXPECT_EQ(dialog.Text(2502), CString("(0 - 32747)"));
        }
        dialog.Select(2506, 1);
        SelectByProgram(dialog, 2506, -1); // anything but the center
        ExpectMethod(dialog, false);
        EXPECT_EQ(dialog.Text(2502), CString("(0 - 32747)"));
        dialog.Select(2506, 1);
        dialog.Click(2099);
        ExpectMethod(dialog, false);
        EXPECT_EQ(dialog.Text(2502), CString("(0 - 32747)"));
    });
    for (const int code : {0x000, 0x100, 0x200, 0xF00})
    {
        WriteResults(m_wizard, {.data = {{9, 1, 1, 1, code}}});
        Leave(m_pass, [&](CDialogRobot& dialog) {
            ExpectMethod(dialog, code == 0x100);
            EXPECT_EQ(dialog.Text(2502), CString(code == 0x100 ? "(0 - 32751)" : "(0 - 32747)"));
        });
    }
}

TEST_F(CSpchTest, RefusesThePositionsOfTheMethod)
{
    Leave(m_pass, [this](CDialogRobot& dialog) {
        FillIn(dialog, m_pass);
        for (const int method : {0, 1, -1, 0})
        {
            SCOPED_TRACE(testing::Message() << "method " << method);
            SelectByProgram(dialog, 2506, method);
            dialog.Type(2511, "8388608");
            dialog.Type(2512, "-8388609");
            ExpectRefusal(dialog, method == 1 ? 20017 : 20016, 2511);
            dialog.Type(2511, "8388607");
            ExpectRefusal(dialog, method == 1 ? 20019 : 20018, 2512);
        }
    });
}

TEST_F(CSpchTest, NamesTheRegistersOfTheResults)
{
    SetDeviceRange(m_wizard, kDT, 10, 1000);
    Leave(m_pass, [](CDialogRobot& dialog) {
        ExpectResults(dialog, -1);
        const struct
        {
            const char* text;
            int method;
            int start;
        } rows[] = {{"10", 0, 10}, {"983", 0, 983}, {"984", 0, -1},  {"500", 0, 500}, {"9", 0, -1},    {"77", 0, 77},
                    {"", 0, -1},   {"77", 0, 77},   {"x", 0, -1},    {"984", 1, 984}, {"987", 1, 987}, {"988", 1, -1},
                    {"10", 1, 10}, {"-10", 1, -1},  {"983", 0, 983}, {"-", 0, -1}};
        for (const auto& row : rows)
        {
            SCOPED_TRACE(testing::Message() << row.method << ", " << row.text);
            dialog.Select(2506, row.method);
            EnterStart(dialog, row.text);
            ExpectResults(dialog, row.start);
        }
        // The method decides whether a start has room.
        dialog.Select(2506, 1);
        EnterStart(dialog, "985");
        ExpectResults(dialog, 985);
        dialog.Select(2506, 0);
        ExpectResults(dialog, -1);
        dialog.Select(2506, 1);
        ExpectResults(dialog, 985);
        dialog.Click(2099);
        ExpectResults(dialog, -1);
    });
    WriteResults(m_wizard, {.operands = {{9, 983}}});
    Leave(m_pass, [](CDialogRobot& dialog) { ExpectResults(dialog, 983); });
    WriteResults(m_wizard, {.operands = {{9, 984}}});
    Leave(m_pass, [](CDialogRobot& dialog) { ExpectResults(dialog, -1); });
    WriteResults(m_wizard, {.operands = {{9, 984}}, .data = {{9, 1, 1, 1, 0x100}}});
    Leave(m_pass, [](CDialogRobot& dialog) { ExpectResults(dialog, 984); });
}

// Registers have no sign, and their names follow the start once it is left.
TEST_F(CSpchTest, NamesTheRegistersWhenTheStartIsLeft)
{
    Leave(m_pass, [](CDialogRobot& dialog) {
        EnterStart(dialog, "0");
        ExpectResults(dialog, 0);
        for (const char* text : {"-", "-0", ""})
        {
            dialog.Focus(2501);
            SetTextByProgram(dialog, 2501, text);
            ExpectResults(dialog, 0);
            dialog.Focus(2061);
            ExpectResults(dialog, -1);
            EnterStart(dialog, "0");
        }
    });
}

TEST_F(CSpchTest, LimitsTheStartAsItsRangeDoes)
{
    SetDeviceRange(m_wizard, kDT, 0, 113); // up to 96, or 100 with a center
    Leave(m_pass, [](CDialogRobot& dialog) {
        ExpectLimits(dialog, {{2501, 2}});
        dialog.Select(2506, 1);
        ExpectLimits(dialog, {{2501, 3}});
        dialog.Click(2099);
        ExpectLimits(dialog, {{2501, 2}});
    });
}

TEST_F(CSpchTest, TakesAStartFourRegistersHigherWithACenter)
{
    SetDeviceRange(m_wizard, kDT, 10, 1000);
    Confirm(m_center, [this](CDialogRobot& dialog) {
        FillIn(dialog, m_center);
        dialog.Type(2501, "987");
        dialog.Select(2506, 0);
        ExpectRefusal(dialog, 20003, 2501);
        dialog.Select(2506, 1);
    });
    EXPECT_EQ(ReadResults(m_wizard).operands, (std::vector<SOperandRow>{{9, 987}, {11, 0}}));
}

// Where there is room for one method alone, the stored one decides whether the dialog can be used.
TEST_F(CSpchTest, NeedsMoreRegistersWithoutACenter)
{
    SetDeviceRange(m_wizard, kDT, 10, 23);
    Leave(m_pass, [](CDialogRobot& dialog) { ExpectOnlyFirstAndBack(dialog); });
    WriteResults(m_wizard, {.data = {{9, 1, 1, 1, 0x100}}});
    Leave(m_pass, [this](CDialogRobot& dialog) {
        EXPECT_EQ(dialog.Text(2502), CString("(10 - 10)"));
        FillIn(dialog, m_center);
        dialog.Type(2501, "10");
        dialog.Select(2506, 0);
        ExpectRefusal(dialog, 20003, 2501);
    });
}

TEST_F(CSpchTest, TakesTheCommentsFromItsLabels)
{
    for (const SPulseForm* form : {&m_pass, &m_center})
    {
        Confirm(*form, [&](CDialogRobot& dialog) {
            FillIn(dialog, *form);
            for (const UINT label : {2510, 2517, 2518, 2519, 2520, 2521, 2522})
                SetTextByProgram(dialog, label, "<" + std::to_string(label) + ">");
        });
        EXPECT_EQ(ReadResults(m_wizard).comments,
                  (std::vector<std::string>{"Control code", "<2517>", "<2518> <2519>", "<2518> <2520>", "<2510> <2521>",
                                            "<2510> <2522>"}));
    }
}

TEST_F(CSpchTest, StoresChannel0WhateverWasStored)
{
    WriteResults(m_wizard, {.operands = {{9, 1}, {11, 4}}});
    for (const bool only : {false, true})
    {
        EXPECT_EQ(Confirmed(m_pass, {.onlyDataTable = only}).operands, (std::vector<SOperandRow>{{9, 100}, {11, 0}}));
        EXPECT_EQ(Confirmed(m_center, {.onlyDataTable = only}).operands, (std::vector<SOperandRow>{{9, 100}, {11, 0}}));
    }
}
