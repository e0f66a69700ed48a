// Small services of the system that MFC leaves to the Windows functions.
#pragma once

#include "afx/afx.h"

/// The bytes of the character that `text` points to: 2 for a double-byte character of the system's code page with both
/// its bytes there, else 1. `text` is not at its end.
AFX_API int AfxCharLength(LPCSTR text);

/// The width (low word) and height (high word) in pixels of the average character of the system's dialog font.
AFX_API LONG AfxGetDialogBaseUnits();

/// The folder that a module was loaded from, with a closing backslash; null means the program. Empty when it cannot be
/// told.
AFX_API CString AfxGetModuleFolder(HINSTANCE module);

/// The program that runs, whoever asks. A host that uses the library as a DLL makes its own resources the ones in use
/// with it.
AFX_API HINSTANCE AfxGetProgramHandle();
