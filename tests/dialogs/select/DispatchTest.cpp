// The way from a choice to its dialog and back, and what becomes of earlier results on the way.
#include "tests/dialogs/select/PosSelectTest.h"

namespace
{

using Scene = CDialogRobot::Scene;

Scene Choose(int item)
{
    return [item](CDialogRobot& robot) {
        robot.Select(kList, item);
        robot.Click(IDOK);
    };
}

void Cancel(CDialogRobot& robot) { robot.Click(IDCANCEL); }
void Back(CDialogRobot& robot) { robot.Click(IDCANCEL); }

/// Fills F168's dialog, in either form, and confirms it.
void Confirm(CDialogRobot& robot)
{
    robot.Type(2052, "0");
    robot.Type(2101, "100");
    robot.Type(2106, "100");
    robot.Type(2107, "1000");
    robot.Type(2108, "30");
    if (robot.Exists(2110))
        robot.Type(2110, "7");
    robot.Click(IDOK);
}

constexpr int kSpd1 = 0;
constexpr int kSpd1Home = 1;

const SResults& EarlierResults()
{
    static const SResults results = {
        {{2, kX, 5}}, {{kDT, 7}, {kK, 1}}, {{kDT, 7, 0, 1, 0}}, {"before"}, {{8, -1, 168, 0, 0}}};
    return results;
}

class CDispatchTest : public CPosSelectTest
{
protected:
    /// Results and dialog data of an earlier run of a wizard.
    void SetUpEarlierRun(int instruction, int variant)
    {
        SFunWizardTest::SetLastWizard(m_wizard, 0, instruction, variant);
        WriteResults(m_wizard, EarlierResults());
        m_wizard.RemoveDlgData();
        m_wizard.SetDlgDataPtr(::operator new(4));
    }

    void ExpectKept() const
    {
        EXPECT_EQ(ReadResults(m_wizard), EarlierResults());
        EXPECT_NE(m_wizard.GetDlgDataPtr(), nullptr);
    }

    /// Everything is gone but the comments.
    void ExpectCleared() const
    {
        SResults expected;
        expected.comments = EarlierResults().comments;
        EXPECT_EQ(ReadResults(m_wizard), expected);
        EXPECT_EQ(m_wizard.GetDlgDataPtr(), nullptr);
    }

    void ExpectLastWizard(int mode, int instruction, int variant) const
    {
        EXPECT_EQ(SFunWizardTest::UnitMode(m_wizard), mode);
        EXPECT_EQ(SFunWizardTest::LastInstruction(m_wizard), instruction);
        EXPECT_EQ(SFunWizardTest::LastVariant(m_wizard), variant);
    }
};

} // namespace

// ---- Results --------------------------------------------------------------------------------------------------------

TEST_F(CDispatchTest, RecordsTheWizardThatIsConfirmed)
{
    EXPECT_EQ(Open(0, {Choose(kSpd1), Confirm}), 1);
    ExpectLastWizard(0, 168, 0);
    EXPECT_EQ(ReadResults(m_wizard).operands, (std::vector<SOperandRow>{{kDT, 100}, {kK, 0}}));

    EXPECT_EQ(Open(0, {Choose(kSpd1Home), Confirm}), 1);
    ExpectLastWizard(0, 168, 1);
}

TEST_F(CDispatchTest, RecordsNothingWhenTheUserCancels)
{
    SFunWizardTest::SetLastWizard(m_wizard, 1, 151, 10040);
    EXPECT_EQ(Open(0, {Cancel}), 2);
    ExpectLastWizard(1, 151, 10040);
    EXPECT_EQ(Open(0, {Choose(kSpd1), Back, Cancel}), 2);
    ExpectLastWizard(1, 151, 10040);
}

