// F171 SPDH of family B: positioning control and home position return on a channel, with a time for acceleration and
// one for deceleration.
#pragma once

#include "dialogs/base/WzdDlgBase.h"

class CSpdhChDlg : public CWzdDlgBase
{
public:
    /// `homeReturn` selects home position return instead of trapezoidal control.
    CSpdhChDlg(CFunWizard* wizard, bool homeReturn, CWnd* parent);

    void DoFieldExchange(CWzdExchange* wx) override;

private:
    bool m_homeReturn;
};
