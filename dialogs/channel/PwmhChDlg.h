// F173 PWMH of family B: PWM output on a channel, at one of sixteen frequencies.
#pragma once

#include "dialogs/base/WzdDlgBase.h"

class CPwmhChDlg : public CWzdDlgBase
{
public:
    CPwmhChDlg(CFunWizard* wizard, CWnd* parent);

    void DoFieldExchange(CWzdExchange* wx) override;
};
