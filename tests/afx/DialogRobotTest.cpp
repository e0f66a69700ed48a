#include "tests/support/DesktopTest.h"

#include "tests/support/AllocationFaults.h"
#include "tests/support/DialogTemplate.h"
#include "tests/support/PrintTo.h"

#include <functional>
#include <stdexcept>

namespace
{
enum
{
    kLabel = 100,
    kName,
    kDigits,
    kCombo,
    kList,
    kBox,
    kGreyed,
    kHidden,
    kAct,
    kAnother,
    kMissing
};

// A dialog with one control of each kind. What a button does is up to the test.
class CTestDlg : public CDialog
{
public:
    explicit CTestDlg(const std::string& caption = "Test") : m_template(caption)
    {
        m_template.Add("STATIC", kLabel, SS_LEFT, "Label")
            .Add("EDIT", kName, WS_BORDER | WS_TABSTOP | ES_AUTOHSCROLL, "old")
            .Add("EDIT", kDigits, WS_BORDER | WS_TABSTOP | ES_AUTOHSCROLL | ES_NUMBER)
            .Add("COMBOBOX", kCombo, WS_TABSTOP | CBS_DROPDOWNLIST)
            .Add("LISTBOX", kList, WS_TABSTOP | LBS_NOTIFY)
            .Add("BUTTON", kBox, WS_TABSTOP | BS_AUTOCHECKBOX, "Check")
            .Add("BUTTON", kGreyed, WS_TABSTOP | WS_DISABLED, "Greyed")
            .Add("BUTTON", kHidden, WS_TABSTOP, "Hidden")
            .Add("BUTTON", kAct, WS_TABSTOP, "Act")
            .Add("BUTTON", kAnother, WS_TABSTOP, "Another")
            .Add("BUTTON", IDOK, WS_TABSTOP | BS_DEFPUSHBUTTON, "OK")
            .Add("BUTTON", IDCANCEL, WS_TABSTOP, "Cancel");
        InitModalIndirect(m_template.Get());
    }

    std::function<void()> m_onAct;
    std::function<void()> m_onChoice;
    std::function<bool()> m_mayCancel = [] { return true; };
    int m_comboChanges = 0;
    int m_listChanges = 0;

protected:
    BOOL OnInitDialog() override
    {
        CDialog::OnInitDialog();
        static_cast<CEdit*>(GetDlgItem(kDigits))->LimitText(4);
        for (const char* item : {"zero", "one", "two"})
        {
            static_cast<CComboBox*>(GetDlgItem(kCombo))->AddString(item);
            static_cast<CListBox*>(GetDlgItem(kList))->AddString(item);
        }
        GetDlgItem(kHidden)->ShowWindow(SW_HIDE);
        return TRUE;
    }

    void OnCancel() override
    {
        if (m_mayCancel())
            CDialog::OnCancel();
    }

    void OnAct()
    {
        if (m_onAct)
            m_onAct();
    }
    void OnChoice()
    {
        if (m_onChoice)
            m_onChoice();
    }
    void OnComboChanged() { ++m_comboChanges; }
    void OnListChanged() { ++m_listChanges; }

    DECLARE_MESSAGE_MAP()

private:
    CDialogTemplate m_template;
};

BEGIN_MESSAGE_MAP(CTestDlg, CDialog)
ON_BN_CLICKED(kAct, &CTestDlg::OnAct)
ON_LBN_DBLCLK(kList, &CTestDlg::OnChoice)
ON_CBN_SELCHANGE(kCombo, &CTestDlg::OnComboChanged)
ON_LBN_SELCHANGE(kList, &CTestDlg::OnListChanged)
END_MESSAGE_MAP()

int Say(const char* text, UINT type = MB_OK) { return ::MessageBoxA(nullptr, text, "Caption", type); }

using CScene = CDialogRobot::Scene;
const CScene kClickOk = [](CDialogRobot& dialog) { dialog.Click(IDOK); };
const CScene kClickCancel = [](CDialogRobot& dialog) { dialog.Click(IDCANCEL); };
const CScene kDoNothing = [](CDialogRobot&) {};
} // namespace

