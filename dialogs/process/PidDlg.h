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
    DWORD StoredControlCode() const override;

protected:
    int HelpTopic() const override;
    bool Open() override;

    void OnAutoTuning();
    void OnStartLeft();
    void OnUsedChanged(UINT id);

    DECLARE_MESSAGE_MAP()

private:
    bool IsAutoTuning() const;

    int m_workArea;
    bool m_autoTuning = false; // as it was when the gains were last set for it
};
