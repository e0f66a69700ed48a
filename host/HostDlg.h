// The main window of the ladder tool: choose a controller, open a wizard, read what it entered.
#pragma once

#include "core/FunWizard.h"

#include <functional>

class CHostDlg : public CDialog
{
public:
    CHostDlg();

protected:
    BOOL OnInitDialog() override;
    void OnOK() override;
    void OnPlcChanged();
    void OnLanguageChanged();
    void OnHelpPathChanged();
    void OnPulse();
    void OnUnit();
    void OnPid();
    void OnScal();
    void OnDscal();
    void OnFscal();
    void OnScreen();
    void OnControlCode();

    DECLARE_MESSAGE_MAP()

private:
    void FillLists();
    void SetUpPlc();
    void SetUpLanguage();
    unsigned char AxisFlag() const;
    void OpenWizard(const std::function<int()>& open);
    void ShowResults();

    CFunWizard m_wizard;
    CFont m_fixedFont;
    int m_axes = 4;
};