class DialogRobotTest : public CDesktopTest
{
protected:
    // Plays without making the robot's failures the test's: they are what is tested.
    int PlayBadly(const std::function<int()>& open, std::vector<CScene> scenes)
    {
        const int result = m_robot.Play(open, std::move(scenes));
        m_failures = m_robot.Failures();
        m_robot.ClearFailures();
        return result;
    }

    void ExpectFailure(const char* part) const
    {
        for (const CString& failure : m_failures)
        {
            if (failure.Find(part) >= 0)
                return;
        }
        ADD_FAILURE() << "no failure says \"" << part << "\" but " << testing::PrintToString(m_failures);
    }

    static int Open(CTestDlg& dialog) { return static_cast<int>(dialog.DoModal()); }

    std::vector<CString> m_failures;
};

// ---- The order of play ----------------------------------------------------------------------------------------------

TEST_F(DialogRobotTest, ReturnsWhatTheOpenedDialogReturns)
{
    CTestDlg dialog;
    EXPECT_EQ(Play([&] { return Open(dialog); }, {kClickOk}), IDOK);
    EXPECT_EQ(Play([&] { return Open(dialog); }, {kClickCancel}), IDCANCEL);
}

TEST_F(DialogRobotTest, PlaysNothingWhenNothingOpens)
{
    EXPECT_EQ(Play([] { return 7; }, {}), 7);
}

TEST_F(DialogRobotTest, PlaysOneSceneInEachDialogInOrder)
{
    std::string seen;
    const CScene noteAndClose = [&](CDialogRobot& robot) {
        seen += robot.Caption();
        robot.Click(IDOK);
    };
    Play(
        [] {
            for (const char* caption : {"A", "B", "C"})
            {
                CTestDlg dialog(caption);
                Open(dialog);
            }
            return 0;
        },
        {noteAndClose, noteAndClose, noteAndClose});
    EXPECT_EQ(seen, "ABC");
}

TEST_F(DialogRobotTest, PlaysTheNextSceneInADialogOnTopWhileTheOneBelowWaits)
{
    std::string seen;
    CTestDlg below("below");
    below.m_onAct = [&] {
        CTestDlg above("above");
        seen += Open(above) == IDOK ? "confirmed " : "";
    };
    const int result = Play([&] { return Open(below); }, {[&](CDialogRobot& robot) {
                                                              robot.Click(kAct);
                                                              seen += robot.Caption();
                                                              robot.Click(IDCANCEL);
                                                          },
                                                          [&](CDialogRobot& robot) {
                                                              seen += std::string(robot.Caption()) + " ";
                                                              robot.Click(IDOK);
                                                          }});
    EXPECT_EQ(seen, "above confirmed below");
    EXPECT_EQ(result, IDCANCEL);
}

TEST_F(DialogRobotTest, PlaysASceneInAMessageBoxThatStandsAlone)
{
    CString text;
    CString caption;
    bool isBox = false;
    const int result =
        Play([] { return Say("How do you do?", MB_YESNO | MB_ICONEXCLAMATION); }, {[&](CDialogRobot& box) {
                 text = box.Text(0);
                 caption = box.Caption();
                 isBox = box.IsMessageBox();
                 box.Click(IDNO);
             }});
    EXPECT_EQ(result, IDNO);
    EXPECT_EQ(text, "How do you do?");
    EXPECT_EQ(caption, "Caption");
    EXPECT_TRUE(isBox);
    ASSERT_EQ(m_robot.MessageBoxes().size(), 1u);
    EXPECT_EQ(m_robot.MessageBoxes()[0].answer, static_cast<UINT>(IDNO));
    EXPECT_EQ(m_robot.MessageBoxes()[0].icon, MB_ICONEXCLAMATION);
}

TEST_F(DialogRobotTest, AccompaniesMessageLoopsThatRunBeforeTheDialog)
{
    CTestDlg dialog;
    const int result = Play(
        [&] {
            MSG message;
            for (int i = 0; i < 100 && ::PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE); ++i)
                ::DispatchMessageA(&message);
            return Open(dialog);
        },
        {kClickOk});
    EXPECT_EQ(result, IDOK);
}

