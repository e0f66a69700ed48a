// Controls by their ids, whether the template carries them or not.
#include "resources/resource.h"
#include "tests/dialogs/base/ProbeDlg.h"

namespace
{

class CControlsTest : public CProbeTest
{
protected:
    static constexpr UINT kNone = IDC_PROBE_NOTHING;
};

} // namespace

TEST_F(CControlsTest, ReadAndWriteTexts)
{
    InProbe([&](CDialogRobot& robot) {
        m_probe.SetItemText(IDC_PROBE_NUMBER, "12a");
        EXPECT_EQ(robot.Text(IDC_PROBE_NUMBER), "12a");
        EXPECT_EQ(m_probe.ItemText(IDC_PROBE_NUMBER), "12a");
        EXPECT_EQ(m_probe.ItemText(IDC_CONTACT_RANGE), "Impossible settings");

        m_probe.SetItemText(kNone, "x");
        EXPECT_EQ(m_probe.ItemText(kNone), "");
    });
}

TEST_F(CControlsTest, AreFoundAgainWhenTheyAreReplaced)
{
    for (int opening = 0; opening < 2; ++opening)
        InProbe([&](CDialogRobot&) {
            CWnd* const edit = m_probe.GetDlgItem(IDC_PROBE_NUMBER);
            ASSERT_NE(edit, nullptr);
            EXPECT_EQ(edit->m_hWnd, ::GetDlgItem(m_probe.m_hWnd, IDC_PROBE_NUMBER));
            // This one shares its place with it.
            EXPECT_EQ(m_probe.GetDlgItem(IDC_PROBE_NUMBER + 128), nullptr);
            EXPECT_EQ(m_probe.GetDlgItem(IDC_PROBE_NUMBER), edit);

            edit->DestroyWindow();
            EXPECT_EQ(m_probe.GetDlgItem(IDC_PROBE_NUMBER), nullptr);
            EXPECT_EQ(m_probe.ItemText(IDC_PROBE_NUMBER), "");
            CEdit other;
            other.Create(WS_CHILD | WS_VISIBLE, CRect(0, 0, 10, 10), &m_probe, IDC_PROBE_NUMBER);
            m_probe.SetItemText(IDC_PROBE_NUMBER, "7");
            EXPECT_EQ(m_probe.ItemText(IDC_PROBE_NUMBER), "7");
            EXPECT_EQ(m_probe.GetDlgItem(IDC_PROBE_NUMBER)->m_hWnd, other.m_hWnd);
        });
}

namespace
{

/// Counts how often its text is set.
class CCountingEdit : public CEdit
{
public:
    int m_texts = 0;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        m_texts += message == WM_SETTEXT;
        return CEdit::WindowProc(message, wParam, lParam);
    }
};

} // namespace

TEST_F(CControlsTest, AreNotPaintedForATextThatTheyHave)
{
    InProbe([&](CDialogRobot&) {
        CCountingEdit edit;
        edit.SubclassDlgItem(IDC_PROBE_NUMBER, &m_probe);
        for (const LPCSTR text : {"1", "1", "2", "2", "", ""})
        {
            m_probe.SetItemText(IDC_PROBE_NUMBER, text);
            EXPECT_EQ(m_probe.ItemText(IDC_PROBE_NUMBER), text);
        }
        EXPECT_EQ(edit.m_texts, 3);
        edit.UnsubclassWindow();
    });
}

TEST_F(CControlsTest, ReadCheckBoxes)
{
    InProbe([&](CDialogRobot& robot) {
        EXPECT_FALSE(m_probe.IsChecked(IDC_ONLY_DATA_TABLE));
        robot.Check(IDC_ONLY_DATA_TABLE);
        EXPECT_TRUE(m_probe.IsChecked(IDC_ONLY_DATA_TABLE));
        EXPECT_FALSE(m_probe.IsChecked(kNone));
    });
}

TEST_F(CControlsTest, SelectItems)
{
    InProbe([&](CDialogRobot& robot) {
        static constexpr SWzdChoice kItems[] = {{IDS_DUTY_50_PERCENT, 0}, {IDS_FIXED_PULSE_WIDTH, 1}};
        ASSERT_TRUE(m_probe.FillCombo(IDC_PROBE_COMBO, kItems));
        EXPECT_EQ(m_probe.Selection(IDC_PROBE_COMBO), 0);
        m_probe.Select(IDC_PROBE_COMBO, 1);
        EXPECT_EQ(m_probe.Selection(IDC_PROBE_COMBO), 1);
        EXPECT_EQ(robot.Text(IDC_PROBE_COMBO), "Fixed pulse width (approx80us)");
        m_probe.Select(IDC_PROBE_COMBO, -1);
        EXPECT_EQ(m_probe.Selection(IDC_PROBE_COMBO), -1);

        m_probe.Select(kNone, 0);
        EXPECT_EQ(m_probe.Selection(kNone), -1);
    });
}

TEST_F(CControlsTest, AreEnabledAndLimited)
{
    InProbe([&](CDialogRobot& robot) {
        m_probe.Enable(IDC_PROBE_NUMBER, false);
        EXPECT_FALSE(robot.Enabled(IDC_PROBE_NUMBER));
        m_probe.Enable(IDC_PROBE_NUMBER, true);
        EXPECT_TRUE(robot.Enabled(IDC_PROBE_NUMBER));
        m_probe.Enable(kNone, true);

        m_probe.LimitText(IDC_PROBE_NUMBER, 3);
        EXPECT_EQ(robot.Limit(IDC_PROBE_NUMBER), 3);
        robot.Type(IDC_PROBE_NUMBER, "12345");
        EXPECT_EQ(robot.Text(IDC_PROBE_NUMBER), "123");
        m_probe.LimitText(kNone, 3);
    });
}

