// What the rows of numbers can say besides their range: notation, comments, shown ranges, being left out.
#include "dialogs/fields/Rows.h"
#include "tests/dialogs/base/ProbeDlg.h"

namespace
{

constexpr SWzdChoice kModes[] = {{IDS_INCREMENTAL_CW_CCW, 0x11}, {IDS_ABSOLUTE_CW_CCW, 0x12}, {IDS_HOMING1_CW, 0x00}};
constexpr SWzdChoice kNotations[] = {{IDS_DUTY_50_PERCENT, 0}, {IDS_FIXED_PULSE_WIDTH, 1}};

class CNumberRowsTest : public CProbeTest
{
protected:
    void SetUp() override
    {
        CProbeTest::SetUp();
        m_wizard.SetCmtRec(1);
    }

    /// The data and comments that a row stores for an entry.
    SResults Stored(const SWzdRow& row, LPCSTR text)
    {
        EXPECT_EQ(InProbe([&](CWzdExchange* wx) { WDX_Number(wx, row); },
                          [&](CDialogRobot& robot) {
                              robot.Type(row.edit, text);
                              robot.Click(IDOK);
                          }),
                  1);
        return ReadResults(m_wizard);
    }
};

void DeclareStart(CWzdExchange* wx)
{
    WDX_TableStart(wx, {.edit = IDC_PROBE_START, .rangeLabel = IDC_PROBE_START_RANGE});
}

constexpr SWzdRow kNumber = {
    .edit = IDC_PROBE_NUMBER, .entry = {1}, .limit = 6, .range = {-20, 3000}, .message = IDS_ERR_FREQUENCY};

SWzdRow Commented(const SWzdComment& comment)
{
    SWzdRow row = kNumber;
    row.comment = comment;
    return row;
}

constexpr SWzdRow kOptional = {.edit = IDC_PROBE_OPTIONAL,
                               .entry = {4},
                               .format = Fixed(2, 1),
                               .limit = 4,
                               .range = {0, 500},
                               .message = IDS_ERR_DUTY,
                               .check = IDC_PROBE_CHECK,
                               .initial = "1.5",
                               .used = true};

} // namespace

// ---- The control code -----------------------------------------------------------------------------------------------

TEST_F(CNumberRowsTest, ACodeOf0IsNotNoCode)
{
    const auto declare = [](CWzdExchange* wx) {
        WDX_ControlCode(wx, kOneRegister);
        WDX_Code(wx, {.combo = IDC_PROBE_COMBO, .choices = kModes, .bits = {0, 16}});
    };
    InProbe(declare, [](CDialogRobot& robot) { EXPECT_EQ(robot.Selection(IDC_PROBE_COMBO), 0); });
    m_wizard.AddDataInfo(kK, 0, 0, 0, 0);
    InProbe(declare, [](CDialogRobot& robot) { EXPECT_EQ(robot.Selection(IDC_PROBE_COMBO), 0); });
    m_wizard.RemoveAllDataInfo();
    m_wizard.AddDataInfo(kDT, 0, 0, 1, 0);
    InProbe(declare, [](CDialogRobot& robot) { EXPECT_EQ(robot.Selection(IDC_PROBE_COMBO), 2); });
}

TEST_F(CNumberRowsTest, TheCodeCanBeWrittenInDecimal)
{
    const auto declare = [](CWzdExchange* wx) {
        WDX_ControlCode(wx, kOneRegister, kDecimalConstant);
        WDX_Code(wx, {.combo = IDC_PROBE_COMBO, .choices = kModes, .bits = {0, 16}});
    };
    InProbe(declare, [](CDialogRobot& robot) { robot.Click(IDOK); });
    EXPECT_EQ(ReadResults(m_wizard).data, (std::vector<SDataRow>{{kDT, 0, 0, 0, 0x11}}));
}

// ---- Comments -------------------------------------------------------------------------------------------------------