TEST_F(DialogRobotTest, ThrowsAgainWhatASceneThrewAndLeavesNothingOpen)
{
    CTestDlg dialog;
    const CScene throwing = [](CDialogRobot&) { throw std::runtime_error("from the scene"); };
    try
    {
        m_robot.Play([&] { return Open(dialog); }, {throwing});
        ADD_FAILURE() << "nothing was thrown";
    }
    catch (const std::runtime_error& error)
    {
        EXPECT_STREQ(error.what(), "from the scene");
    }
    EXPECT_TRUE(m_robot.Failures().empty());
}

TEST_F(DialogRobotTest, ThrowsAgainWhatTheOpeningCallThrew)
{
    EXPECT_THROW(m_robot.Play([]() -> int { throw std::runtime_error("open"); }, {}), std::runtime_error);
    EXPECT_EQ(Play([] { return 3; }, {}), 3); // and plays on
}

// ---- Looking --------------------------------------------------------------------------------------------------------

TEST_F(DialogRobotTest, SeesEveryControlAsItIs)
{
    CTestDlg dialog;
    Play([&] { return Open(dialog); }, {[](CDialogRobot& robot) {
             EXPECT_EQ(robot.Caption(), "Test");
             EXPECT_FALSE(robot.IsMessageBox());
             EXPECT_TRUE(robot.IsOpen());
             EXPECT_EQ(robot.Text(kLabel), "Label");
             EXPECT_EQ(robot.Text(kName), "old");
             EXPECT_EQ(robot.Limit(kDigits), 4);
             EXPECT_TRUE(robot.Enabled(kName));
             EXPECT_FALSE(robot.Enabled(kGreyed));
             EXPECT_TRUE(robot.Visible(kGreyed));
             EXPECT_FALSE(robot.Visible(kHidden));
             EXPECT_TRUE(robot.Enabled(kHidden));
             EXPECT_FALSE(robot.Checked(kBox));
             EXPECT_EQ(robot.Selection(kCombo), -1);
             EXPECT_EQ(robot.Selection(kList), -1);
             EXPECT_EQ(robot.Items(kCombo), (std::vector<CString>{"zero", "one", "two"}));
             EXPECT_EQ(robot.Items(kList), robot.Items(kCombo));
             EXPECT_TRUE(robot.Exists(kLabel));
             EXPECT_FALSE(robot.Exists(kMissing));
             EXPECT_EQ(robot.FocusId(), static_cast<UINT>(kName));
             robot.Click(IDOK);
             EXPECT_FALSE(robot.IsOpen());
         }});
}

TEST_F(DialogRobotTest, ListsTheControlsInTabOrder)
{
    CTestDlg dialog;
    Play([&] { return Open(dialog); }, {[](CDialogRobot& robot) {
             const std::vector<SRobotControl> controls = robot.Controls();
             ASSERT_EQ(controls.size(), 12u);
             for (size_t i = 0; i < 10; ++i)
                 EXPECT_EQ(controls[i].id, kLabel + i);
             EXPECT_EQ(controls[10].id, static_cast<UINT>(IDOK));
             EXPECT_EQ(controls[1].className.CompareNoCase("edit"), 0);
             EXPECT_EQ(controls[1].text, "old");
             EXPECT_TRUE(controls[1].enabled && controls[1].visible);
             EXPECT_FALSE(controls[6].enabled);
             EXPECT_FALSE(controls[7].visible);
             EXPECT_LT(controls[1].rect.top, controls[2].rect.top);
             EXPECT_GT(controls[1].rect.right, controls[1].rect.left);
             robot.Click(IDOK);
         }});
}

TEST_F(DialogRobotTest, ReportsControlsThatAreNotThere)
{
    CTestDlg dialog;
    PlayBadly([&] { return Open(dialog); }, {[](CDialogRobot& robot) {
                  EXPECT_EQ(robot.Text(kMissing), "");
                  EXPECT_FALSE(robot.Enabled(kMissing));
                  EXPECT_EQ(robot.Selection(kMissing), -1);
                  EXPECT_TRUE(robot.Items(kMissing).empty());
                  robot.Click(kMissing);
                  robot.Click(IDOK);
              }});
    EXPECT_EQ(m_failures.size(), 5u);
    ExpectFailure("In the dialog \"Test\": There is no control 110.");
}

