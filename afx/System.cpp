#include "afx/System.h"

int AfxCharLength(LPCSTR text) { return IsDBCSLeadByte(static_cast<BYTE>(*text)) && text[1] != '\0' ? 2 : 1; }

LONG AfxGetDialogBaseUnits() { return GetDialogBaseUnits(); }

CString AfxGetModuleFolder(HINSTANCE module)
{
    char path[MAX_PATH];
    const DWORD length = ::GetModuleFileNameA(module, path, MAX_PATH);
    if (length == 0 || length >= MAX_PATH)
        return CString();

    // Searched from the front: the second byte of a character may look like a backslash.
    int folderLength = 0;
    for (LPCSTR at = path; *at; at += AfxCharLength(at))
    {
        if (*at == '\\' || *at == '/')
            folderLength = static_cast<int>(at - path) + 1;
    }
    return CString(path, folderLength);
}
