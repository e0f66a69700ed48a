#include "dialogs/base/DialogTable.h"

#include "core/Memory.h"
#include "dialogs/channel/F177Dlg.h"
#include "dialogs/channel/PlshChDlg.h"
#include "dialogs/channel/PwmhChDlg.h"
#include "dialogs/channel/PwmhFrequencyDlg.h"
#include "dialogs/channel/SpdhChDlg.h"
#include "dialogs/posunit/EPointDlg.h"
#include "dialogs/posunit/HomeReturnDlg.h"
#include "dialogs/posunit/JogDlg.h"
#include "dialogs/posunit/PPointDlg.h"
#include "dialogs/posunit/PulsarDlg.h"
#include "dialogs/pulse/PlsDlg.h"
#include "dialogs/pulse/PlshDlg.h"
#include "dialogs/pulse/PwmDlg.h"
#include "dialogs/pulse/PwmhDlg.h"
#include "dialogs/pulse/Sp0hDlg.h"
#include "dialogs/pulse/SpchDlg.h"
#include "dialogs/pulse/Spd1Dlg.h"
#include "dialogs/pulse/SpdhDlg.h"
#include "dialogs/pulse/SpshDlg.h"
#include "resources/resource.h"

namespace
{

constexpr int kAnyVariant = -1;

struct SDialogRow
{
    UINT templateId;
    int variant; // where several share a template
    std::unique_ptr<CWzdDlgBase> (*make)(CFunWizard* wizard, CWnd* parent);
};

template <class TDialog, auto... arguments>
std::unique_ptr<CWzdDlgBase> Make(CFunWizard* wizard, CWnd* parent)
{
    return std::make_unique<TDialog>(wizard, arguments..., parent);
}

constexpr SDialogRow kDialogs[] = {
    {IDD_SPD1_TRAPEZOIDAL, kAnyVariant, Make<CSpd1Dlg, false>},
    {IDD_SPD1_HOME, kAnyVariant, Make<CSpd1Dlg, true>},
    {IDD_PLS, kAnyVariant, Make<CPlsDlg>},
    {IDD_PWM, kAnyVariant, Make<CPwmDlg>},
    {IDD_SPDH_TRAPEZOIDAL, kAnyVariant, Make<CSpdhDlg, false>},
    {IDD_SPDH_HOME, kAnyVariant, Make<CSpdhDlg, true>},
    {IDD_PLSH, kAnyVariant, Make<CPlshDlg>},
    {IDD_PWMH, kAnyVariant, Make<CPwmhDlg>},
    {IDD_SP0H, kAnyVariant, Make<CSp0hDlg>},
    {IDD_SPSH, kAnyVariant, Make<CSpshDlg>},
    {IDD_SPCH, kAnyVariant, Make<CSpchDlg>},
    {IDD_B_SPDH_TRAPEZOIDAL, kAnyVariant, Make<CSpdhChDlg, false>},
    {IDD_B_SPDH_HOME, kAnyVariant, Make<CSpdhChDlg, true>},
    {IDD_B_PLSH, kAnyVariant, Make<CPlshChDlg>},
    {IDD_B_PWMH, kAnyVariant, Make<CPwmhChDlg>},
    {IDD_B_SP0H, kAnyVariant, Make<CSp0hDlg, IDD_B_SP0H>},
    {IDD_B_SPSH, kAnyVariant, Make<CSpshDlg, IDD_B_SPSH>},
    {IDD_B_F177, kAnyVariant, Make<CF177Dlg>},
    {IDD_C_SPDH_TRAPEZOIDAL, kAnyVariant, Make<CSpdhDlg, false, IDD_C_SPDH_TRAPEZOIDAL>},
    {IDD_C_SPDH_HOME, kAnyVariant, Make<CSpdhDlg, true, IDD_C_SPDH_HOME>},
    {IDD_C_PLSH, kAnyVariant, Make<CPlshDlg, IDD_C_PLSH>},
    {IDD_C_PWMH, kAnyVariant, Make<CPwmhFrequencyDlg>},
    {IDD_C_SP0H, kAnyVariant, Make<CSp0hDlg, IDD_C_SP0H>},
    {IDD_C_SPSH, kAnyVariant, Make<CSpshDlg, IDD_C_SPSH>},
    {IDD_EPOINT, kUnitEPoint, Make<CEPointDlg, kEPointForm>},
    {IDD_EPOINT, kUnitPPointStart, Make<CEPointDlg, kPPointStartForm>},
    {IDD_EPOINT, kUnitJogPositioning, Make<CEPointDlg, kJogPositioningForm>},
    {IDD_PPOINT, kAnyVariant, Make<CPPointDlg>},
    {IDD_JOG, kAnyVariant, Make<CJogDlg, false>},
    {IDD_JOG_SPEED_CHANGE, kAnyVariant, Make<CJogDlg, true>},
    {IDD_HOME_RETURN, kAnyVariant, Make<CHomeReturnDlg>},
    {IDD_PULSAR, kAnyVariant, Make<CPulsarDlg>},
};

} // namespace

std::unique_ptr<CWzdDlgBase> MakeDialog(UINT templateId, int variant, CFunWizard* wizard, CWnd* parent)
{
    for (const SDialogRow& row : kDialogs)
        if (row.templateId == templateId && (row.variant == kAnyVariant || row.variant == variant))
            return row.make(wizard, parent);
    return nullptr;
}

INT_PTR RunDialog(UINT templateId, int variant, CFunWizard* wizard, CWnd* parent)
{
    std::unique_ptr<CWzdDlgBase> dialog;
    if (!WithMemory([&] { dialog = MakeDialog(templateId, variant, wizard, parent); }) || dialog == nullptr)
        return -1;
    return dialog->DoModal();
}
