// F173 PWMH of family C: PWM output on a channel, at any frequency.
#pragma once

#include "dialogs/base/WzdDlgBase.h"

class CPwmhFrequencyDlg : public CWzdDlgBase
{
public:
    CPwmhFrequencyDlg(CFunWizard* wizard, CWnd* parent);

    void DoFieldExchange(CWzdExchange* wx) override;
};
