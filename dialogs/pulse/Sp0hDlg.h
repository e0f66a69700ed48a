// F174 SP0H: pulse output on a channel by a table of steps.
#pragma once

#include "dialogs/grid/GridDlg.h"

class CSp0hDlg : public CGridDlg
{
public:
    CSp0hDlg(CFunWizard* wizard, CWnd* parent) : CSp0hDlg(wizard, IDD_SP0H, parent) {}
    /// The same with the template of another family of controllers.
    CSp0hDlg(CFunWizard* wizard, UINT templateId, CWnd* parent);

    void DoFieldExchange(CWzdExchange* wx) override;
};