TEST_F(CNumberRowsTest, CommentsComeFromLabelsAndTexts)
{
    EXPECT_EQ(Stored(kNumber, "1").comments, (std::vector<std::string>{"First number"}));
    EXPECT_EQ(Stored(Commented({.label = IDC_PROBE_FIRST_LABEL}), "1").comments, (std::vector<std::string>{"Speed"}));
    EXPECT_EQ(Stored(Commented({.label = IDC_PROBE_FIRST_LABEL, .secondLabel = IDC_PROBE_SECOND_LABEL}), "1").comments,
              (std::vector<std::string>{"Speed at first"}));
    EXPECT_EQ(Stored(Commented({.text = IDS_CONTROL_CODE}), "1").comments, (std::vector<std::string>{"Control code"}));
}

TEST_F(CNumberRowsTest, MissingLabelsGiveNoComment)
{
    EXPECT_EQ(Stored(Commented({.label = IDC_PROBE_NOTHING}), "1").comments, std::vector<std::string>());
    EXPECT_EQ(Stored(Commented({.label = IDC_PROBE_NOTHING, .secondLabel = IDC_PROBE_SECOND_LABEL}), "1").comments,
              std::vector<std::string>());
    SWzdRow unlabelled = kNumber;
    unlabelled.edit = IDC_PROBE_UNLABELLED;
    EXPECT_EQ(Stored(unlabelled, "1").comments, std::vector<std::string>());
}

TEST_F(CNumberRowsTest, CommentsFollowTheLabelsOfTheMoment)
{
    InProbe([](CWzdExchange* wx) { WDX_Number(wx, Commented({.label = IDC_PROBE_FIRST_LABEL})); },
            [&](CDialogRobot& robot) {
                m_probe.SetItemText(IDC_PROBE_FIRST_LABEL, "Another");
                robot.Type(IDC_PROBE_NUMBER, "1");
                robot.Click(IDOK);
            });
    EXPECT_EQ(ReadResults(m_wizard).comments, (std::vector<std::string>{"Another"}));
}

// ---- Notation and range ---------------------------------------------------------------------------------------------

TEST_F(CNumberRowsTest, NotationLimitAndStyleFollowASelection)
{
    const auto declare = [](CWzdExchange* wx) {
        WDX_ControlCode(wx, kOneRegister);
        WDX_Code(wx, {.combo = IDC_PROBE_COMBO, .choices = kNotations, .bits = {0, 4}});
        const bool whole = wx->Dialog().Selection(IDC_PROBE_COMBO) == 1;
        SWzdRow row = kNumber;
        row.format = whole ? kUnsigned : Fixed(2, 1);
        row.limit = whole ? 2 : 4;
        row.digitsOnly = whole;
        row.range = {0, 99};
        WDX_Number(wx, row);
    };
    InProbe(declare, [](CDialogRobot& robot) {
        EXPECT_EQ(robot.Limit(IDC_PROBE_NUMBER), 4);
        robot.Type(IDC_PROBE_NUMBER, "9.9");
        EXPECT_EQ(robot.Text(IDC_PROBE_NUMBER), "9.9");
        robot.Select(IDC_PROBE_COMBO, 1);
        EXPECT_EQ(robot.Limit(IDC_PROBE_NUMBER), 2);
        robot.Type(IDC_PROBE_NUMBER, "4.512");
        EXPECT_EQ(robot.Text(IDC_PROBE_NUMBER), "45") << "digits only, and two of them";
        robot.Select(IDC_PROBE_COMBO, 0);
        robot.Type(IDC_PROBE_NUMBER, "4.5");
        EXPECT_EQ(robot.Text(IDC_PROBE_NUMBER), "4.5");
        robot.Click(IDOK);
    });
    EXPECT_EQ(ReadResults(m_wizard).data.at(1).value, 45);
    InProbe(declare, [](CDialogRobot& robot) { EXPECT_EQ(robot.Text(IDC_PROBE_NUMBER), "4.5"); });
}

