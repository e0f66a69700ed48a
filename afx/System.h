// Small services of the system that MFC leaves to the Windows functions.
#pragma once

#include "afx/afx.h"

/// The bytes of the character that `text` points to: 2 for a double-byte character of the system's code page with both
/// its bytes there, else 1. `text` is not at its end.
int AfxCharLength(LPCSTR text);

/// The width (low word) and height (high word) in pixels of the average character of the system's dialog font.
LONG AfxGetDialogBaseUnits();

/// The folder that a module was loaded from, with a closing backslash; null means the program. Empty when it cannot be
/// told.
CString AfxGetModuleFolder(HINSTANCE module);
