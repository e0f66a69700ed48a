// F355 PID: the parameter table of the PID instruction.
#pragma once

#include "dialogs/base/WzdDlgBase.h"

class CPidDlg : public CWzdDlgBase
{
public:
    /// `workArea` tells how many registers the work area reaches beyond its first one.
    CPidDlg(CFunWizard* wizard, int workArea, CWnd* parent);

    void DoFieldExchange(CWzdExchange* wx) override;
    LONGLONG TableWords() override;
    std::optional<DWORD> StoredControlCode() const override;

protected:
    int HelpTopic() const override;

private:
    bool IsAutoTuning() const;

    int m_workArea;
};
