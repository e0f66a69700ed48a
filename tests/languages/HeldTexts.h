// Texts as the system has them, in Unicode: what windows hold, and what a library's templates say.
#pragma once

#include "afx/afx.h"

#include <string>
#include <vector>

/// A text of a window, as UTF-8.
struct SHeldText
{
    UINT control; ///< 0 for the dialog's caption
    std::string className;
    std::string text;
};

/// The caption of a dialog, then the text of each control in tab order; for a list all of its items.
std::vector<SHeldText> HeldTexts(HWND dialog);

/// The caption of a dialog template, then the text of each control, as UTF-8; nothing when there is no such template.
std::vector<std::string> TemplateTexts(HINSTANCE library, UINT id);
