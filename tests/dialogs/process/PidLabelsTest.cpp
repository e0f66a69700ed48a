// The registers that the program fills: where the dialog of F355 shows them to be.
#include "tests/dialogs/process/PidTest.h"

namespace
{

using CPidLabelsTest = CPidTest;

void ExpectLabels(CDialogRobot& dialog, const char* pv, const char* mv, const char* workArea)
{
    EXPECT_EQ(dialog.Text(2807), CString(pv));
    EXPECT_EQ(dialog.Text(2808), CString(mv));
    EXPECT_EQ(dialog.Text(2815), CString(workArea));
}

struct SWritten
{
    const char* text;
    bool number;
    const char* pv = "";
    const char* mv = "";
    const char* workArea = "";
};

// The range does not matter: only what can be read.
constexpr SWritten kWritten[] = {
    {"100", true, " DT 102", " DT 103", " DT 110 - DT 129"},
    {"", false},
    {"0", true, " DT 2", " DT 3", " DT 10 - DT 29"},
    {"-1", false},
    {"00100", true, " DT 102", " DT 103", " DT 110 - DT 129"},
    {"x", false},
    {"99999", true, " DT 100001", " DT 100002", " DT 100009 - DT 100028"},
    {"1e2", false},
    {" 7 ", true, " DT 9", " DT 10", " DT 17 - DT 36"},
    {"1 2", false},
    {"100.", true, " DT 102", " DT 103", " DT 110 - DT 129"},
    {".", false},
    {"5.0", true, " DT 7", " DT 8", " DT 15 - DT 34"},
    {"5.5", false},
    {"+5", false},
};

TEST_F(CPidLabelsTest, FollowTheStartWhenItLosesTheFocus)
{
    Leave([](CDialogRobot& dialog) {
        ExpectLabels(dialog, "", "", "");
        for (const SWritten& written : kWritten)
        {
            SCOPED_TRACE(testing::Message() << '"' << written.text << '"');
            dialog.Focus(2801);
            dialog.Type(2801, written.text);
            dialog.Focus(2052);
            ExpectLabels(dialog, written.pv, written.mv, written.workArea);
        }
        dialog.Focus(2801);
        dialog.Type(2801, "100");
        dialog.PressKey(VK_TAB);
        ExpectLabels(dialog, " DT 102", " DT 103", " DT 110 - DT 129");
        dialog.Focus(2801);
        SetTextByProgram(dialog, 2801, "100000"); // a digit more than the entry has
        dialog.PressKey(VK_TAB);
        ExpectLabels(dialog, "", "", "");
    });
}

TEST_F(CPidLabelsTest, TellOfTheRestoredStart)
{
    const struct
    {
        std::vector<SOperandRow> operands;
        const char* start;
        const char* pv;
        const char* mv;
        const char* workArea;
    } kStored[] = {
        {{{9, 100}}, "100", " DT 102", " DT 103", " DT 110 - DT 129"},
        {{{9, 0}, {9, 5}}, "0", " DT 2", " DT 3", " DT 10 - DT 29"},
        {{{9, 99999}}, "99999", " DT 100001", " DT 100002", " DT 100009 - DT 100028"},
        {{{9, 100000}}, "100000", "", "", ""},
        {{{9, -1}}, "-1", "", "", ""},
        {{{10, 100}}, "", "", "", ""},
        {{{11, 100}}, "", "", "", ""},
        {{}, "", "", "", ""},
    };
    for (const auto& stored : kStored)
    {
        WriteResults(m_wizard, {.operands = stored.operands});
        Leave([&](CDialogRobot& dialog) {
            EXPECT_EQ(dialog.Text(2801), CString(stored.start));
            ExpectLabels(dialog, stored.pv, stored.mv, stored.workArea);
        });
    }
}

TEST_F(CPidLabelsTest, SpanTheWholeWorkArea)
{
    WriteResults(m_wizard, {.operands = {{9, 100}}});
    const struct
    {
        int workArea;
        const char* text;
    } kAreas[] = {{0, " DT 110 - DT 110"},  {1, " DT 110 - DT 111"},       {2, " DT 110 - DT 112"},
                  {19, " DT 110 - DT 129"}, {32000, " DT 110 - DT 32110"}, {1000000, " DT 110 - DT 1000110"}};
    for (const auto& [workArea, text] : kAreas)
    {
        m_workArea = workArea;
        Leave([&, span = text](CDialogRobot& dialog) { ExpectLabels(dialog, " DT 102", " DT 103", span); });
    }
}

} // namespace
