// Text on the clipboard.
#pragma once

#include "afx/afx.h"

/// Whether the clipboard holds text.
AFX_API BOOL AfxIsClipboardText();

// FALSE when another program keeps the clipboard or there is no text or no memory. `owner` is the window that uses the
// clipboard.
AFX_API BOOL AfxGetClipboardText(CWnd* owner, CString& text);
AFX_API BOOL AfxSetClipboardText(CWnd* owner, LPCSTR text);
