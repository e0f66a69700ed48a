// The operations that open dialogs through the C interface, driven as a user would where there is a screen.
#include "afx/DesktopLock.h"
#include "resources/resource.h"
#include "tests/capi/Capi.h"
#include "tests/support/DesktopTest.h"
#include "tests/support/PrintTo.h"

namespace
{

class CapiDialogsTest : public CDesktopTest
{
protected:
    CapiDialogsTest()
    {
        for (CFunWizard* const wizard : {&m_wizard, &WizardOf(m_handle)})
            FindPlcPreset("large")->Configure(*wizard);
    }

    /// Plays the same in dialogs opened through the interface and by the class, and expects the same of both.
    void ExpectSame(const std::function<int()>& ofTheInterface, const std::function<int()>& ofTheClass, int result,
                    const std::vector<CDialogRobot::Scene>& scenes)
    {
        if (!AfxHasScreen())
        {
            EXPECT_EQ(Play(ofTheInterface, {}), PEXLO_E_DESKTOP);
            return;
        }
        EXPECT_EQ(Play(ofTheInterface, scenes), result);
        EXPECT_EQ(Play(ofTheClass, scenes), result);
        EXPECT_EQ(ReadResults(m_handle), ReadResults(m_wizard));
        EXPECT_EQ(Pexlo_IsAxisType(m_handle), m_wizard.IsAxisType());
        Pexlo_CreateInstCode(m_handle);
        m_wizard.CreateInstCode();
        EXPECT_EQ(ReadResults(m_handle), ReadResults(m_wizard));
    }