// ---- Acting ---------------------------------------------------------------------------------------------------------

TEST_F(DialogRobotTest, TypesThroughTheEdit)
{
    CTestDlg dialog;
    Play([&] { return Open(dialog); }, {[](CDialogRobot& robot) {
             robot.Type(kName, "new text");
             EXPECT_EQ(robot.Text(kName), "new text");
             EXPECT_EQ(robot.FocusId(), static_cast<UINT>(kName));
             robot.Type(kName, "");
             EXPECT_EQ(robot.Text(kName), "");

             robot.Type(kDigits, "123456");
             EXPECT_EQ(robot.Text(kDigits), "1234") << "the limit";
             robot.Type(kDigits, "1a2");
             EXPECT_EQ(robot.Text(kDigits), "12") << "digits only";
             EXPECT_EQ(robot.FocusId(), static_cast<UINT>(kDigits));

             robot.SetText(kDigits, "12a456");
             EXPECT_EQ(robot.Text(kDigits), "12a456") << "the program may do more than the user";
             robot.Click(IDOK);
         }});
}

TEST_F(DialogRobotTest, SelectsItemsAndLetsTheDialogKnow)
{
    CTestDlg dialog;
    Play([&] { return Open(dialog); }, {[](CDialogRobot& robot) {
             robot.Select(kCombo, 2);
             EXPECT_EQ(robot.Selection(kCombo), 2);
             EXPECT_EQ(robot.Text(kCombo), "two");
             robot.SelectText(kList, "one");
             EXPECT_EQ(robot.Selection(kList), 1);
             robot.Click(IDOK);
         }});
    EXPECT_EQ(dialog.m_comboChanges, 1);
    EXPECT_EQ(dialog.m_listChanges, 1);
}

TEST_F(DialogRobotTest, ReportsItemsThatAreNotThere)
{
    CTestDlg dialog;
    PlayBadly([&] { return Open(dialog); }, {[](CDialogRobot& robot) {
                  robot.Select(kCombo, 3);
                  robot.SelectText(kList, "thre");
                  EXPECT_EQ(robot.Selection(kCombo), -1);
                  robot.Click(IDOK);
              }});
    EXPECT_EQ(m_failures.size(), 2u);
    ExpectFailure("The list 103 has no item 3.");
    ExpectFailure("The list 104 has no item \"thre\".");
    EXPECT_EQ(dialog.m_comboChanges, 0);
}

TEST_F(DialogRobotTest, ChecksAndUnchecks)
{
    CTestDlg dialog;
    Play([&] { return Open(dialog); }, {[](CDialogRobot& robot) {
             robot.Check(kBox);
             EXPECT_TRUE(robot.Checked(kBox));
             robot.Check(kBox);
             EXPECT_TRUE(robot.Checked(kBox));
             robot.Check(kBox, false);
             EXPECT_FALSE(robot.Checked(kBox));
             robot.Click(kBox);
             EXPECT_TRUE(robot.Checked(kBox));
             robot.Click(IDOK);
         }});
}

TEST_F(DialogRobotTest, DoubleClicksAList)
{
    CTestDlg dialog;
    int choices = 0;
    dialog.m_onChoice = [&] { ++choices; };
    Play([&] { return Open(dialog); }, {[](CDialogRobot& robot) {
             robot.Select(kList, 0);
             robot.DoubleClick(kList);
             robot.Click(IDOK);
         }});
    EXPECT_EQ(choices, 1);
}

TEST_F(DialogRobotTest, RefusesToUseWhatAUserCannotUse)
{
    CTestDlg dialog;
    PlayBadly([&] { return Open(dialog); }, {[](CDialogRobot& robot) {
                  robot.Click(kGreyed);
                  robot.Click(kHidden);
                  robot.Click(IDOK);
                  robot.Type(kName, "too late");
              }});
    EXPECT_EQ(m_failures.size(), 3u);
    ExpectFailure("Control 106 is disabled.");
    ExpectFailure("Control 107 is hidden.");
    ExpectFailure("Control 101 cannot be used: the dialog has been ended.");
}

