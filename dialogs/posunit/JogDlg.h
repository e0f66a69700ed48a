// JOG operation of an axis of a positioning unit, at one speed or at two.
#pragma once

#include "dialogs/base/WzdDlgBase.h"

class CJogDlg : public CWzdDlgBase
{
public:
    /// `speedChange` selects the form with a second speed and the contact that changes to it.
    CJogDlg(CFunWizard* wizard, bool speedChange, CWnd* parent);

    void DoFieldExchange(CWzdExchange* wx) override;

private:
    bool m_speedChange;
};