    CCapiHandle m_handle;
    CFunWizard m_wizard;
};

TEST_F(CapiDialogsTest, OpenThePulseOutputs)
{
    const CDialogRobot::Scene select = [](CDialogRobot& robot) {
        robot.Select(IDC_SELECT_LIST, 2);
        robot.Click(IDOK);
    };
    ExpectSame([&] { return Pexlo_DoOpenPosDlg(m_handle, 0, 1, nullptr); },
               [&] { return m_wizard.DoOpenPosDlg(0, 1, nullptr); }, 1, {select, [](CDialogRobot& robot) {
                                                                             robot.Type(IDC_CONTACT_NUMBER, "10");
                                                                             robot.Type(IDC_PLS_START, "100");
                                                                             robot.Type(IDC_PLS_FREQUENCY, "500");
                                                                             robot.Click(IDOK);
                                                                         }});
    ExpectSame([&] { return Pexlo_DoOpenPosDlg(m_handle, 0, 0, nullptr); },
               [&] { return m_wizard.DoOpenPosDlg(0, 0, nullptr); }, 2,
               {[](CDialogRobot& robot) { robot.Click(IDCANCEL); }});
    for (const int number : {-1, 256})
    {
        EXPECT_EQ(Pexlo_DoOpenPosDlg(m_handle, number, 0, nullptr), PEXLO_E_ARGUMENT);
        EXPECT_EQ(Pexlo_DoOpenPosDlg(m_handle, 0, number, nullptr), PEXLO_E_ARGUMENT);
    }
}

TEST_F(CapiDialogsTest, OpenTheUnit)
{
    const std::vector<CDialogRobot::Scene> scenes = {[](CDialogRobot& robot) {
                                                         robot.Select(IDC_SELECT_LIST, 0);
                                                         robot.Click(IDOK);
                                                     },
                                                     [](CDialogRobot& robot) { robot.Click(IDCANCEL); },
                                                     [](CDialogRobot& robot) { robot.Click(IDCANCEL); }};
    for (const int axisFlag : {0, 1})
        ExpectSame([&] { return Pexlo_DoOpenPosDlg(m_handle, 1, axisFlag, nullptr); },
                   [&] { return m_wizard.DoOpenPosDlg(1, static_cast<unsigned char>(axisFlag), nullptr); }, 2, scenes);
}

TEST_F(CapiDialogsTest, OpenPid)
{
    ExpectSame([&] { return Pexlo_DoOpenPIDDlg(m_handle, 19, nullptr); },
               [&] { return m_wizard.DoOpenPIDDlg(19, nullptr); }, 2,
               {[](CDialogRobot& robot) { robot.Click(IDCANCEL); }});
}

TEST_F(CapiDialogsTest, OpenTheScreenDisplay)
{
    const unsigned masks[] = {0, 8650752, 8388608, 262144};
    ULONGLONG own[] = {0, 8650752, 8388608, 262144};
    std::vector<std::vector<CString>> items;
    const CDialogRobot::Scene scene = [&](CDialogRobot& robot) {
        items.push_back(robot.Items(IDC_SCREEN_UPSIDE_DEVICE));
        robot.Click(IDCANCEL);
    };
    ExpectSame([&] { return Pexlo_DoOpenSCRDlg(m_handle, masks, nullptr); },
               [&] { return m_wizard.DoOpenSCRDlg(own, nullptr); }, 2, {scene});
    ExpectSame([&] { return Pexlo_DoOpenSCRDlg(m_handle, nullptr, nullptr); },
               [&] { return m_wizard.DoOpenSCRDlg(nullptr, nullptr); }, 2, {scene});
    if (!AfxHasScreen())
        return;
    ASSERT_EQ(items.size(), 4u);
    EXPECT_EQ(items[0], items[1]);
    EXPECT_EQ(items[2], items[3]);
    EXPECT_NE(items[0], items[2]);
}

TEST_F(CapiDialogsTest, OpenScaling)
{
    const unsigned masks[] = {0x40000, 0xFFFFFFFF, 0x800000};
    ULONGLONG own[] = {0x40000, 0xFFFFFFFF, 0x800000};
    for (const int kind : {0, 1, 2, 77, -1})
    {
        std::vector<CString> captions;
        const CDialogRobot::Scene scene = [&](CDialogRobot& robot) {
            captions.push_back(robot.Caption());
            robot.Click(IDCANCEL);
        };
        ExpectSame([&] { return Pexlo_DoOpenSCALDlg(m_handle, masks, kind, nullptr); },
                   [&] { return m_wizard.DoOpenSCALDlg(own, kind, nullptr); }, 2, {scene});
        ExpectSame([&] { return Pexlo_DoOpenSCALDlg(m_handle, nullptr, kind, nullptr); },
                   [&] { return m_wizard.DoOpenSCALDlg(nullptr, kind, nullptr); }, 2, {scene});
        if (AfxHasScreen())
        {
            EXPECT_EQ(captions.at(0), captions.at(1));
        }
    }
}

TEST_F(CapiDialogsTest, OpenTheControlCode)
{
    unsigned code = 0x20;
    ULONG own = 0x20;
    ExpectSame([&] { return Pexlo_DoInputPosCtrlDlg(m_handle, &code, nullptr); },
               [&] { return m_wizard.DoInputPosCtrlDlg(own, nullptr); }, 1, {[](CDialogRobot& robot) {
                   robot.Select(IDC_CODE_HOME_LOGIC, 1);
                   robot.Click(IDOK);
               }});
    if (!AfxHasScreen())
        return;
    EXPECT_EQ(code, own);
    EXPECT_EQ(Pexlo_DoInputPosCtrlDlg(m_handle, nullptr, nullptr), PEXLO_E_ARGUMENT);
    EXPECT_EQ(Play([&] { return Pexlo_DoInputPosCtrlDlg(m_handle, &(code = 0xFFFFFFFF), nullptr); },
                   {[](CDialogRobot& robot) { robot.Click(IDCANCEL); }}),
              2);
    EXPECT_EQ(code, 0xFFFFFFFFu);
}

// From a timer of the host, say.
TEST_F(CapiDialogsTest, AnswerWhileADialogIsOpen)
{
    if (!AfxHasScreen())
        GTEST_SKIP() << "there is no desktop";
    const CCapiHandle other;
    auto form = FormOf(170);
    EXPECT_EQ(Play([&] { return Pexlo_DoOpenPIDDlg(m_handle, 19, nullptr); }, {[&](CDialogRobot& robot) {
                       EXPECT_EQ(Pexlo_DoOpenPIDDlg(m_handle, 19, nullptr), 2);
                       EXPECT_EQ(Pexlo_Fill(m_handle, &form, nullptr, 0, nullptr), PEXLO_E_BUSY);
                       EXPECT_EQ(Pexlo_Check(m_handle, &form, nullptr, 0, nullptr), PEXLO_E_BUSY);
                       EXPECT_EQ(Pexlo_DescribeFields(m_handle, &form, nullptr, 0, nullptr, 0, nullptr), PEXLO_E_BUSY);
                       EXPECT_EQ(Pexlo_SetLanguageInfo(m_handle, 0), 0);
                       EXPECT_EQ(Pexlo_GetPlcType(m_handle), 50);
                       EXPECT_EQ(Pexlo_TakeOver(m_handle), 1); // its own thread
                       EXPECT_EQ(Pexlo_AddOprdInfo(m_handle, 1, 2), 1);

                       // Another handle fills in meanwhile, and this dialog does not notice.
                       FindPlcPreset("large")->Configure(WizardOf(other));
                       const UINT focus = robot.FocusId();
                       const auto entries = AcceptedEntries(other, form);
                       EXPECT_EQ(Fill(other, form, entries).result, 1);
                       EXPECT_GT(Pexlo_GetDataInfoCount(other), 0);
                       EXPECT_EQ(robot.FocusId(), focus);
                       EXPECT_TRUE(robot.Dialog()->IsWindowVisible());
                       robot.Click(IDCANCEL);
                   }}),
              2);
    EXPECT_EQ(Fill(m_handle, form, AcceptedEntries(m_handle, form)).result, 1);
}

TEST_F(CapiDialogsTest, EndWithTheirHandle)
{
    if (!AfxHasScreen())
        GTEST_SKIP() << "there is no desktop";
    const PexloHandle handle = Pexlo_Create();
    EXPECT_EQ(Play([&] { return Pexlo_DoOpenPIDDlg(handle, 19, nullptr); }, {[&](CDialogRobot&) {
                       EXPECT_EQ(Pexlo_Destroy(handle), 1);
                       EXPECT_EQ(Pexlo_Destroy(handle), PEXLO_E_HANDLE);
                       EXPECT_EQ(Pexlo_GetPlcType(handle), PEXLO_E_HANDLE);
                       EXPECT_EQ(Pexlo_TakeOver(handle), PEXLO_E_HANDLE);
                   }}),
              2);
    EXPECT_EQ(Pexlo_GetPlcType(handle), PEXLO_E_HANDLE);
}

TEST_F(CapiDialogsTest, CaptionTheirMessages)
{
    EXPECT_EQ(Pexlo_SetMessageCaption("The tool"), 1);
    const auto caption = [&] {
        std::string seen;
        if (AfxHasScreen())
            Play([&] { return Pexlo_DoOpenPIDDlg(m_handle, 19, nullptr); }, {[&](CDialogRobot& robot) {
                     robot.ClickAndAnswer(IDOK);
                     seen = robot.MessageBoxes().at(0).caption;
                     robot.Click(IDCANCEL);
                 }});
        return seen;
    };
    if (AfxHasScreen())
    {
        EXPECT_EQ(caption(), "The tool");
    }
    EXPECT_EQ(Pexlo_SetMessageCaptionUtf8("caf\xC3\xA9"), 1);
    if (AfxHasScreen() && ::GetACP() == 1252)
    {
        EXPECT_EQ(caption(), "caf\xE9");
    }
    EXPECT_EQ(Pexlo_SetMessageCaption(nullptr), 1);
    EXPECT_EQ(Pexlo_SetMessageCaptionUtf8(nullptr), 1);
}

} // namespace
