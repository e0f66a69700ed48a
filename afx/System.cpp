#include "afx/System.h"

int AfxCharLength(LPCSTR text, UINT page)
{
    return ::IsDBCSLeadByteEx(page, static_cast<BYTE>(*text)) && text[1] != '\0' ? 2 : 1;
}

LRESULT AfxForward(const CWnd* window, UINT message, WPARAM wParam, LPARAM lParam)
{
    return ::SendMessageW(window->m_hWnd, message, wParam, lParam);
}

LONG AfxGetDialogBaseUnits() { return GetDialogBaseUnits(); }

// The full path of a module, however long; empty when there is no such module.
static CString ModulePath(HINSTANCE module)
{
    CString path;
    for (DWORD size = MAX_PATH;; size *= 2)
    {
        const DWORD length = ::GetModuleFileNameA(module, path.GetBuffer(static_cast<int>(size)), size);
        path.ReleaseBuffer(length < size ? static_cast<int>(length) : 0);
        if (length < size)
            return path;
    }
}

CString AfxGetModuleFolder(HINSTANCE module)
{
    const CString path = ModulePath(module);
    // Searched from the front: the second byte of a character may look like a backslash.
    int folderLength = 0;
    for (LPCSTR at = path; *at; at += AfxCharLength(at, CP_ACP))
    {
        if (*at == '\\' || *at == '/')
            folderLength = static_cast<int>(at - path) + 1;
    }
    return path.Left(folderLength);
}
