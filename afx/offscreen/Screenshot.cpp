#include "afx/Screenshot.h"

BOOL AfxSaveScreenshot(HWND, LPCSTR) { return FALSE; }
