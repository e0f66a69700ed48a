#include "host/HostDlg.h"

#include "afx/CodePage.h"
#include "host/HostResource.h"
#include "host/Ladder.h"
#include "host/Languages.h"
#include "host/Plc.h"
#include "host/ResultText.h"
#include "host/WizardLists.h"

#include <cstdlib>
#include <cstring>

namespace
{
// An edit control breaks lines at "\r\n" only.
CString EditText(const std::string& text)
{
    CString lines(text.c_str());
    lines.Replace("\n", "\r\n");
    return lines;
}
} // namespace

BEGIN_MESSAGE_MAP(CHostDlg, CDialog)
ON_CBN_SELCHANGE(IDC_HOST_PLC, &CHostDlg::OnPlcChanged)
ON_CBN_SELCHANGE(IDC_HOST_LANGUAGE, &CHostDlg::OnLanguageChanged)
ON_EN_CHANGE(IDC_HOST_HELP_PATH, &CHostDlg::OnHelpPathChanged)
ON_BN_CLICKED(IDC_HOST_PULSE, &CHostDlg::OnPulse)
ON_BN_CLICKED(IDC_HOST_UNIT, &CHostDlg::OnUnit)
ON_BN_CLICKED(IDC_HOST_PID, &CHostDlg::OnPid)
ON_BN_CLICKED(IDC_HOST_SCAL, &CHostDlg::OnScal)
ON_BN_CLICKED(IDC_HOST_DSCAL, &CHostDlg::OnDscal)
ON_BN_CLICKED(IDC_HOST_FSCAL, &CHostDlg::OnFscal)
ON_BN_CLICKED(IDC_HOST_SCREEN, &CHostDlg::OnScreen)
ON_BN_CLICKED(IDC_HOST_CODE, &CHostDlg::OnControlCode)
END_MESSAGE_MAP()

CHostDlg::CHostDlg() : CDialog(IDD_HOST, nullptr) {}

BOOL CHostDlg::OnInitDialog()
{
    CDialog::OnInitDialog();
    LOGFONT fixedPitch = {};
    fixedPitch.lfHeight = 90; // tenths of a point
    fixedPitch.lfCharSet = DEFAULT_CHARSET;
    fixedPitch.lfPitchAndFamily = FIXED_PITCH; // where there is no such face, another one will do
    std::strcpy(fixedPitch.lfFaceName, "Courier New");
    if (m_fixedFont.CreatePointFontIndirect(&fixedPitch))
    {
        GetDlgItem(IDC_HOST_LADDER)->SetFont(&m_fixedFont);
        GetDlgItem(IDC_HOST_RESULTS)->SetFont(&m_fixedFont);
    }
    static_cast<CEdit*>(GetDlgItem(IDC_HOST_CODE_TEXT))->LimitText(8);
    SetDlgItemText(IDC_HOST_CODE_TEXT, "00000000");
    FillLists();
    SetUpPlc();
    SetUpLanguage();
    ShowResults();
    return TRUE;
}

// Enter opens nothing and closes nothing here: the window is left by its Close button.
void CHostDlg::OnOK() {}

// ---- Settings -------------------------------------------------------------------------------------------------------

void CHostDlg::FillLists()
{
    auto* plcs = static_cast<CComboBox*>(GetDlgItem(IDC_HOST_PLC));
    for (const SPlc& plc : PlcPresets())
        plcs->AddString(plc.title.c_str());
    plcs->SetCurSel(0);

    auto* languages = static_cast<CComboBox*>(GetDlgItem(IDC_HOST_LANGUAGE));
    for (const SHostLanguage& language : kHostLanguages)
        languages->AddString(language.name);
    languages->SetCurSel(0);
}

void CHostDlg::SetUpPlc()
{
    const int index = static_cast<CComboBox*>(GetDlgItem(IDC_HOST_PLC))->GetCurSel();
    const SPlc& plc = PlcPresets()[static_cast<size_t>(index)];
    plc.Configure(m_wizard);
    m_axes = plc.axes;
}

void CHostDlg::SetUpLanguage()
{
    const int index = static_cast<CComboBox*>(GetDlgItem(IDC_HOST_LANGUAGE))->GetCurSel();
    m_wizard.SetLanguageInfo(kHostLanguages[index].index);
}

void CHostDlg::OnPlcChanged()
{
    SetUpPlc();
    SetUpLanguage(); // setting up a controller starts from the beginning, language included
    ShowResults();
}

void CHostDlg::OnLanguageChanged() { SetUpLanguage(); }

void CHostDlg::OnHelpPathChanged()
{
    CString path;
    GetDlgItemText(IDC_HOST_HELP_PATH, path);
    m_wizard.SetHelpPath(path);
}

// ---- Wizards --------------------------------------------------------------------------------------------------------

unsigned char CHostDlg::AxisFlag() const { return m_axes == 2 ? 0 : 1; }

void CHostDlg::OnPulse()
{
    OpenWizard([this] { return m_wizard.DoOpenPosDlg(0, AxisFlag(), this); });
}

void CHostDlg::OnUnit()
{
    OpenWizard([this] { return m_wizard.DoOpenPosDlg(1, AxisFlag(), this); });
}

void CHostDlg::OnPid()
{
    constexpr int kWorkArea = 30; // registers that F355 uses beyond the first one
    OpenWizard([this] { return m_wizard.DoOpenPIDDlg(kWorkArea, this); });
}

void CHostDlg::OnScal()
{
    OpenWizard([this] { return m_wizard.DoOpenSCALDlg(nullptr, 0, this); });
}

void CHostDlg::OnDscal()
{
    OpenWizard([this] { return m_wizard.DoOpenSCALDlg(nullptr, 1, this); });
}

void CHostDlg::OnFscal()
{
    OpenWizard([this] { return m_wizard.DoOpenSCALDlg(nullptr, 2, this); });
}

void CHostDlg::OnScreen()
{
    OpenWizard([this] { return m_wizard.DoOpenSCRDlg(nullptr, this); });
}

void CHostDlg::OnControlCode()
{
    CString text;
    GetDlgItemText(IDC_HOST_CODE_TEXT, text);
    ULONG code = static_cast<ULONG>(std::strtoul(text, nullptr, 16));
    if (m_wizard.DoInputPosCtrlDlg(code, this) != IDOK)
        return;
    text.Format("%08X", static_cast<unsigned>(code));
    SetDlgItemText(IDC_HOST_CODE_TEXT, text);
}

// What every host does: open, and when the user has confirmed, let the library generate the program and read it.
void CHostDlg::OpenWizard(const std::function<int()>& open)
{
    if (open() != IDOK)
        return;
    m_wizard.CreateInstCode();
    ShowResults();
}

void CHostDlg::ShowResults()
{
    const SResultLists lists = ReadLists(m_wizard);
    CString status;
    status.Format("%d instruction records", m_wizard.GetInstCodeCount());
    SetDlgItemText(IDC_HOST_STATUS, status);
    SetDlgItemText(IDC_HOST_LADDER, EditText(CLadder::Of(lists.instructions).Text()));
    const CTextPage utf8(CP_UTF8); // the comments may be in any language
    SetDlgItemText(IDC_HOST_RESULTS, EditText(ResultText(lists)));
}
