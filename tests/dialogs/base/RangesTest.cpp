// Ranges that the PLC allows and the labels that show them; the clipboard.
#include "resources/resource.h"
#include "tests/dialogs/base/ProbeDlg.h"

#include <climits>

namespace
{

class CRangesTest : public CProbeTest
{
};

} // namespace

// ---- The data table -------------------------------------------------------------------------------------------------

TEST_F(CRangesTest, OfTheDataTableAreTheRegistersLessTheRestOfTheTable)
{
    struct
    {
        int low, high;
        int words;
        int expected; // the highest start; -1 = there is none
    } const rows[] = {
        {0, 32764, 1, 32764}, {0, 32764, 7, 32758}, {0, 6, 7, 0},  {0, 5, 7, -1},      {10, 16, 7, 10},
        {10, 15, 7, -1},      {5, 5, 1, 5},         {5, 4, 1, -1}, {100, 200, 4, 197},
    };
    for (const auto& row : rows)
    {
        SCOPED_TRACE(testing::Message() << row.low << " to " << row.high << ", " << row.words << " words");
        SetDeviceRange(m_wizard, kDT, row.low, row.high);
        m_probe.m_tableWords = row.words;
        int low = -7, high = -7;
        EXPECT_EQ(m_probe.GetDataTableRange(low, high), row.expected >= 0 ? TRUE : FALSE);
        if (row.expected >= 0)
        {
            EXPECT_EQ(low, row.low);
            EXPECT_EQ(high, row.expected);
        }
    }
}

TEST_F(CRangesTest, OfTheDataTableDoNotWrapAround)
{
    SetDeviceRange(m_wizard, kDT, INT_MIN, INT_MIN + 2);
    m_probe.m_tableWords = 7;
    int low, high;
    EXPECT_FALSE(m_probe.GetDataTableRange(low, high));
}

TEST_F(CRangesTest, OfTheDataTableNeedRegisters)
{
    CFunWizard wizard;
    CProbeDlg probe(&wizard);
    int low, high;
    EXPECT_FALSE(probe.GetDataTableRange(low, high));
    wizard.SetDevRange(0, kDT, 0, 100); // of another kind
    EXPECT_FALSE(probe.GetDataTableRange(low, high));
    SetDeviceRange(wizard, kSpecialDT, 0, 100);
    EXPECT_FALSE(probe.GetDataTableRange(low, high));
    SetDeviceRange(wizard, kDT, 0, 100);
    EXPECT_TRUE(probe.GetDataTableRange(low, high));
}

TEST_F(CRangesTest, OfTheDataTableAreShown)
{
    SetDeviceRange(m_wizard, kDT, 20, 1000);
    m_probe.m_tableWords = 7;
    InProbe([&](CDialogRobot& robot) {
        EXPECT_TRUE(m_probe.ShowDataTableRange(IDC_PROBE_START_RANGE));
        EXPECT_EQ(robot.Text(IDC_PROBE_START_RANGE), "(20 - 994)");
        EXPECT_TRUE(m_probe.ShowDataTableRange(IDC_PROBE_NOTHING));

        SetDeviceRange(m_wizard, kDT, 20, 25);
        EXPECT_FALSE(m_probe.ShowDataTableRange(IDC_PROBE_START_RANGE));
        EXPECT_EQ(robot.Text(IDC_PROBE_START_RANGE), "(20 - 994)");
    });
}

TEST_F(CRangesTest, AreNotShownWithoutRegisters)
{
    SetDeviceRange(m_wizard, kDT, 1, 0);
    InProbe([&](CDialogRobot& robot) {
        EXPECT_FALSE(m_probe.ShowDataTableRange(IDC_PROBE_START_RANGE));
        EXPECT_EQ(robot.Text(IDC_PROBE_START_RANGE), "Impossible settings");
    });
}

TEST_F(CRangesTest, AreShownWithTheirSigns)
{
    InProbe([&](CDialogRobot& robot) {
        CWzdDlgBase::ShowRange(m_probe.GetDlgItem(IDC_PROBE_NUMBER_RANGE), {INT_MIN, INT_MAX});
        EXPECT_EQ(robot.Text(IDC_PROBE_NUMBER_RANGE), "(-2147483648 - 2147483647)");
        CWzdDlgBase::ShowRange(nullptr, {0, 1});
    });
}

// ---- The rest -------------------------------------------------------------------------------------------------------

TEST_F(CRangesTest, ClipboardHoldsTextOrNot)
{
    InProbe([&](CDialogRobot& robot) {
        ASSERT_TRUE(::OpenClipboard(robot.Dialog()->m_hWnd));
        ::EmptyClipboard();
        ::CloseClipboard();
        EXPECT_FALSE(CWzdDlgBase::IsClipboardText());

        robot.SetText(IDC_PROBE_NUMBER, "12");
        robot.Dialog()->SendDlgItemMessage(IDC_PROBE_NUMBER, EM_SETSEL, 0, -1);
        robot.Dialog()->SendDlgItemMessage(IDC_PROBE_NUMBER, WM_COPY);
        EXPECT_TRUE(CWzdDlgBase::IsClipboardText());

        ASSERT_TRUE(::OpenClipboard(robot.Dialog()->m_hWnd));
        ::EmptyClipboard();
        ::CloseClipboard();
        EXPECT_FALSE(CWzdDlgBase::IsClipboardText());
    });
}
