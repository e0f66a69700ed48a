// What the tests of the selection dialog and of the ways from it share.
#pragma once

#include "afx/System.h"
#include "tests/core/FunWizardTest.h"
#include "tests/resources/LanguageLibrary.h"
#include "tests/support/Controller.h"
#include "tests/support/DesktopTest.h"
#include "tests/support/PrintTo.h"
#include "tests/support/Results.h"

#include <string>
#include <utility>

constexpr UINT kList = 2001;
constexpr UINT kExplanation = 2002;
constexpr UINT kHelp = 2003;
constexpr UINT kComments = 3001;
constexpr UINT kListLabel = 3002;

/// Opens the wizards of a controller in the texts of the module, unless the test chooses a language.
class CPosSelectTest : public CDesktopTest
{
protected:
    void SetUp() override { SetUpController(m_wizard); }

    /// Makes the texts of a test library the wizard's: the selection dialog in other words, and no other dialog.
    void UseSelectionOnly()
    {
        const HINSTANCE library = AfxLoadLibrary(AfxGetModuleFolder(nullptr) + "SelectionOnly.DLL");
        ASSERT_NE(library, nullptr) << "SelectionOnly.DLL belongs beside the test program";
        SFunWizardTest::SetLibrary(m_wizard, library);
    }

    /// Registers these instructions and no others.
    void Support(const std::vector<int>& instructions)
    {
        m_wizard.ClearSuppportFunInfo();
        for (const int instruction : instructions)
            m_wizard.EntrySupportFunInfo(instruction);
    }

    int Open(int mode, std::vector<CDialogRobot::Scene> scenes)
    {
        return Play([&] { return m_wizard.DoOpenPosDlg(static_cast<BYTE>(mode), 1, nullptr); }, std::move(scenes));
    }

    /// Opens the selection, lets the test look at it and cancels it unless the test has closed it.
    template <typename TLook>
    int Look(int mode, TLook look)
    {
        return Open(mode, {[&](CDialogRobot& robot) {
                        look(robot);
                        if (robot.IsOpen())
                            robot.Click(IDCANCEL);
                    }});
    }

    static std::vector<DWORD> ItemData(const CDialogRobot& robot)
    {
        std::vector<DWORD> data;
        CWnd* dialog = robot.Dialog();
        const LRESULT count = dialog->SendDlgItemMessage(kList, LB_GETCOUNT);
        for (LRESULT item = 0; item < count; ++item)
            data.push_back(static_cast<DWORD>(dialog->SendDlgItemMessage(kList, LB_GETITEMDATA, item)));
        return data;
    }

    CFunWizard m_wizard;
};

/// What a list item carries.
constexpr DWORD Item(int instruction, int variant) { return static_cast<DWORD>(instruction) << 16 | variant; }