TEST_F(CNumberRowsTest, UnsignedNumbersHaveNoSign)
{
    SWzdRow row = kNumber;
    row.format = kUnsigned;
    InProbe([&](CWzdExchange* wx) { WDX_Number(wx, row); },
            [](CDialogRobot& robot) {
                for (const char* text : {"-1", " -1", "-", "1-", ""})
                {
                    robot.Type(IDC_PROBE_NUMBER, text);
                    EXPECT_EQ(robot.ClickAndAnswer(IDOK), "Please input a numerical value correctly.") << text;
                }
            });
    EXPECT_EQ(Stored(row, " 12 ").data.at(0).value, 12);
}

TEST_F(CNumberRowsTest, AnotherRangeCanBeShownThanTheOneThatCounts)
{
    SWzdRow row = kNumber;
    row.range = {1, 20000};
    row.shown = SWzdRange{1, 100000};
    row.rangeLabel = IDC_PROBE_NUMBER_RANGE;
    InProbe([&](CWzdExchange* wx) { WDX_Number(wx, row); },
            [](CDialogRobot& robot) {
                EXPECT_EQ(robot.Text(IDC_PROBE_NUMBER_RANGE), "(1 - 100000)");
                robot.Type(IDC_PROBE_NUMBER, "20001");
                EXPECT_NE(robot.ClickAndAnswer(IDOK), "");
                robot.Type(IDC_PROBE_NUMBER, "20000");
                robot.Click(IDOK);
                EXPECT_FALSE(robot.IsOpen());
            });
}

TEST_F(CNumberRowsTest, ARangeCanFollowWhatIsEnteredElsewhere)
{
    const auto declare = [](CWzdExchange* wx) {
        LONGLONG highest = 9;
        static_cast<void>(kSigned.Parse(wx->Dialog().ItemText(IDC_PROBE_OTHER), highest));
        SWzdRow row = kNumber;
        row.range = {1, highest};
        row.follows = IDC_PROBE_OTHER;
        row.rangeLabel = IDC_PROBE_NUMBER_RANGE;
        WDX_Number(wx, row);
    };
    InProbe(declare, [](CDialogRobot& robot) {
        EXPECT_EQ(robot.Text(IDC_PROBE_NUMBER_RANGE), "(1 - 9)");
        robot.Type(IDC_PROBE_OTHER, "77");
        robot.Focus(IDC_PROBE_SLOT);
        EXPECT_EQ(robot.Text(IDC_PROBE_NUMBER_RANGE), "(1 - 77)");
    });
}

TEST_F(CNumberRowsTest, WithoutALimitAnythingCanBeTyped)
{
    SWzdRow row = kNumber;
    row.limit = 0;
    InProbe([&](CWzdExchange* wx) { WDX_Number(wx, row); },
            [](CDialogRobot& robot) {
                robot.Type(IDC_PROBE_NUMBER, "12345678901234567890");
                EXPECT_EQ(robot.Text(IDC_PROBE_NUMBER), "12345678901234567890");
            });
}

TEST_F(CNumberRowsTest, AStartWithoutRangeIsStillReadFirst)
{
    const auto declare = [](CWzdExchange* wx) { DeclareStart(wx); };
    InProbe(declare, [&](CDialogRobot& robot) {
        SetDeviceRange(m_wizard, kDT, 1, 0);
        robot.SetText(IDC_PROBE_START, "x");
        EXPECT_EQ(robot.ClickAndAnswer(IDOK), "Please input a numerical value correctly.");
        robot.SetText(IDC_PROBE_START, "1");
        EXPECT_EQ(robot.ClickAndAnswer(IDOK), "The inputted data table starting address has become the outside of the "
                                              "range.\nPlease input the right value.");
    });
}

// ---- Entries that can be left out -----------------------------------------------------------------------------------

