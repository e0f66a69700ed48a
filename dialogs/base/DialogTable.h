// The dialogs that a choice in the selection dialog leads to.
#pragma once

#include "dialogs/base/WzdDlgBase.h"

#include <memory>

/// Makes the dialog that has a template, in the form of a variant; null when there is none.
std::unique_ptr<CWzdDlgBase> MakeDialog(UINT templateId, int variant, CFunWizard* wizard, CWnd* parent);

/// Makes and runs it: its result, or -1 when there is none or no memory for it.
INT_PTR RunDialog(UINT templateId, int variant, CFunWizard* wizard, CWnd* parent);
