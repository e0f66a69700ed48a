// Language libraries whose texts do not fit the values that are put into them: every dialog opens, works and shows them
// as they stand where it cannot fill them.
#include "tests/core/FunWizardTest.h"
#include "tests/dialogs/InstructionDialogs.h"
#include "tests/support/Controller.h"
#include "tests/support/DesktopTest.h"

#include "afx/System.h"
#include "resources/resource.h"

#include <string>

namespace
{

struct SLibrary
{
    const char* file;
    const char* oneNumber;  // 7
    const char* twoNumbers; // 0 and 9
    const char* twoTexts;   // "0" and "9F"
};

constexpr SLibrary kLibraries[] = {
    {"ForeignKinds.DLL", "%s%n%s%n", "%s%n%s%n", "%d%n%f%n"},
    {"HugeWidths.DLL", "%999999999d|%.999999999d", "%999999999d|%.999999999d", "%999999999s|%.2147483647s"},
    {"MoreGaps.DLL", "7 %d %d %s %n", "0 9 %d %s %n", "0 9F %s %d %n"},
    {"FewerGaps.DLL", "one", "one", "two"},
    {"LonePercents.DLL", "% 7 % % %", "% 0 % % %", "% 0 % % %"},
};

std::ostream& operator<<(std::ostream& out, const SLibrary& library) { return out << library.file; }

class CForeignTextsTest : public CDesktopTest, public testing::WithParamInterface<SLibrary>
{
protected:
    CForeignTextsTest()
    {
        SetUpController(m_wizard);
        SetDeviceRange(m_wizard, kR, 0, Bit(9, 0xF));
        SetDeviceRange(m_wizard, kX, 0, Bit(9, 0xF));
        SetDeviceRange(m_wizard, kDT, 0, 9 + 6); // the last start address of the seven registers of F168 is 9
        m_wizard.ResetChannelNo();
        m_wizard.SetChannelNo(7, 171);
        m_wizard.SetChannelNo(7 + 1, 171);
        const HINSTANCE library = AfxLoadLibrary(AfxGetModuleFolder(nullptr) + GetParam().file);
        EXPECT_NE(library, nullptr) << GetParam().file << " belongs beside the test program";
        SFunWizardTest::SetLibrary(m_wizard, library); // frees it
    }

    CFunWizard m_wizard;
};

TEST_P(CForeignTextsTest, LabelsAndItemsStandAsTheTextsAre)
{
    m_wizard.CreateDlgFont(nullptr);
    Play([this] { return static_cast<int>(CSpd1Dlg(&m_wizard, false, nullptr).DoModal()); }, {[](CDialogRobot& dialog) {
             EXPECT_STREQ(dialog.Text(IDC_CONTACT_RANGE), GetParam().twoTexts);
             EXPECT_STREQ(dialog.Text(IDC_SPD1_START_RANGE), GetParam().twoNumbers);
             EXPECT_EQ(dialog.Items(IDC_SPD1_OUTPUT).size(), 2u);
             dialog.Click(IDCANCEL);
         }});
    Play([this] { return static_cast<int>(CSpdhDlg(&m_wizard, false, nullptr).DoModal()); }, {[](CDialogRobot& dialog) {
             const std::vector<CString> channels = dialog.Items(IDC_SPDH_CHANNEL);
             ASSERT_EQ(channels.size(), 2u);
             EXPECT_STREQ(channels.front(), GetParam().oneNumber);
             dialog.Click(IDCANCEL);
         }});
}

TEST_P(CForeignTextsTest, EveryDialogOpensAndIsLeft)
{
    SetUpController(m_wizard);
    for (const SInstructionDialog& row : kInstructionDialogs)
    {
        const auto instruction = row.make(&m_wizard);
        EXPECT_EQ(Play([&] { return static_cast<int>(instruction->DoModal()); },
                       {[](CDialogRobot& dialog) { dialog.Click(IDCANCEL); }}),
                  IDCANCEL)
            << row.name;
    }
    ULONG code = 0;
    EXPECT_EQ(Play([&] { return m_wizard.DoInputPosCtrlDlg(code, nullptr); },
                   {[](CDialogRobot& dialog) { dialog.Click(IDOK); }}),
              IDOK);
}

TEST_P(CForeignTextsTest, ADialogIsConfirmed)
{
    SetUpController(m_wizard);
    EXPECT_EQ(Play([this] { return m_wizard.DoOpenPosDlg(0, 1, nullptr); },
                   {[](CDialogRobot& selection) { selection.Click(IDOK); },
                    [](CDialogRobot& dialog) {
                        dialog.Type(IDC_CONTACT_NUMBER, "5");
                        dialog.Type(IDC_SPD1_START, "100");
                        dialog.Type(IDC_SPD1_INITIAL, "100");
                        dialog.Type(IDC_SPD1_MAXIMUM, "1000");
                        dialog.Type(IDC_SPD1_TIME, "100");
                        dialog.Type(IDC_SPD1_TARGET, "10000");
                        dialog.Click(IDOK);
                    }}),
              IDOK);
    EXPECT_EQ(m_wizard.GetDataInfoCount(), 6);
    EXPECT_EQ(m_wizard.CreateInstCode(), 1);
}

INSTANTIATE_TEST_SUITE_P(Libraries, CForeignTextsTest, testing::ValuesIn(kLibraries), [](const auto& test) {
    return std::string(test.param.file, std::strcspn(test.param.file, "."));
});

} // namespace
