// Small services of the system that MFC leaves to the Windows functions.
#pragma once

#include "afx/CodePage.h"
#include "afx/afx.h"

/// The bytes of the character that `text` points to: 2 for a double-byte character of the code page with both its bytes
/// there, else 1. `text` is not at its end.
int AfxCharLength(LPCSTR text, UINT page = AfxGetTextPage());

/// Gives a message that one window has received to another as it is: a character may be one of more than a byte.
LRESULT AfxForward(const CWnd* window, UINT message, WPARAM wParam, LPARAM lParam);

/// The width (low word) and height (high word) in pixels of the average character of the system's dialog font.
LONG AfxGetDialogBaseUnits();

/// The folder that a module was loaded from, with a closing backslash; null means the program. Empty when it cannot be
/// told.
CString AfxGetModuleFolder(HINSTANCE module);
