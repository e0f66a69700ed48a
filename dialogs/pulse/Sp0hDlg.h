// F174 SP0H: pulse output on a channel by a table of steps.
#pragma once

#include "dialogs/grid/GridDlg.h"

class CSp0hDlg : public CGridDlg
{
public:
    CSp0hDlg(CFunWizard* wizard, CWnd* parent);

    void DoFieldExchange(CWzdExchange* wx) override;
};