TEST_F(CDispatchTest, GoesBackAndForthAsOftenAsTheUserLikes)
{
    const int result = Open(0, {Choose(kSpd1), Back, Choose(kSpd1Home), Back,
                                [](CDialogRobot& robot) {
                                    EXPECT_EQ(robot.Caption(), "Positioning processing selection");
                                    EXPECT_EQ(robot.Selection(kList), kSpd1Home);
                                    robot.Click(IDOK);
                                },
                                [](CDialogRobot& robot) {
                                    EXPECT_EQ(robot.Caption(), "F168 (SPD1)");
                                    EXPECT_FALSE(robot.Exists(2110)) << "home position return has no target value";
                                    robot.Click(IDCANCEL);
                                },
                                Choose(kSpd1),
                                [](CDialogRobot& robot) {
                                    EXPECT_TRUE(robot.Exists(2110));
                                    Confirm(robot);
                                }});
    EXPECT_EQ(result, 1);
    ExpectLastWizard(0, 168, 0);
}

// ---- Earlier results ------------------------------------------------------------------------------------------------

TEST_F(CDispatchTest, KeepsTheResultsOfTheSameChoice)
{
    SetUpEarlierRun(168, 0);
    Open(0, {Choose(kSpd1),
             [&](CDialogRobot& robot) {
                 ExpectKept();
                 EXPECT_EQ(robot.Text(2052), "5");
                 EXPECT_EQ(robot.Text(2101), "7");
                 robot.Click(IDCANCEL);
             },
             Cancel});
    ExpectKept();
}

TEST_F(CDispatchTest, KeepsTheResultsWhenNothingIsChosen)
{
    SetUpEarlierRun(168, 0);
    Open(0, {Cancel});
    ExpectKept();
    Open(1, {Cancel});
    ExpectKept();
}

TEST_F(CDispatchTest, ClearsTheResultsOfAnotherChoice)
{
    struct
    {
        int instruction, variant; // of the earlier run
        int item;                 // chosen now
    } const rows[] = {{168, 1, kSpd1}, {168, 0, kSpd1Home}, {169, 0, kSpd1},
                      {-1, 0, kSpd1},  {282, 0, kSpd1},     {169, 1, kSpd1Home}};
    for (const auto& row : rows)
    {
        SCOPED_TRACE(testing::Message() << row.instruction << "/" << row.variant);
        SetUpEarlierRun(row.instruction, row.variant);
        Open(0, {Choose(row.item),
                 [&](CDialogRobot& robot) {
                     ExpectCleared();
                     EXPECT_EQ(robot.Text(2101), "");
                     robot.Click(IDCANCEL);
                 },
                 Cancel});
        // Leaving it with Back brings nothing back.
        ExpectCleared();
        ExpectLastWizard(0, row.instruction, row.variant);
    }
}

TEST_F(CDispatchTest, ClearsTheResultsWhenAnotherChoiceWasOnlyEntered)
{
    SetUpEarlierRun(168, 0);
    Open(0, {Choose(kSpd1Home), Back, Choose(kSpd1),
             [&](CDialogRobot& robot) {
                 ExpectCleared();
                 robot.Click(IDCANCEL);
             },
             Cancel});
}

TEST_F(CDispatchTest, ClearsTheResultsEvenWhenThereIsNoDialog)
{
    UseSelectionOnly();
    SetUpEarlierRun(168, 0);
    Open(0, {Choose(kSpd1), Cancel});
    ExpectKept();
    Open(0, {Choose(kSpd1Home), Cancel});
    ExpectCleared();
    SetUpEarlierRun(151, 10020);
    Open(1, {[](CDialogRobot& robot) {
                 EXPECT_EQ(robot.Selection(kList), 1);
                 robot.Click(IDOK);
             },
             Cancel});
    ExpectKept();
    Open(1, {Choose(2), Cancel});
    ExpectCleared();
}

// ---- Choices without a dialog ---------------------------------------------------------------------------------------

