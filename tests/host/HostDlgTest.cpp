#include "host/HostDlg.h"

#include "afx/System.h"
#include "host/HostResource.h"
#include "resources/resource.h"
#include "tests/support/DesktopTest.h"
#include "tests/support/PrintTo.h"

namespace
{
bool Contains(const CString& text, const char* part) { return text.Find(part) >= 0; }
} // namespace

// The main window with its resources in use, as they are in the program itself.
class HostDlgTest : public CDesktopTest
{
protected:
    void SetUp() override
    {
        m_resources = AfxLoadLibrary(AfxGetModuleFolder(nullptr) + "HostWindow.DLL");
        ASSERT_NE(m_resources, nullptr);
        AfxSetResourceHandle(m_resources);
    }

    void TearDown() override
    {
        CDesktopTest::TearDown();
        AfxSetResourceHandle(nullptr);
        AfxFreeLibrary(m_resources);
    }

    void PlayHost(std::vector<CDialogRobot::Scene> scenes)
    {
        const int result = Play([] { return static_cast<int>(CHostDlg().DoModal()); }, std::move(scenes));
        EXPECT_EQ(result, IDCANCEL);
    }

    HINSTANCE m_resources = nullptr;
};

TEST_F(HostDlgTest, OpensWithAControllerALanguageAndEmptyLists)
{
    PlayHost({[](CDialogRobot& host) {
        EXPECT_EQ(host.Selection(IDC_HOST_PLC), 0);
        EXPECT_EQ(host.Text(IDC_HOST_LANGUAGE), "English");
        EXPECT_EQ(host.Text(IDC_HOST_LADDER), "");
        EXPECT_EQ(host.Text(IDC_HOST_STATUS), "0 instruction records");
        EXPECT_TRUE(Contains(host.Text(IDC_HOST_RESULTS), "Contacts: 0\r\nOperands: 0\r\n"));
        EXPECT_EQ(host.Text(IDC_HOST_CODE_TEXT), "00000000");
        EXPECT_EQ(host.FocusId(), static_cast<UINT>(IDC_HOST_PLC));
        host.Click(IDCANCEL);
    }});
}

TEST_F(HostDlgTest, ShowsWhatAWizardEntered)
{
    PlayHost({[](CDialogRobot& host) {
                  host.Click(IDC_HOST_PULSE);
                  EXPECT_TRUE(Contains(host.Text(IDC_HOST_LADDER), "|--| X3 |--( DF )--+--[ F0    MV "));
                  EXPECT_TRUE(Contains(host.Text(IDC_HOST_LADDER), "+--[ F168  SPD1  DT100  K0 "));
                  EXPECT_TRUE(Contains(host.Text(IDC_HOST_RESULTS), "Contacts: 1\r\n   0  kind 2   X3\r\n"));
                  EXPECT_EQ(host.Text(IDC_HOST_STATUS), "17 instruction records");

                  // Another controller knows nothing of the results before.
                  host.Select(IDC_HOST_PLC, 1);
                  EXPECT_EQ(host.Text(IDC_HOST_LADDER), "");
                  EXPECT_TRUE(Contains(host.Text(IDC_HOST_RESULTS), "Contacts: 0"));
                  host.Click(IDCANCEL);
              },
              [](CDialogRobot& select) {
                  select.Select(IDC_SELECT_LIST, 1);
                  select.Click(IDOK);
              },
              [](CDialogRobot& spd1) {
                  spd1.Type(IDC_CONTACT_NUMBER, "3");
                  spd1.Type(IDC_SPD1_START, "100");
                  spd1.Type(IDC_SPD1_INITIAL, "100");
                  spd1.Type(IDC_SPD1_MAXIMUM, "200");
                  spd1.Type(IDC_SPD1_TIME, "300");
                  spd1.Click(IDOK);
              }});
}

TEST_F(HostDlgTest, KeepsItsListsWhenAWizardIsCancelled)
{
    PlayHost({[](CDialogRobot& host) {
                  host.Click(IDC_HOST_PULSE);
                  EXPECT_EQ(host.Text(IDC_HOST_STATUS), "0 instruction records");
                  host.Click(IDCANCEL);
              },
              [](CDialogRobot& select) { select.Click(IDCANCEL); }});
}

TEST_F(HostDlgTest, HandsTheHelpFileToTheWizards)
{
    PlayHost({[](CDialogRobot& host) {
                  host.Click(IDC_HOST_PULSE);
                  host.Type(IDC_HOST_HELP_PATH, "C:\\a.chm");
                  host.Click(IDC_HOST_PULSE);
                  host.Click(IDCANCEL);
              },
              [](CDialogRobot& select) {
                  EXPECT_FALSE(select.Visible(IDC_HELP_TOPIC));
                  select.Click(IDCANCEL);
              },
              [](CDialogRobot& select) {
                  EXPECT_TRUE(select.Visible(IDC_HELP_TOPIC));
                  select.Click(IDCANCEL);
              }});
}

TEST_F(HostDlgTest, EnterClosesNothing)
{
    PlayHost({[](CDialogRobot& host) {
        host.Focus(IDC_HOST_CODE_TEXT);
        host.PressKey(VK_RETURN);
        EXPECT_TRUE(host.IsOpen());
        host.Type(IDC_HOST_CODE_TEXT, "00ab00cd9");
        EXPECT_EQ(host.Text(IDC_HOST_CODE_TEXT), "00AB00CD");
        host.PressKey(VK_ESCAPE);
    }});
}
