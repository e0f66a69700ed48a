// F171 SPDH: positioning control and home position return on a pulse-output channel.
#pragma once

#include "dialogs/base/WzdDlgBase.h"

class CSpdhDlg : public CWzdDlgBase
{
public:
    /// `homeReturn` selects home position return instead of trapezoidal control.
    CSpdhDlg(CFunWizard* wizard, bool homeReturn, CWnd* parent);

    void DoFieldExchange(CWzdExchange* wx) override;

private:
    SWzdRange AccelerationTimeRange() const;

    bool m_homeReturn;
};
