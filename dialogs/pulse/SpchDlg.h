// F176 SPCH: arc interpolation of two axes.
#pragma once

#include "dialogs/base/WzdDlgBase.h"

class CSpchDlg : public CWzdDlgBase
{
public:
    CSpchDlg(CFunWizard* wizard, CWnd* parent);

    void DoFieldExchange(CWzdExchange* wx) override;
};
