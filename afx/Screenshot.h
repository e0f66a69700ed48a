// Pictures of windows, for looking at dialogs that a script has filled in.
#pragma once

#include "afx/afx.h"

/// Paints a window with its caption and saves what it shows as a PNG file. FALSE when the file cannot be written, or
/// when this desktop has no pictures: windows that are only kept in memory are never painted.
BOOL AfxSaveScreenshot(HWND window, LPCSTR pngPath);
