// F171 SPDH: positioning control and home position return on a pulse-output channel.
#pragma once

#include "dialogs/base/WzdDlgBase.h"

class CSpdhDlg : public CWzdDlgBase
{
public:
    /// `homeReturn` selects home position return instead of trapezoidal control.
    CSpdhDlg(CFunWizard* wizard, bool homeReturn, CWnd* parent)
        : CSpdhDlg(wizard, homeReturn, homeReturn ? IDD_SPDH_HOME : IDD_SPDH_TRAPEZOIDAL, parent)
    {
    }
    /// The same with the template of another family of controllers.
    CSpdhDlg(CFunWizard* wizard, bool homeReturn, UINT templateId, CWnd* parent);

    void DoFieldExchange(CWzdExchange* wx) override;

private:
    SWzdRange AccelerationTimeRange() const;

    bool m_homeReturn;
};
