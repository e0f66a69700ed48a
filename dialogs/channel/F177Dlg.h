// F177 of family B: home position return on a channel.
#pragma once

#include "dialogs/base/WzdDlgBase.h"

class CF177Dlg : public CWzdDlgBase
{
public:
    CF177Dlg(CFunWizard* wizard, CWnd* parent);

    void DoFieldExchange(CWzdExchange* wx) override;
};
