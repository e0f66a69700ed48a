// The message of a refused entry: what is done to the edit, in which order, and what the box looks like.
#include "core/ResourceScope.h"
#include "resources/resource.h"
#include "tests/dialogs/base/ProbeDlg.h"

#include <string>

namespace
{

using Log = std::vector<std::string>;

/// An edit that writes down what is done to it.
class CLoggedEdit : public CEdit
{
public:
    explicit CLoggedEdit(Log& log) : m_log(log) {}

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message == EM_SETSEL)
            m_log.push_back("select " + std::to_string(static_cast<int>(wParam)) + " " +
                            std::to_string(static_cast<int>(lParam)));
        if (message == EM_SCROLLCARET)
            m_log.push_back("scroll");
        if (message == WM_SETFOCUS)
            m_log.push_back("focus");
        return CEdit::WindowProc(message, wParam, lParam);
    }

private:
    Log& m_log;
};

/// A probe that writes down when it is disabled, and looks at the window that takes its place.
class CWatchedDlg : public CProbeDlg
{
public:
    CWatchedDlg(CFunWizard* wizard, Log& log) : CProbeDlg(wizard), m_log(log) {}

    CWnd* m_boxOwner = nullptr;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message == WM_ENABLE && !wParam)
            m_log.push_back("box");
        if (message == WM_ACTIVATE && LOWORD(wParam) == WA_INACTIVE && lParam != 0)
            m_boxOwner = CWnd::FromHandlePermanent(::GetWindow(reinterpret_cast<HWND>(lParam), GW_OWNER));
        return CProbeDlg::WindowProc(message, wParam, lParam);
    }

private:
    Log& m_log;
};

class CWarningTest : public CProbeTest
{
protected:
    /// Shows a warning without any dialog and lets the test look at the box.
    int Warn(UINT stringId, UINT flags, CDialogRobot::Scene scene)
    {
        return Play(
            [&] {
                CResourceScope scope(m_wizard.GetLoadInstance());
                return m_probe.ShowWarning(stringId, flags);
            },
            {std::move(scene)});
    }
};

} // namespace

// ---- The box --------------------------------------------------------------------------------------------------------

TEST_F(CWarningTest, HasTheNameOfTheApplicationAndAnExclamationMark)
{
    struct
    {
        UINT text;
        const char* expected;
    } const rows[] = {
        {20001, "Please input a numerical value correctly."},
        {20002, "Since a memory was insufficient, the inputted contents were not able to be decided."},
        {20003, "The inputted data table starting address has become the outside of the range.\n"
                "Please input the right value."},
        {20020, "The inputted starting condition contact number has become the outside of the range. \n"
                "Please input the right value."},
        {20101, "The inputted value is not right.\nPlease input hexadecimal value."},
    };
    for (const auto& row : rows)
    {
        const int result = Warn(row.text, 0, [&](CDialogRobot& robot) {
            EXPECT_TRUE(robot.IsMessageBox());
            EXPECT_EQ(robot.Caption(), "Test program");
            EXPECT_EQ(robot.Text(0), row.expected);
            int icons = 0;
            for (CWnd* child = robot.Dialog()->GetWindow(GW_CHILD); child; child = child->GetWindow(GW_HWNDNEXT))
            {
                if (child->SendMessage(WM_GETDLGCODE) & DLGC_STATIC && (child->GetStyle() & SS_TYPEMASK) == SS_ICON)
                {
                    ++icons;
                    EXPECT_EQ(reinterpret_cast<HICON>(child->SendMessage(STM_GETICON)),
                              ::LoadIconA(nullptr, IDI_EXCLAMATION));
                }
            }
            EXPECT_EQ(icons, 1);
            robot.PressKey(VK_RETURN);
        });
        EXPECT_EQ(result, IDOK);
    }
}

TEST_F(CWarningTest, HasTheButtonsOfItsFlagsAndReturnsThePressedOne)
{
    EXPECT_EQ(Warn(20001, MB_YESNO, [](CDialogRobot& robot) { robot.Click(IDNO); }), IDNO);
    EXPECT_EQ(Warn(20001, MB_YESNO, [](CDialogRobot& robot) { robot.Click(IDYES); }), IDYES);
    EXPECT_EQ(Warn(20001, MB_OKCANCEL, [](CDialogRobot& robot) { robot.Click(IDCANCEL); }), IDCANCEL);
}

TEST_F(CWarningTest, HasTheNameThatTheModuleKnowsNotTheWizard)
{
    m_wizard.SetAppName("Of the wizard");
    PexloDll_SetAppName("Of the module");
    Warn(20001, 0, [](CDialogRobot& robot) {
        EXPECT_EQ(robot.Caption(), "Of the module");
        robot.PressKey(VK_RETURN);
    });
}

