#include "tests/dialogs/posunit/PosUnitTest.h"

#include "afx/System.h"
#include "tests/resources/LanguageLibrary.h"

CPosUnitTest::CPosUnitTest()
{
    SetUpController(m_wizard);
    PexloDll_SetAppName(kTestAppName);
}

CPosUnitTest::~CPosUnitTest() { PexloDll_SetAppName(nullptr); }

void CPosUnitTest::UseLibrary() { ASSERT_NE(m_wizard.SetLanguageInfo(kEnglish), nullptr); }

void CPosUnitTest::UseLibraryWithoutDialogs()
{
    const HINSTANCE library = AfxLoadLibrary(AfxGetModuleFolder(nullptr) + "SelectionOnly.DLL");
    ASSERT_NE(library, nullptr) << "SelectionOnly.DLL belongs beside the test program";
    SFunWizardTest::SetLibrary(m_wizard, library); // frees it
}

void CPosUnitTest::ExpectDialogFont(const CDialogRobot& dialog)
{
    const CFont* font = SFunWizardTest::DialogFont(m_wizard);
    ASSERT_NE(font, nullptr);
    for (const CWnd* control = dialog.Dialog()->GetWindow(GW_CHILD); control != nullptr;
         control = control->GetWindow(GW_HWNDNEXT))
    {
        const auto shown = reinterpret_cast<HGDIOBJ>(::SendMessageA(*control, WM_GETFONT, 0, 0));
        EXPECT_EQ(shown, font->GetSafeHandle()) << "of control " << control->GetDlgCtrlID();
    }
}
