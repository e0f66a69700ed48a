// Text on the clipboard.
#pragma once

#include "afx/afx.h"

/// Whether the clipboard holds text.
BOOL AfxIsClipboardText();

// FALSE when another program keeps the clipboard or there is no text or no memory. `owner` is the window that uses the
// clipboard.
BOOL AfxGetClipboardText(CWnd* owner, CString& text);
BOOL AfxSetClipboardText(CWnd* owner, LPCSTR text);