TEST_F(CControlsTest, HaveNeighboursInTabOrder)
{
    InProbe([&](CDialogRobot&) {
        CString text;
        m_probe.ControlBefore(IDC_PROBE_NUMBER)->GetWindowText(text);
        EXPECT_EQ(text, "First number");
        m_probe.ControlAfter(IDC_PROBE_NUMBER)->GetWindowText(text);
        EXPECT_EQ(text, "ms");
        EXPECT_EQ(m_probe.ControlAfter(IDC_CONTACT_NUMBER)->GetDlgCtrlID(), IDC_CONTACT_RANGE);

        EXPECT_EQ(m_probe.ControlBefore(IDC_PROBE_UNLABELLED), nullptr);
        EXPECT_EQ(m_probe.ControlAfter(IDC_UNIT_CLEAR_SETTINGS), nullptr);
        EXPECT_EQ(m_probe.ControlBefore(kNone), nullptr);
        EXPECT_EQ(m_probe.ControlAfter(kNone), nullptr);
    });
}

// ---- Filling combos -------------------------------------------------------------------------------------------------

TEST_F(CControlsTest, AreFilledWithTextsAndFormattedTexts)
{
    InProbe([&](CDialogRobot& robot) {
        static constexpr SWzdChoice kItems[] = {
            {IDS_OUTPUT_Y, 5, 0}, {IDS_DUTY_50_PERCENT, 1}, {IDS_CODE_MULTIPLE, 7, 1000}};
        ASSERT_TRUE(m_probe.FillCombo(IDC_PROBE_COMBO, kItems));
        EXPECT_EQ(robot.Items(IDC_PROBE_COMBO), Texts({"Y0", "Duty 50%", "x 1000"}));
    });
}

TEST_F(CControlsTest, AreEmptiedBeforeTheyAreFilledAgain)
{
    InProbe([&](CDialogRobot& robot) {
        static constexpr SWzdChoice kMany[] = {{IDS_OUTPUT_Y, 0, 0}, {IDS_OUTPUT_Y, 1, 1}, {IDS_OUTPUT_Y, 2, 2}};
        static constexpr SWzdChoice kOne[] = {{IDS_CHANNEL, 0, 3}};
        ASSERT_TRUE(m_probe.FillCombo(IDC_PROBE_COMBO, kMany));
        m_probe.Select(IDC_PROBE_COMBO, 2);
        ASSERT_TRUE(m_probe.FillCombo(IDC_PROBE_COMBO, kOne));
        EXPECT_EQ(robot.Items(IDC_PROBE_COMBO), Texts({"ch3"}));
        EXPECT_EQ(robot.Selection(IDC_PROBE_COMBO), 0);
    });
}

TEST_F(CControlsTest, SelectTheWantedItemOrTheFirst)
{
    InProbe([&](CDialogRobot& robot) {
        static constexpr SWzdChoice kItems[] = {{IDS_OUTPUT_Y, 5, 0}, {IDS_OUTPUT_Y, 7, 1}, {IDS_OUTPUT_Y, 9, 2}};
        struct
        {
            int wanted, selected;
        } const rows[] = {{-2, 0}, {-1, 0}, {0, 0}, {1, 1}, {2, 2}, {3, 0}, {INT_MAX, 0}, {INT_MIN, 0}};
        for (const auto& row : rows)
        {
            ASSERT_TRUE(m_probe.FillCombo(IDC_PROBE_COMBO, kItems, row.wanted));
            EXPECT_EQ(robot.Selection(IDC_PROBE_COMBO), row.selected) << row.wanted;
        }
        const CWnd* combo = m_probe.GetDlgItem(IDC_PROBE_COMBO);
        for (int item = 0; item < 3; ++item)
            EXPECT_EQ(combo->SendMessage(CB_GETITEMDATA, item), static_cast<LRESULT>(kItems[item].code)) << item;
    });
}

TEST_F(CControlsTest, AreNotFilledWithoutTextOrCombo)
{
    InProbe([&](CDialogRobot& robot) {
        static constexpr SWzdChoice kItems[] = {{IDS_OUTPUT_Y, 0, 0}, {30999, 1}, {IDS_OUTPUT_Y, 2, 2}};
        EXPECT_FALSE(m_probe.FillCombo(IDC_PROBE_COMBO, kItems));
        EXPECT_EQ(robot.Items(IDC_PROBE_COMBO), Texts({"Y0"}));
        EXPECT_FALSE(m_probe.FillCombo(kNone, std::span(kItems).first(1)));
        EXPECT_TRUE(m_probe.FillCombo(IDC_PROBE_COMBO, {}));
        EXPECT_EQ(robot.Items(IDC_PROBE_COMBO), Texts({}));
    });
}

// ---- Disabling everything -------------------------------------------------------------------------------------------

TEST_F(CControlsTest, AreDisabledButTheFirstAndBack)
{
    CProbeDlg mixed(&m_wizard, IDD_MIXED_IDS);
    Open(mixed, [&](CDialogRobot& robot) {
        mixed.DisableAllButFirstAndBack();
        std::vector<bool> enabled;
        for (const SRobotControl& control : robot.Controls())
            enabled.push_back(control.enabled);
        //                                   0     first edit   label  0     check  OK     Back  Clear
        EXPECT_EQ(enabled, (std::vector<bool>{true, true, false, false, true, false, false, true, false}));
        EXPECT_EQ(robot.FocusId(), static_cast<UINT>(IDCANCEL));
        robot.Click(IDCANCEL);
    });
}
