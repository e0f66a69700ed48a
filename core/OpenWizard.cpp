#include "core/OpenWizard.h"

const CThreadPointer<COpenWizard> COpenWizard::s_innermost;

COpenWizard::COpenWizard(CFunWizard*& wizard, CDialog* dialog)
    : m_wizard(wizard), m_dialog(dialog), m_outer(s_innermost.Exchange(this))
{
}

COpenWizard::~COpenWizard()
{
    s_innermost.Exchange(m_outer);
    if (m_orphaned)
        m_wizard = nullptr;
}

bool COpenWizard::IsOpen(const CFunWizard* wizard)
{
    const COpenWizard* scope = s_innermost.Get();
    while (scope != nullptr && scope->m_wizard != wizard)
        scope = scope->m_outer;
    return scope != nullptr;
}

void COpenWizard::Orphan(CFunWizard* wizard)
{
    COpenWizard* outermost = nullptr;
    for (COpenWizard* scope = s_innermost.Get(); scope != nullptr; scope = scope->m_outer)
        if (scope->m_wizard == wizard)
            outermost = scope;
    if (outermost == nullptr)
        return;

    CFunWizard& standIn = outermost->m_standIn.emplace();
    std::swap(standIn.m_library, wizard->m_library);
    std::swap(standIn.m_dialogFont, wizard->m_dialogFont);
    for (COpenWizard* scope = s_innermost.Get(); scope != nullptr; scope = scope->m_outer)
    {
        if (scope->m_wizard != wizard)
            continue;
        scope->m_wizard = &standIn;
        scope->m_orphaned = true;
        if (scope->m_dialog != nullptr)
            scope->m_dialog->EndDialog(IDCANCEL);
    }
}
