// Every instruction dialog in each of its forms, for what is tested of them all.
#pragma once

#include "core/FunWizard.h"
#include "dialogs/base/WzdDlgBase.h"
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
#include "dialogs/process/PidDlg.h"
#include "dialogs/process/ScalDlg.h"
#include "dialogs/process/ScrDispDlg.h"
#include "dialogs/pulse/PlsDlg.h"
#include "dialogs/pulse/PlshDlg.h"
#include "dialogs/pulse/PwmDlg.h"
#include "dialogs/pulse/PwmhDlg.h"
#include "dialogs/pulse/Sp0hDlg.h"
#include "dialogs/pulse/SpchDlg.h"
#include "dialogs/pulse/Spd1Dlg.h"
#include "dialogs/pulse/SpdhDlg.h"
#include "dialogs/pulse/SpshDlg.h"

#include "tests/support/Results.h"

#include <algorithm>
#include <memory>
#include <ostream>

enum ESources
{
    kEverywhere,
    kLibrariesOnly ///< the module's own resources do not have the dialog
};

/// Every register of a data table belongs to one field, but for these pairs, each by its offset in the table.
struct SUnusualRegisters
{
    int ofTwoFields = -1;
    int ofNoField = -1;

    int FieldsOf(int offset) const
    {
        const auto isIn = [=](int pair) { return pair >= 0 && (offset == pair || offset == pair + 1); };
        return isIn(ofTwoFields) ? 2 : isIn(ofNoField) ? 0 : 1;
    }
};

struct SInstructionDialog
{
    const char* name;
    ESources sources;
    std::unique_ptr<CWzdDlgBase> (*make)(CFunWizard* wizard);
    SUnusualRegisters unusual = {};
    bool appendsContact = false; ///< each OK adds a contact to those that there are

    /// What two confirmations of the same entries have in common.
    SResults Comparable(SResults results) const
    {
        auto& contacts = results.contacts;
        if (appendsContact)
            contacts.erase(std::unique(contacts.begin(), contacts.end()), contacts.end());
        return results;
    }
};

inline std::ostream& operator<<(std::ostream& out, const SInstructionDialog& row) { return out << row.name; }

template <typename TDialog, auto... arguments>
std::unique_ptr<CWzdDlgBase> MakeDialog(CFunWizard* wizard)
{
    return std::make_unique<TDialog>(wizard, arguments..., nullptr);
}

/// F175 looks different when the host has chosen the axes.
template <unsigned short displayType>
std::unique_ptr<CWzdDlgBase> MakeSpsh(CFunWizard* wizard)
{
    wizard->SetF175DispType(displayType);
    return MakeDialog<CSpshDlg>(wizard);
}

/// A dialog whose template only language libraries have: without one, the English library is set.
template <typename TDialog, auto... arguments>
std::unique_ptr<CWzdDlgBase> MakeOfLibrary(CFunWizard* wizard)
{
    if (wizard->GetLoadInstance() == nullptr)
        wizard->SetLanguageInfo(0);
    return MakeDialog<TDialog, arguments...>(wizard);
}

inline constexpr SInstructionDialog kInstructionDialogs[] = {
    {"Spd1Trapezoidal", kEverywhere, MakeDialog<CSpd1Dlg, false>},
    {"Spd1Home", kEverywhere, MakeDialog<CSpd1Dlg, true>},
    {"Pls", kEverywhere, MakeDialog<CPlsDlg>},
    {"Pwm", kEverywhere, MakeDialog<CPwmDlg>},
    {"SpdhTrapezoidal", kEverywhere, MakeDialog<CSpdhDlg, false>},
    {"SpdhHome", kEverywhere, MakeDialog<CSpdhDlg, true>},
    {"Plsh", kEverywhere, MakeDialog<CPlshDlg>},
    {"Pwmh", kEverywhere, MakeDialog<CPwmhDlg>},
    {"Sp0h", kEverywhere, MakeDialog<CSp0hDlg>},
    {"Spsh", kEverywhere, MakeSpsh<0>},
    {"SpshFirstChannel", kEverywhere, MakeSpsh<1>},
    {"SpshOtherAxes", kEverywhere, MakeSpsh<2>},
    {"Spch", kEverywhere, MakeDialog<CSpchDlg>},
    {"SpdhTrapezoidalB", kLibrariesOnly, MakeOfLibrary<CSpdhChDlg, false>},
    {"SpdhHomeB", kLibrariesOnly, MakeOfLibrary<CSpdhChDlg, true>},
    {"PlshB", kLibrariesOnly, MakeOfLibrary<CPlshChDlg>},
    {"PwmhB", kLibrariesOnly, MakeOfLibrary<CPwmhChDlg>},
    {"Sp0hB", kLibrariesOnly, MakeOfLibrary<CSp0hDlg, IDD_B_SP0H>},
    {"SpshB", kLibrariesOnly, MakeOfLibrary<CSpshDlg, IDD_B_SPSH>},
    {"F177", kLibrariesOnly, MakeOfLibrary<CF177Dlg>},
    {"SpdhTrapezoidalC", kLibrariesOnly, MakeOfLibrary<CSpdhDlg, false, IDD_C_SPDH_TRAPEZOIDAL>},
    {"SpdhHomeC", kLibrariesOnly, MakeOfLibrary<CSpdhDlg, true, IDD_C_SPDH_HOME>},
    {"PlshC", kLibrariesOnly, MakeOfLibrary<CPlshDlg, IDD_C_PLSH>},
    {"PwmhC", kLibrariesOnly, MakeOfLibrary<CPwmhFrequencyDlg>},
    {"Sp0hC", kLibrariesOnly, MakeOfLibrary<CSp0hDlg, IDD_C_SP0H>},
    {"SpshC", kLibrariesOnly, MakeOfLibrary<CSpshDlg, IDD_C_SPSH>},
    {"EPoint", kEverywhere, MakeDialog<CEPointDlg, kEPointForm>},
    {"PPointStart", kEverywhere, MakeDialog<CEPointDlg, kPPointStartForm>},
    {"JogPositioning", kEverywhere, MakeDialog<CEPointDlg, kJogPositioningForm>},
    {"PPointPassing", kEverywhere, MakeDialog<CPPointDlg>},
    {"Jog", kEverywhere, MakeDialog<CJogDlg, false>},
    {"JogSpeedChange", kEverywhere, MakeDialog<CJogDlg, true>, {.ofTwoFields = 4}},
    {"HomeReturn", kEverywhere, MakeDialog<CHomeReturnDlg>},
    {"Pulsar", kEverywhere, MakeDialog<CPulsarDlg>, {.ofNoField = 2}},
    {"Pid", kEverywhere, MakeDialog<CPidDlg, 19>},
    {"Scal", kEverywhere, MakeDialog<CScalDlg, nullptr, 0>},
    {"Dscal", kEverywhere, MakeDialog<CScalDlg, nullptr, 1>},
    {"Fscal", kEverywhere, MakeDialog<CScalDlg, nullptr, 2>},
    {"ScrDisp", kEverywhere, MakeDialog<CScrDispDlg, nullptr>, {.ofNoField = 0}, true},
};
