// E point control of a positioning unit, and two operations that differ from it in the start relay alone.
#pragma once

#include "dialogs/base/WzdDlgBase.h"

enum EEPointForm
{
    kEPointForm,
    kPPointStartForm,
    kJogPositioningForm
};

class CEPointDlg : public CWzdDlgBase
{
public:
    CEPointDlg(CFunWizard* wizard, EEPointForm form, CWnd* parent);

    void DoFieldExchange(CWzdExchange* wx) override;

private:
    EEPointForm m_form;
};
