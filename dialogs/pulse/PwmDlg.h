// F170 PWM: PWM output with a built-in output.
#pragma once

#include "dialogs/base/WzdDlgBase.h"

class CPwmDlg : public CWzdDlgBase
{
public:
    CPwmDlg(CFunWizard* wizard, CWnd* parent);

    void DoFieldExchange(CWzdExchange* wx) override;
};
