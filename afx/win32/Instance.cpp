#include "afx/Resources.h"

// The linker puts this at the address where the module that contains this code is loaded.
extern "C" IMAGE_DOS_HEADER __ImageBase;

HINSTANCE AfxGetInstanceHandle() { return reinterpret_cast<HINSTANCE>(&__ImageBase); }
