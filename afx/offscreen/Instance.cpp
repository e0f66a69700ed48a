#include "afx/Resources.h"

// Natively no name means the module that this code is in.
HINSTANCE AfxGetInstanceHandle() { return ::GetModuleHandleA(nullptr); }