TEST_F(CWarningTest, IsOwnedByTheDialog)
{
    Log log;
    CWatchedDlg dialog(&m_wizard, log);
    Open(dialog, [&](CDialogRobot& robot) {
        EXPECT_EQ(robot.Answering(IDOK, [&] { dialog.ShowWarning(IDS_ERR_NOT_A_NUMBER); }),
                  "Please input a numerical value correctly.");
        EXPECT_EQ(dialog.m_boxOwner, &dialog);
        EXPECT_EQ(log, Log{"box"});
        EXPECT_TRUE(dialog.IsWindowEnabled());
        ASSERT_EQ(robot.MessageBoxes().size(), 1u);
        EXPECT_EQ(robot.MessageBoxes()[0].caption, "Test program");
        robot.Click(IDCANCEL);
    });
}

TEST_F(CWarningTest, IsOwnedByTheDialogOnTop)
{
    Log log;
    CProbeDlg below(&m_wizard);
    CWatchedDlg top(&m_wizard, log);
    Play([&] { return static_cast<int>(below.DoModal()); },
         {[&](CDialogRobot& robot) {
              EXPECT_EQ(top.DoModal(), IDCANCEL);
              robot.Click(IDCANCEL);
          },
          [&](CDialogRobot& robot) {
              robot.Answering(IDOK, [&] { below.ShowWarning(IDS_ERR_NOT_A_NUMBER); });
              EXPECT_EQ(top.m_boxOwner, &top);
              EXPECT_EQ(log, Log{"box"});
              robot.Click(IDCANCEL);
          }});
}

// ---- Refusing -------------------------------------------------------------------------------------------------------

TEST_F(CWarningTest, ComesAfterTheEditIsSelectedScrolledAndFocused)
{
    Log log;
    CWatchedDlg dialog(&m_wizard, log);
    Open(dialog, [&](CDialogRobot& robot) {
        robot.SetText(IDC_PROBE_NUMBER, "123456");
        robot.Focus(IDOK);
        CLoggedEdit edit(log);
        ASSERT_TRUE(edit.SubclassDlgItem(IDC_PROBE_NUMBER, &dialog));

        bool refused = false;
        EXPECT_EQ(robot.Answering(IDOK, [&] { refused = !dialog.Refuse(IDC_PROBE_NUMBER, IDS_ERR_CONTACT); }),
                  "The inputted starting condition contact number has become the outside of the range. \n"
                  "Please input the right value.");
        EXPECT_TRUE(refused);
        edit.UnsubclassWindow();

        ASSERT_GE(log.size(), 4u);
        EXPECT_EQ((Log{log.begin(), log.begin() + 4}), (Log{"select 0 -1", "scroll", "focus", "box"}));
        EXPECT_EQ(robot.FocusId(), static_cast<UINT>(IDC_PROBE_NUMBER));
        EXPECT_EQ(robot.SelectedRange(IDC_PROBE_NUMBER), std::make_pair(0, 6));
        robot.Click(IDCANCEL);
    });
}

TEST_F(CWarningTest, ComesWithoutAnEditToo)
{
    InProbe([&](CDialogRobot& robot) {
        const CString text = robot.Answering(IDOK, [&] { m_probe.Refuse(IDC_PROBE_NOTHING, IDS_ERR_NOT_A_NUMBER); });
        EXPECT_EQ(text, "Please input a numerical value correctly.");
    });
}

TEST_F(CWarningTest, SaysWhetherAnEntryIsNoNumberOrOutsideTheRange)
{
    const SWzdRange range = {-100, 2147483647};
    const CString notANumber = "Please input a numerical value correctly.";
    const CString outside = "The inputted frequency value has become the outside of the range.\n"
                            "Please input the right value.";
    struct
    {
        const char* text;
        bool accepted;
        LONGLONG value; // accepted, or refused as
        bool isNumber;
    } const rows[] = {
        {"0", true, 0, true},
        {"-100", true, -100, true},
        {"-101", false, 0, true},
        {"2147483647", true, 2147483647, true},
        {"2147483648", false, 0, true},
        {" 12 ", true, 12, true},
        {"007", true, 7, true},
        {"-", true, 0, true},
        {"", false, 0, false},
        {"   ", false, 0, false},
        {"12a", false, 0, false},
        {"1-2", false, 0, false},
        {"+5", false, 0, false},
        {"1.5", false, 0, false},
        {"0x10", false, 0, false},
        {"99999999999999999999999999", false, 0, true},  // past 64 bits, too
        {"18446744073709551616", false, 0, true},        // 2^64 is no 0
        {"-99999999999999999999999999", false, 0, true}, //
    };
    InProbe([&](CDialogRobot& robot) {
        for (const auto& row : rows)
        {
            SCOPED_TRACE(row.text);
            robot.SetText(IDC_PROBE_NUMBER, row.text);
            LONGLONG value = -7;
            bool accepted = false;
            const CString message = robot.Answering(
                IDOK, [&] { accepted = m_probe.ReadNumber(IDC_PROBE_NUMBER, range, IDS_ERR_FREQUENCY, value); });
            EXPECT_EQ(accepted, row.accepted);
            if (row.accepted)
            {
                EXPECT_EQ(value, row.value);
            }
            EXPECT_EQ(message, row.accepted ? CString() : row.isNumber ? outside : notANumber);
        }
    });
}
