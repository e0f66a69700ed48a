// F168 SPD1: positioning control on the built-in pulse outputs Y0 and Y1.
#pragma once

#include "dialogs/base/WzdDlgBase.h"

class CSpd1Dlg : public CWzdDlgBase
{
public:
    /// `homeReturn` selects home position return instead of trapezoidal control.
    CSpd1Dlg(CFunWizard* wizard, bool homeReturn, CWnd* parent);

    void DoFieldExchange(CWzdExchange* wx) override;

private:
    SWzdRange MaximumSpeedRange() const;

    bool m_homeReturn;
};