TEST_F(CNumberRowsTest, AnUncheckedEntryIsLeftOut)
{
    const auto declare = [](CWzdExchange* wx) {
        DeclareStart(wx);
        WDX_ControlCode(wx, kOneRegister);
        WDX_Number(wx, kOptional);
    };
    InProbe(declare, [](CDialogRobot& robot) {
        EXPECT_TRUE(robot.Checked(IDC_PROBE_CHECK)) << "used as long as nothing is stored";
        EXPECT_EQ(robot.Text(IDC_PROBE_OPTIONAL), "1.5");
        EXPECT_EQ(robot.Limit(IDC_PROBE_OPTIONAL), 4);
        EXPECT_TRUE(robot.Enabled(IDC_PROBE_OPTIONAL));
        EXPECT_TRUE(robot.Enabled(IDC_PROBE_OPTIONAL_RANGE));
        robot.Type(IDC_PROBE_START, "10");
        robot.SetText(IDC_PROBE_OPTIONAL, "nonsense");
        EXPECT_EQ(robot.ClickAndAnswer(IDOK), "Please input a numerical value correctly.");
        robot.Check(IDC_PROBE_CHECK, false);
        EXPECT_FALSE(robot.Enabled(IDC_PROBE_OPTIONAL));
        EXPECT_FALSE(robot.Enabled(IDC_PROBE_OPTIONAL_RANGE));
        robot.Click(IDOK);
    });
    EXPECT_EQ(ReadResults(m_wizard).data, (std::vector<SDataRow>{{kDT, 10, 0, 1, 0}}));
    EXPECT_EQ(ReadResults(m_wizard).comments, (std::vector<std::string>{"Control code"}));

    InProbe(declare, [](CDialogRobot& robot) {
        EXPECT_FALSE(robot.Checked(IDC_PROBE_CHECK));
        EXPECT_EQ(robot.Text(IDC_PROBE_OPTIONAL), "1.5");
        robot.Check(IDC_PROBE_CHECK);
        robot.Type(IDC_PROBE_OPTIONAL, "50");
        robot.Click(IDOK);
    });
    EXPECT_EQ(ReadResults(m_wizard).data, (std::vector<SDataRow>{{kDT, 10, 0, 1, 0}, {kDT, 14, 0, 0, 500}}));
    EXPECT_EQ(ReadResults(m_wizard).comments, (std::vector<std::string>{"Control code", "Optional"}));
}

TEST_F(CNumberRowsTest, AnEntryThatCanBeLeftOutIsKnownByItsRegister)
{
    const auto declare = [](CWzdExchange* wx) {
        DeclareStart(wx);
        WDX_ControlCode(wx, kOneRegister);
        WDX_Number(wx, kOptional);
        SWzdRow behind = kNumber;
        behind.entry = {5};
        WDX_Number(wx, behind);
    };
    const auto expect = [&](std::initializer_list<std::pair<int, int>> records, bool checked, LPCSTR optional,
                            LPCSTR behind) {
        m_wizard.RemoveAllDataInfo();
        for (const auto& [number, value] : records)
            m_wizard.AddDataInfo(kDT, number, 0, 0, value);
        InProbe(declare, [&](CDialogRobot& robot) {
            EXPECT_EQ(robot.Checked(IDC_PROBE_CHECK), checked);
            EXPECT_EQ(robot.Text(IDC_PROBE_OPTIONAL), optional);
            EXPECT_EQ(robot.Text(IDC_PROBE_NUMBER), behind);
        });
    };
    m_wizard.AddOprdInfo(kDT, 10);
    expect({{10, 0}, {14, 25}, {15, 7}}, true, "2.5", "7");
    expect({{10, 0}, {15, 7}}, false, "1.5", "7");
    expect({{10, 0}, {13, 25}, {15, 7}}, false, "1.5", "25"); // those always written go by position
}
