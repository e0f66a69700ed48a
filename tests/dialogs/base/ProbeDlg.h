// A dialog to test the base of all dialogs with: its fields are those that the test declares.
#pragma once

#include "afx/System.h"
#include "dialogs/base/WzdDlgBase.h"
#include "tests/core/FunWizardTest.h"
#include "tests/resources/TestDialogs.h"
#include "tests/support/Controller.h"
#include "tests/support/DesktopTest.h"
#include "tests/support/PrintTo.h"
#include "tests/support/Results.h"

#include <functional>
#include <utility>

class CProbeDlg : public CWzdDlgBase
{
public:
    using Fields = std::function<void(CWzdExchange* wx)>;

    explicit CProbeDlg(CFunWizard* wizard, UINT templateId = IDD_PROBE, CWnd* parent = nullptr)
        : CWzdDlgBase(wizard, templateId, parent)
    {
    }

    void DoFieldExchange(CWzdExchange* wx) override
    {
        if (m_fields)
            m_fields(wx);
    }

    Fields m_fields;
    int m_tableWords = 1;

    LONGLONG TableWords() override { return m_tableWords; }
};

/// Opens probes with the test dialogs as language library.
class CProbeTest : public CDesktopTest
{
protected:
    void SetUp() override
    {
        const HINSTANCE library = AfxLoadLibrary(AfxGetModuleFolder(nullptr) + "TestDialogs.DLL");
        ASSERT_NE(library, nullptr) << "TestDialogs.DLL belongs beside the test program";
        SFunWizardTest::SetLibrary(m_wizard, library);
        SetUpController(m_wizard);
        PexloDll_SetAppName("Test program");
    }

    int Open(CProbeDlg& probe, CDialogRobot::Scene scene)
    {
        return Play([&] { return static_cast<int>(probe.DoModal()); }, {std::move(scene)});
    }

    /// Opens a probe with fields, lets the test look at it, and leaves with Back unless the test has closed it.
    template <typename TLook>
    int InProbe(CProbeDlg::Fields fields, TLook look)
    {
        m_probe.m_fields = std::move(fields);
        return Open(m_probe, [&](CDialogRobot& robot) {
            look(robot);
            if (robot.IsOpen())
                robot.Click(IDCANCEL);
        });
    }
    template <typename TLook>
    int InProbe(TLook look)
    {
        return InProbe(CProbeDlg::Fields(), look);
    }

    CFunWizard m_wizard;
    CProbeDlg m_probe{&m_wizard};
};

/// Texts of a list as a test writes them.
inline std::vector<CString> Texts(std::initializer_list<LPCSTR> texts)
{
    return std::vector<CString>(texts.begin(), texts.end());
}
