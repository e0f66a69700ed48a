// Where texts and dialog templates come from, and libraries that hold them.
#pragma once

#include "afx/Export.h"

/// The module whose resources are in use: the one last set, else the module that contains this code.
AFX_API HINSTANCE AfxGetResourceHandle();
/// Makes another module's resources the ones in use; null means the module that contains this code. The module must
/// stay loaded.
AFX_API void AfxSetResourceHandle(HINSTANCE resources);

/// The module that contains this code: the library or, where the code is linked directly, the program.
HINSTANCE AfxGetInstanceHandle();

/// The module to look for a resource in: always the one in use, there is no fallback.
HINSTANCE AfxFindResourceHandle(LPCSTR name, LPCSTR type);

/// A string of the module in use where the module holds it, not terminated; its length is 0 when there is none.
LPCWSTR AfxFindString(UINT id, int& length);
/// Copies it to a buffer of `size` bytes, cut after a whole character when it is longer, and allocates nothing. Returns
/// its length without the terminator; 0, and an empty text, when there is no such string.
int AfxLoadString(UINT id, LPSTR buffer, UINT size = 256);

/// Loads a library, to be freed with AfxFreeLibrary; null on failure. Give a full path: a bare name is searched for in
/// folders that are not ours.
HINSTANCE AfxLoadLibrary(LPCSTR path);
/// Null is permitted and does nothing.
BOOL AfxFreeLibrary(HINSTANCE library);
