// F175 SPSH: linear interpolation of two axes.
#pragma once

#include "dialogs/base/WzdDlgBase.h"

class CSpshDlg : public CWzdDlgBase
{
public:
    CSpshDlg(CFunWizard* wizard, CWnd* parent);

    void DoFieldExchange(CWzdExchange* wx) override;

protected:
    /// Only display type 0 of the host leaves the channel to the user.
    [[nodiscard]] bool Open() override;

private:
    void LeaveOutChannel();
};
