#include "afx/Resources.h"

namespace
{
HINSTANCE resourceHandle = nullptr; // null: this module
}

HINSTANCE AfxGetResourceHandle() { return resourceHandle ? resourceHandle : AfxGetInstanceHandle(); }

void AfxSetResourceHandle(HINSTANCE resources) { resourceHandle = resources; }

HINSTANCE AfxFindResourceHandle(LPCSTR, LPCSTR) { return AfxGetResourceHandle(); }

int AfxLoadString(UINT id, LPSTR buffer, UINT size)
{
    buffer[0] = '\0';
    return ::LoadStringA(AfxGetResourceHandle(), id, buffer, static_cast<int>(size));
}

HINSTANCE AfxLoadLibrary(LPCSTR path) { return ::LoadLibraryA(path); }

BOOL AfxFreeLibrary(HINSTANCE library) { return library && ::FreeLibrary(library); }