TEST_F(CDispatchTest, LeadsBackWhenTheTemplateIsMissing)
{
    UseSelectionOnly();
    for (const int mode : {0, 1})
        EXPECT_EQ(Open(mode, {Choose(0), Choose(1),
                              [](CDialogRobot& robot) {
                                  EXPECT_EQ(robot.Caption(), "Auswahl");
                                  EXPECT_EQ(robot.Selection(kList), 1);
                                  robot.Click(IDCANCEL);
                              }}),
                  2);
    ExpectLastWizard(0, -1, 0);
}

// ---- Axis flag, font, parent ----------------------------------------------------------------------------------------

TEST_F(CDispatchTest, StoresTheAxisFlagBeforeTheDialog)
{
    const auto open = [&](int axisFlag, std::vector<Scene> scenes) {
        return Play([&] { return m_wizard.DoOpenPosDlg(0, static_cast<BYTE>(axisFlag), nullptr); }, std::move(scenes));
    };
    EXPECT_EQ(SFunWizardTest::AxisFlag(m_wizard), 1);
    open(0, {Cancel});
    EXPECT_EQ(SFunWizardTest::AxisFlag(m_wizard), 1) << "nothing was chosen";
    for (const int flag : {0, 1, 200, 0})
    {
        const auto expectStored = [&] {
            EXPECT_EQ(SFunWizardTest::AxisFlag(m_wizard), flag);
            EXPECT_EQ(m_wizard.IsAxisType(), flag == 0 ? 1 : 0);
        };
        open(flag, {Choose(kSpd1),
                    [&](CDialogRobot& robot) {
                        expectStored();
                        robot.Click(IDCANCEL);
                    },
                    Cancel});
        expectStored();
    }
}

TEST_F(CDispatchTest, KeepsTheFontWhenTheSelectionIsCancelled)
{
    Open(0, {Cancel});
    EXPECT_NE(SFunWizardTest::DialogFont(m_wizard), nullptr);
    Open(0, {Choose(kSpd1),
             [&](CDialogRobot& robot) {
                 const CFont* font = SFunWizardTest::DialogFont(m_wizard);
                 ASSERT_NE(font, nullptr);
                 EXPECT_EQ(robot.Dialog()->SendDlgItemMessage(2052, WM_GETFONT),
                           reinterpret_cast<LRESULT>(font->GetSafeHandle()));
                 robot.Click(IDCANCEL);
             },
             Cancel});
    EXPECT_NE(SFunWizardTest::DialogFont(m_wizard), nullptr);
    Open(0, {Choose(kSpd1), Confirm});
    EXPECT_EQ(SFunWizardTest::DialogFont(m_wizard), nullptr);
}

TEST_F(CDispatchTest, OpensItsDialogsAboveTheHostsWindow)
{
    CWnd host;
    ASSERT_TRUE(host.CreateEx(0, nullptr, "Host", WS_POPUP | WS_VISIBLE, 0, 0, 300, 200, nullptr, nullptr));
    const auto expectOwned = [&](CDialogRobot& robot) {
        EXPECT_EQ(::GetWindow(robot.Dialog()->m_hWnd, GW_OWNER), host.m_hWnd);
        EXPECT_FALSE(host.IsWindowEnabled());
        robot.Click(robot.Exists(kList) ? IDOK : IDCANCEL);
    };
    Play([&] { return m_wizard.DoOpenPosDlg(0, 1, &host); }, {expectOwned, expectOwned, Cancel});
    EXPECT_TRUE(host.IsWindowEnabled());
    host.DestroyWindow();
}

TEST_F(CDispatchTest, LeavesTheResourceSourceAsItWas)
{
    m_wizard.SetLanguageInfo(kEnglish);
    const HINSTANCE before = AfxGetResourceHandle();
    Open(0, {Choose(kSpd1), Back, Choose(kSpd1Home), Confirm});
    EXPECT_EQ(AfxGetResourceHandle(), before);
}
