// F169 PLS: JOG operation with a built-in pulse output.
#pragma once

#include "dialogs/base/WzdDlgBase.h"

class CPlsDlg : public CWzdDlgBase
{
public:
    CPlsDlg(CFunWizard* wizard, CWnd* parent);

    void DoFieldExchange(CWzdExchange* wx) override;
};