TEST_F(DialogRobotTest, PressesKeysThroughTheDialog)
{
    CTestDlg dialog;
    const int result = Play([&] { return Open(dialog); }, {[](CDialogRobot& robot) {
                                robot.Focus(kName);
                                robot.PressKey(VK_TAB);
                                EXPECT_EQ(robot.FocusId(), static_cast<UINT>(kDigits));
                                EXPECT_EQ(robot.SelectedRange(kDigits), (std::pair<int, int>(0, 0)));
                                robot.PressKey(VK_TAB, {VK_SHIFT});
                                EXPECT_EQ(robot.FocusId(), static_cast<UINT>(kName));
                                EXPECT_EQ(robot.SelectedRange(kName), (std::pair<int, int>(0, 3)));
                                robot.PressKey(VK_END);
                                EXPECT_EQ(robot.SelectedRange(kName), (std::pair<int, int>(3, 3)));
                                robot.Focus(kBox);
                                robot.PressKey(VK_SPACE);
                                EXPECT_TRUE(robot.Checked(kBox));
                                robot.Focus(kName);
                                robot.PressKey(VK_RETURN);
                                EXPECT_FALSE(robot.IsOpen());
                            }});
    EXPECT_EQ(result, IDOK);

    EXPECT_EQ(Play([&] { return Open(dialog); }, {[](CDialogRobot& robot) { robot.PressKey(VK_ESCAPE); }}), IDCANCEL);
}

// ---- Message boxes --------------------------------------------------------------------------------------------------

TEST_F(DialogRobotTest, AnswersTheMessageBoxOfAClick)
{
    CTestDlg dialog;
    int answer = 0;
    dialog.m_onAct = [&] { answer = Say("Really?", MB_YESNOCANCEL); };
    Play([&] { return Open(dialog); }, {[&](CDialogRobot& robot) {
             EXPECT_EQ(robot.ClickAndAnswer(kAct, IDYES), "Really?");
             EXPECT_EQ(answer, IDYES);
             EXPECT_EQ(robot.ClickAndAnswer(kAct, IDNO), "Really?");
             EXPECT_EQ(answer, IDNO);
             EXPECT_EQ(robot.ClickAndAnswer(kAnother), "") << "no message box came up";
             robot.Click(IDOK);
         }});
    ASSERT_EQ(m_robot.MessageBoxes().size(), 2u);
    EXPECT_EQ(m_robot.MessageBoxes()[1].caption, "Caption");
    EXPECT_EQ(m_robot.MessageBoxes()[1].answer, static_cast<UINT>(IDNO));
}

TEST_F(DialogRobotTest, TellsTheIconOfAMessageBox)
{
    const UINT icons[] = {0, MB_ICONHAND, MB_ICONQUESTION, MB_ICONEXCLAMATION, MB_ICONASTERISK};
    for (UINT icon : icons)
    {
        Play([icon] { return Say("Look", MB_OK | icon); }, {[](CDialogRobot& box) {
                 EXPECT_TRUE(box.IsMessageBox());
                 box.Dismiss();
             }});
        ASSERT_EQ(m_robot.MessageBoxes().size(), 1u);
        EXPECT_EQ(m_robot.MessageBoxes()[0].icon, icon);
    }
}

TEST_F(DialogRobotTest, KeepsTheAnswerOfTheSceneBelowForItsOwnBox)
{
    CTestDlg below("below");
    int belowAnswer = 0;
    int aboveAnswer = 0;
    below.m_onAct = [&] {
        CTestDlg above("above");
        above.m_onAct = [&] { aboveAnswer = Say("above", MB_YESNOCANCEL); };
        Open(above);
        belowAnswer = Say("below", MB_YESNOCANCEL);
    };
    Play([&] { return Open(below); }, {[](CDialogRobot& robot) {
                                           robot.ClickAndAnswer(kAct, IDYES);
                                           robot.Click(IDOK);
                                       },
                                       [](CDialogRobot& robot) {
                                           EXPECT_EQ(robot.ClickAndAnswer(kAct, IDNO), "above");
                                           robot.Click(IDOK);
                                       }});
    EXPECT_EQ(aboveAnswer, IDNO);
    EXPECT_EQ(belowAnswer, IDYES);
}

