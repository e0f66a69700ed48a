// F173 PWMH: PWM output on a channel, at one of two resolutions of the duty.
#pragma once

#include "dialogs/base/WzdDlgBase.h"

class CPwmhDlg : public CWzdDlgBase
{
public:
    CPwmhDlg(CFunWizard* wizard, CWnd* parent);

    void DoFieldExchange(CWzdExchange* wx) override;
};
