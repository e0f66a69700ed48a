// P point control, passing point: a further point of a move that a start point has begun.
#pragma once

#include "dialogs/base/WzdDlgBase.h"

class CPPointDlg : public CWzdDlgBase
{
public:
    CPPointDlg(CFunWizard* wizard, CWnd* parent);

    void DoFieldExchange(CWzdExchange* wx) override;
};
