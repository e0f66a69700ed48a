// The resource source of the library's texts and dialog templates.
#pragma once

#include "afx/CodePage.h"
#include "afx/afx.h"

/// The code page of a language library's texts, or of the module's own when it is null; CP_ACP for the system's.
UINT TextPageOf(HINSTANCE library);

/// While it lives, texts and templates come from `library`, or from this module itself when `library` is null, and
/// narrow texts are in their code page.
class CResourceScope
{
public:
    explicit CResourceScope(HINSTANCE library) : m_previous(AfxGetResourceHandle()), m_page(TextPageOf(library))
    {
        AfxSetResourceHandle(library != nullptr ? library : AfxGetInstanceHandle());
    }
    ~CResourceScope() { AfxSetResourceHandle(m_previous); }

    CResourceScope(const CResourceScope&) = delete;
    CResourceScope& operator=(const CResourceScope&) = delete;

private:
    HINSTANCE m_previous;
    CTextPage m_page;
};
