// F172 PLSH: JOG operation on a pulse-output channel, which can stop at a target value.
#pragma once

#include "dialogs/base/WzdDlgBase.h"

class CPlshDlg : public CWzdDlgBase
{
public:
    CPlshDlg(CFunWizard* wizard, CWnd* parent) : CPlshDlg(wizard, IDD_PLSH, parent) {}
    /// The same with the template of another family of controllers.
    CPlshDlg(CFunWizard* wizard, UINT templateId, CWnd* parent);

    void DoFieldExchange(CWzdExchange* wx) override;
};
