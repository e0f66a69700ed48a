// The direction of a JOG operation.
#include "core/Devices.h"
#include "core/FunWizard.h"
#include "core/Values.h"
#include "dialogs/base/WzdDlgBase.h"
#include "dialogs/posunit/UnitRows.h"

namespace
{

constexpr SWzdChoice kDirections[] = {{IDS_JOG_FORWARD, 0}, {IDS_JOG_REVERSE, 1}};

class CJogDirectionField : public CWzdField
{
public:
    using CWzdField::CWzdField;

    bool Open() override
    {
        return m_dialog.GetDlgItem(IDC_JOG_DIRECTION) == nullptr || FillJogDirectionCombo(m_dialog);
    }

    void Clear() override { m_dialog.Select(IDC_JOG_DIRECTION, 0); }
};

} // namespace

bool FillJogDirectionCombo(CWzdDlgBase& dialog)
{
    const CFunWizard& wizard = dialog.Wizard();
    short kind, code;
    int number;
    const int count = wizard.GetContInfoCount();
    const bool reverse = count >= 3 && wizard.GetContInfo(count - 1, kind, code, number) && code == kDeviceY &&
                         FormatDeviceNumber(kDeviceY, number).Right(1) == "4";
    return dialog.FillCombo(IDC_JOG_DIRECTION, kDirections, reverse ? 1 : 0);
}

void WDX_JogDirection(CWzdExchange* wx) { WzdDeclare<CJogDirectionField>(wx, {}); }
