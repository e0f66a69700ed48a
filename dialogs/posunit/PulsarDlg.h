// Pulsar input operation: a manual pulse generator moves an axis of a positioning unit.
#pragma once

#include "dialogs/base/WzdDlgBase.h"

class CPulsarDlg : public CWzdDlgBase
{
public:
    CPulsarDlg(CFunWizard* wizard, CWnd* parent);

    void DoFieldExchange(CWzdExchange* wx) override;
};
