// The group of the positioning-unit dialogs in which the user asks for a start output: check box 2054, the second
// condition that it enables, and the word of the output.
#pragma once

#include "afx/afx.h"

/// Works on the controls of a dialog by their tab order. It does nothing when a control that it measures by is missing:
/// not every template carries the group. Its extended form has two controls more, those of the JOG direction.
class CStartOutputGroup
{
public:
    /// `dialog` is not owned and outlives the group.
    explicit CStartOutputGroup(CWnd* dialog);

    /// Enables what the check boxes "start output" and "same condition" leave to be filled in.
    void UpdateEnabling() const;

    /// Makes the dialog as short as its start type allows: 0 needs none of the group, 1 not the word of the output, 2
    /// needs everything. Called once, when the dialog opens.
    void Compact(BYTE startType) const;

private:
    CWnd* m_dialog;
    bool m_extended;
    bool m_complete;
};
