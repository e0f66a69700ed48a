// F175 SPSH: linear interpolation of two axes.
#pragma once

#include "dialogs/base/WzdDlgBase.h"

class CSpshDlg : public CWzdDlgBase
{
public:
    CSpshDlg(CFunWizard* wizard, CWnd* parent) : CSpshDlg(wizard, IDD_SPSH, parent) {}
    /// The same with the template of another family of controllers. That of family B has a target speed in place of the
    /// maximum speed, and a time for each of acceleration and deceleration.
    CSpshDlg(CFunWizard* wizard, UINT templateId, CWnd* parent);

    void DoFieldExchange(CWzdExchange* wx) override;

protected:
    /// Only display type 0 of the host leaves the channel to the user.
    [[nodiscard]] bool Open() override;

private:
    void LeaveOutChannel();

    bool m_twoTimes;
};
