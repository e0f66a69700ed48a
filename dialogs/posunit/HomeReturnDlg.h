// Home position return of an axis of a positioning unit.
#pragma once

#include "dialogs/base/WzdDlgBase.h"

class CHomeReturnDlg : public CWzdDlgBase
{
public:
    CHomeReturnDlg(CFunWizard* wizard, CWnd* parent);

    void DoFieldExchange(CWzdExchange* wx) override;
};
