// Where the controls of a dialog stand, which the unit's dialogs change by the start type.
#pragma once

#include "afx/DialogRobot.h"

#include <vector>

struct SLayout
{
    std::vector<SRobotControl> controls;
    CRect client;
};

SLayout LayoutOf(CDialogRobot& dialog);

/// In tab order; the number of controls when there is none with the id.
size_t IndexOf(const SLayout& layout, UINT id);
CRect RectOf(const SLayout& layout, UINT id);

/// Nothing stands outside of the dialog or over something else.
void ExpectTidy(const SLayout& layout);
/// Compares with what the dialog shows of everything: hidden controls, and the distance by which the buttons moved.
void ExpectCompacted(const SLayout& layout, const SLayout& full, size_t firstHidden, size_t countHidden, int gained,
                     const CRect& frame);
