// What is particular to the dialog of F173 of family B: how its duty is read, and the codes of its frequencies.
#include "tests/dialogs/pulse/PulseFormTest.h"

namespace
{

class CPwmhChTest : public CPulseFormTest
{
protected:
    CPwmhChTest() { SetUpFamily(m_wizard, m_form); }

    const SPulseForm& m_form = PulseForm("PwmhB");
};

} // namespace

TEST_F(CPwmhChTest, ReadsTheDutyWithoutTheZerosThatEndIt)
{
    const struct
    {
        const char* text;
        int duty;
    } rows[] = {{"5", 50},      {"99.9", 999},   {".5", 5},       {"50.", 500}, {"50.0", 500},
                {"50.50", 505}, {"50.000", 500}, {"99.900", 999}, {" 7 ", 70},  {"0", 0},
                {".0", 0},      {"00", 0},       {"0.1", 1},      {"05.5", 55}, {"12.5", 125}};
    for (const auto& row : rows)
    {
        Confirm(m_form, [&](CDialogRobot& dialog) {
            FillIn(dialog, m_form);
            SetTextByProgram(dialog, 2357, row.text);
        });
        EXPECT_EQ(ReadResults(m_wizard).data[1], (SDataRow{9, 101, 0, 0, row.duty})) << '"' << row.text << '"';
    }
}

TEST_F(CPwmhChTest, RefusesADutyOfMoreDigitsAsNoNumber)
{
    Leave(m_form, [&](CDialogRobot& dialog) {
        FillIn(dialog, m_form);
        for (const char* text : {"", "100", "100.0", "050", "50.05", "99.95", "99.99", "9.9.", ".", "-1", "1e1"})
        {
            SCOPED_TRACE(text);
            SetTextByProgram(dialog, 2357, text);
            ExpectRefusal(dialog, 20001, 2357);
        }
    });
}

// Points can be typed into the edit although the template takes digits only.
TEST_F(CPwmhChTest, LetsThePointBeTyped)
{
    Leave(m_form, [](CDialogRobot& dialog) {
        dialog.Type(2357, "12.5");
        EXPECT_EQ(dialog.Text(2357), CString("12.5"));
    });
}

TEST_F(CPwmhChTest, RestoresTheFrequencyFromTheLowWordLessThree)
{
    const struct
    {
        unsigned stored;
        int item;
    } rows[] = {{0x0005, 2}, {3, 0},      {18, 15},    {0xFFFF0005, 2}, {0x00010012, 15}, {0, 0},         {2, 0},
                {19, 0},     {0x0103, 0}, {0xFFFF, 0}, {0x10000, 0},    {0xFFFFFFFD, 0},  {0x7FFF0004, 1}};
    for (const auto& row : rows)
    {
        WriteResults(m_wizard, {.data = {{9, 100, 0, 0, static_cast<int>(row.stored)}, {9, 101, 0, 0, 505}}});
        Leave(m_form, [&](CDialogRobot& dialog) {
            EXPECT_EQ(dialog.Selection(2354), row.item) << std::hex << row.stored;
            EXPECT_EQ(dialog.Text(2357), CString("50.5"));
        });
    }
}

TEST_F(CPwmhChTest, StoresCodesFromThreeToEighteen)
{
    for (const int item : {0, 15})
        EXPECT_EQ(Confirmed(m_form, {.items = {static_cast<size_t>(item)}}).data[0],
                  (SDataRow{9, 100, 0, 0, item + 3}));
}

// Whatever another form of F173 has stored.
TEST_F(CPwmhChTest, ShowsAStoredDutyAsItIsRead)
{
    for (const auto& [value, text] : {std::pair{0, "0.0"}, {5, "0.5"}, {999, "99.9"}, {500, "50.0"}, {1000, "100.0"}})
    {
        WriteResults(m_wizard, {.data = {{9, 100, 0, 0, 3}, {9, 101, 0, 0, value}}});
        Leave(m_form, [expected = text](CDialogRobot& dialog) { EXPECT_EQ(dialog.Text(2357), CString(expected)); });
    }
}
