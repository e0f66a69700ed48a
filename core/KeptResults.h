// The results of a wizard object, kept while dialogs run that may not change them.
#pragma once

#include "core/FunWizard.h"

#include <vector>

/// Keeps what dialogs of an object may change: the lists, the flags, the dialog data and which wizard was the last one.
/// At the end of its life all of it is put back, unless it has been given up before.
class CKeptResults
{
public:
    /// For dialogs that enter no wizard.
    explicit CKeptResults(CFunWizard& wizard) : CKeptResults(wizard, false) {}
    /// For those of an instruction: entering another wizard than the last one frees the dialog data.
    CKeptResults(CFunWizard& wizard, int instruction, int variant)
        : CKeptResults(wizard, instruction != wizard.m_lastInstruction || variant != wizard.m_lastVariant)
    {
    }
    ~CKeptResults();

    CKeptResults(const CKeptResults&) = delete;
    CKeptResults& operator=(const CKeptResults&) = delete;

    /// What is in the object now is to stay.
    void GiveUp();

private:
    /// Throws without memory, and changes nothing.
    CKeptResults(CFunWizard& wizard, bool holdsDialogData);
    void PutBack();

    CFunWizard* m_wizard;
    std::vector<SContact> m_contacts;
    std::vector<SOperand> m_operands;
    std::vector<SFunSetData> m_data;
    std::vector<SFWzdInstCode> m_instructions;
    std::vector<CString> m_comments;
    void* m_dialogData = nullptr;
    bool m_holdsDialogData;
    BYTE m_unitMode;
    BYTE m_axisType;
    int m_lastInstruction;
    int m_lastVariant;
    int m_commentRecord;
    int m_onlyDataTable;
};
