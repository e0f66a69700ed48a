// The resource source of the library's texts and dialog templates.
#pragma once

#include "afx/afx.h"

/// While it lives, texts and templates come from `library`, or from this module itself when `library` is null.
class CResourceScope
{
public:
    explicit CResourceScope(HINSTANCE library) : m_previous(AfxGetResourceHandle())
    {
        AfxSetResourceHandle(library != nullptr ? library : AfxGetInstanceHandle());
    }
    ~CResourceScope() { AfxSetResourceHandle(m_previous); }

    CResourceScope(const CResourceScope&) = delete;
    CResourceScope& operator=(const CResourceScope&) = delete;

private:
    HINSTANCE m_previous;
};
