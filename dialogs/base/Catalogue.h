// What the selection dialog offers for which PLC, and which dialog a choice leads to. Tables only: no windows.
#pragma once

#include "afx/afx.h"
#include "core/Records.h"

#include <span>

/// What DoOpenPosDlg is asked for.
enum EWizardMode : unsigned char
{
    kPulseInstructions = 0,
    kUnitOperations = 1
};

/// An instruction with the form or operation chosen.
struct SWizardChoice
{
    int instruction = kNoInstruction;
    int variant = 0;

    bool operator==(const SWizardChoice&) const = default;
};

struct SCatalogueItem
{
    UINT text; ///< columns separated by tabs: mnemonic, number, description
    SWizardChoice choice;
};

/// The items of the selection list in order, whether the host supports them or not.
std::span<const SCatalogueItem> CatalogueItems(EWizardMode mode, BYTE plcType);

/// The text that explains a choice; 0 when there is none.
UINT ExplanationText(EWizardMode mode, BYTE plcType, const SWizardChoice& choice);

/// The template of the dialog that a choice leads to; 0 when there is none.
UINT DialogTemplate(EWizardMode mode, BYTE plcType, const SWizardChoice& choice);
