// Controls that the screen display dialog draws itself.
#pragma once

#include "afx/afx.h"

/// A button with a mark (0..7) that stays pressed while the mark is shown.
void DrawMarkButton(const DRAWITEMSTRUCT& item, int mark, bool shown);

/// An item of a list, or its closed field: a swatch of a color beside its name.
void DrawSwatch(const DRAWITEMSTRUCT& item, COLORREF color, const CString& name);
