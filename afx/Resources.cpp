#include "afx/Resources.h"

#include "afx/CodePage.h"
#include "afx/ThreadState.h"

HINSTANCE AfxGetResourceHandle()
{
    const HINSTANCE resources = AfxThreadState().resources;
    return resources ? resources : AfxGetInstanceHandle();
}

void AfxSetResourceHandle(HINSTANCE resources) { AfxThreadState().resources = resources; }

HINSTANCE AfxFindResourceHandle(LPCSTR, LPCSTR) { return AfxGetResourceHandle(); }

LPCWSTR AfxFindString(UINT id, int& length)
{
    LPCWSTR text = nullptr;
    length = ::LoadStringW(AfxGetResourceHandle(), id, reinterpret_cast<LPWSTR>(&text), 0); // 0: the text is not copied
    return text;
}

int AfxLoadString(UINT id, LPSTR buffer, UINT size)
{
    int length = 0;
    const LPCWSTR text = AfxFindString(id, length);
    return AfxNarrow(text, length, buffer, static_cast<int>(size));
}

HINSTANCE AfxLoadLibrary(LPCSTR path) { return ::LoadLibraryA(path); }

BOOL AfxFreeLibrary(HINSTANCE library) { return library && ::FreeLibrary(library); }