TEST_F(DialogRobotTest, AnswersABoxThatHasOnlyAnOkButton)
{
    CTestDlg dialog;
    int answer = 0;
    dialog.m_onAct = [&] { answer = Say("Well.\nSo it is."); };
    Play([&] { return Open(dialog); }, {[&](CDialogRobot& robot) {
             EXPECT_EQ(robot.ClickAndAnswer(kAct), "Well.\nSo it is.");
             robot.Click(IDOK);
         }});
    EXPECT_EQ(answer, IDOK);
}

TEST_F(DialogRobotTest, AnswersTheMessageBoxOfAKey)
{
    CTestDlg dialog;
    dialog.m_onAct = [] { Say("Pressed"); };
    Play([&] { return Open(dialog); }, {[&](CDialogRobot& robot) {
             robot.Focus(kAct);
             EXPECT_EQ(robot.Answering(IDOK, [&] { robot.PressKey(VK_RETURN); }), "Pressed");
             robot.Click(IDOK);
         }});
}

TEST_F(DialogRobotTest, ReportsAndDismissesAMessageBoxThatIsNotExpected)
{
    CTestDlg dialog;
    int answer = 0;
    dialog.m_onAct = [&] { answer = Say("Boo", MB_YESNOCANCEL); };
    const int result = PlayBadly([&] { return Open(dialog); }, {[](CDialogRobot& robot) {
                                                                    robot.Click(kAct);
                                                                    robot.Click(IDOK);
                                                                },
                                                                kClickOk});
    EXPECT_EQ(result, IDOK) << "the scene goes on";
    EXPECT_EQ(answer, IDCANCEL);
    ExpectFailure("In the dialog \"Test\": An unexpected message box \"Caption\": \"Boo\" came up.");
}

TEST_F(DialogRobotTest, AnswersOnlyOneBoxAtATime)
{
    CTestDlg dialog;
    dialog.m_onAct = [] {
        Say("first");
        Say("second");
    };
    PlayBadly([&] { return Open(dialog); }, {[](CDialogRobot& robot) {
                  EXPECT_EQ(robot.ClickAndAnswer(kAct), "first");
                  robot.Click(IDOK);
              }});
    ASSERT_EQ(m_failures.size(), 1u);
    ExpectFailure("An unexpected message box \"Caption\": \"second\" came up.");
    EXPECT_EQ(m_robot.MessageBoxes().size(), 2u);
}

TEST_F(DialogRobotTest, ReportsABoxWithoutTheWantedButton)
{
    CTestDlg dialog;
    dialog.m_onAct = [] { Say("Yes or no?", MB_YESNO); };
    PlayBadly([&] { return Open(dialog); }, {[](CDialogRobot& robot) {
                  EXPECT_EQ(robot.ClickAndAnswer(kAct, IDRETRY), "Yes or no?");
                  robot.Click(IDOK);
              }});
    ExpectFailure("The message box \"Caption\": \"Yes or no?\" has no button 4.");
}

TEST_F(DialogRobotTest, AnswersAsManyBoxesAsComeUp)
{
    constexpr int kBoxes = 100;
    CTestDlg dialog;
    int count = 0;
    dialog.m_onAct = [&] {
        Say("again");
        ++count;
    };
    Play([&] { return Open(dialog); }, {[](CDialogRobot& robot) {
             for (int i = 0; i < kBoxes; ++i)
                 robot.ClickAndAnswer(kAct);
             robot.Click(IDOK);
         }});
    EXPECT_EQ(count, kBoxes);
    EXPECT_EQ(m_robot.MessageBoxes().size(), static_cast<size_t>(kBoxes));
}

// ---- Ways out -------------------------------------------------------------------------------------------------------

TEST_F(DialogRobotTest, ClosesADialogThatItsSceneLeftOpen)
{
    CTestDlg dialog;
    EXPECT_EQ(PlayBadly([&] { return Open(dialog); }, {kDoNothing}), IDCANCEL);
    ASSERT_EQ(m_failures.size(), 1u);
    ExpectFailure("In the dialog \"Test\": Scene 1 ended while its dialog was still open.");
}

TEST_F(DialogRobotTest, DoesNotPlayOnInTheWrongDialog)
{
    bool played = false;
    CTestDlg first("first");
    CTestDlg second("second");
    PlayBadly(
        [&] {
            Open(first);
            return Open(second);
        },
        {kDoNothing, [&](CDialogRobot&) { played = true; }});
    EXPECT_FALSE(played);
    EXPECT_EQ(m_failures.size(), 1u);
}

