// F172 PLSH of family B: JOG operation on a channel, with a time for acceleration and one for deceleration.
#pragma once

#include "dialogs/base/WzdDlgBase.h"

class CPlshChDlg : public CWzdDlgBase
{
public:
    CPlshChDlg(CFunWizard* wizard, CWnd* parent);

    void DoFieldExchange(CWzdExchange* wx) override;
};
