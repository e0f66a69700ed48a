#include "afx/Resources.h"

// Natively the code is always linked into the program.
HINSTANCE AfxGetInstanceHandle() { return ::GetModuleHandleA(nullptr); }
