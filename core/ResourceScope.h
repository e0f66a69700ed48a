// The resource source of the library's texts and dialog templates.
#pragma once

#include "afx/CodePage.h"
#include "afx/afx.h"

#include <optional>

/// The code page of a language library's texts, or of the module's own when it is null; CP_ACP for the system's.
UINT TextPageOf(HINSTANCE library);

/// While it lives, texts and templates come from `library`, or from this module itself when `library` is null, and
/// narrow texts are in their code page.
class CResourceScope
{
public:
    explicit CResourceScope(HINSTANCE library) : m_previous(AfxGetResourceHandle()), m_page(TextPageOf(library))
    {
        AfxSetResourceHandle(SourceOf(library));
    }
    ~CResourceScope() { AfxSetResourceHandle(m_previous); }

    CResourceScope(const CResourceScope&) = delete;
    CResourceScope& operator=(const CResourceScope&) = delete;

    static HINSTANCE SourceOf(HINSTANCE library) { return library != nullptr ? library : AfxGetInstanceHandle(); }

private:
    HINSTANCE m_previous;
    CTextPage m_page;
};

/// The same for a message that an open dialog receives: nothing changes, and it costs next to nothing, but where the
/// host has made another source the current one since, as it does by opening dialogs of another language.
class CMessageScope
{
public:
    explicit CMessageScope(HINSTANCE library)
    {
        if (AfxGetResourceHandle() != CResourceScope::SourceOf(library))
            m_scope.emplace(library);
    }

private:
    std::optional<CResourceScope> m_scope;
};
