// Dialogs that leave out controls which their form does not need, and close the gap. Nothing happens when a control to
// begin or to end with is missing.
#pragma once

#include "afx/afx.h"

/// Where a control stands in the client area of its dialog.
CRect RectInDialog(const CWnd* control);

/// The control so many steps before (GW_HWNDPREV) or behind (GW_HWNDNEXT) another one in tab order; null beyond the
/// end.
CWnd* Neighbour(CWnd* control, UINT direction, int steps);

/// Hides so many controls in tab order.
void HideControls(CWnd* first, int count);

/// Shows and enables, or hides and disables, the controls up to and including `last` in tab order.
void ShowControls(CWnd* first, const CWnd* last, bool shown);

/// Moves controls up by `height` pixels, up to and including `last` in tab order, and makes their dialog as much
/// shorter.
void CloseGap(CWnd* first, UINT last, int height);