TEST_F(DialogRobotTest, ReportsScenesThatWereNotPlayed)
{
    CTestDlg dialog;
    PlayBadly([&] { return Open(dialog); }, {kClickOk, kClickOk, kClickOk});
    ASSERT_EQ(m_failures.size(), 1u);
    ExpectFailure("1 of 3 scenes were played: no more dialogs came up.");
}

TEST_F(DialogRobotTest, ReportsAndDismissesDialogsThatHaveNoScene)
{
    CTestDlg first("first");
    CTestDlg second("second");
    const int result = PlayBadly(
        [&] {
            Open(first);
            return Open(second);
        },
        {kClickOk});
    EXPECT_EQ(result, IDCANCEL);
    ASSERT_EQ(m_failures.size(), 1u);
    ExpectFailure("An unexpected dialog \"second\" came up.");
}

TEST_F(DialogRobotTest, ForcesADialogThatDoesNotWantToClose)
{
    CTestDlg dialog;
    dialog.m_mayCancel = [] {
        Say("No!");
        return false;
    };
    PlayBadly([&] { return Open(dialog); }, {kDoNothing});
    ExpectFailure("was still open");
}

TEST_F(DialogRobotTest, DismissesWhatAnAbandonedDialogBringsUp)
{
    CTestDlg dialog;
    int depth = 0;
    dialog.m_mayCancel = [&] {
        CTestDlg another;
        return ++depth > 3 || Open(another) == IDCANCEL;
    };
    PlayBadly([&] { return Open(dialog); }, {kDoNothing});
    EXPECT_EQ(m_failures.size(), 1u);
}

TEST_F(DialogRobotTest, DescribesWindowsThatAreOpen)
{
    std::vector<CString> windows;
    CTestDlg dialog("Here I am");
    Play([&] { return Open(dialog); }, {[&](CDialogRobot& robot) {
             windows = CDialogRobot::OpenWindows();
             robot.Click(IDOK);
         }});
    EXPECT_EQ(windows, std::vector<CString>{"dialog \"Here I am\""});
    EXPECT_TRUE(CDialogRobot::OpenWindows().empty());
}

// ---- Memory ---------------------------------------------------------------------------------------------------------

TEST_F(DialogRobotTest, IsNotHitByFailuresMeantForTheLibrary)
{
    CTestDlg dialog;
    bool threw = false;
    dialog.m_onAct = [&] {
        try
        {
            CString text("some text");
        }
        catch (CMemoryException* e)
        {
            threw = true;
            e->Delete();
        }
        Say("done");
    };
    Play([&] { return Open(dialog); }, {[&](CDialogRobot& robot) {
             CString text;
             {
                 CAllocationFaults faults(0, CAllocationFaults::kNever);
                 text = robot.ClickAndAnswer(kAct);
                 EXPECT_GE(faults.Failures(), 1);
             }
             EXPECT_EQ(text, "done");
             robot.Click(IDOK);
         }});
    EXPECT_TRUE(threw);
}

// ---- Faults of memory themselves ------------------------------------------------------------------------------------

TEST(AllocationFaultsTest, FailTheAllocationsTheyAreMeantFor)
{
    std::string failed;
    {
        CAllocationFaults faults(1, 2);
        for (int i = 0; i < 4; ++i)
        {
            try
            {
                ::operator delete(::operator new(10));
            }
            catch (const std::bad_alloc&)
            {
                faults.Pause();
                failed += std::to_string(i);
                faults.Resume();
            }
        }
        EXPECT_EQ(faults.Failures(), 2);
        EXPECT_EQ(faults.Requests(), 4);
    }
    EXPECT_EQ(failed, "12");
}

TEST(AllocationFaultsTest, ReachObjectsAndStrings)
{
    bool threw = false;
    CAllocationFaults faults(0);
    try
    {
        CString text("text");
    }
    catch (CMemoryException* e)
    {
        threw = true;
        e->Delete();
    }
    faults.Pause();
    EXPECT_TRUE(threw);
}
