// Wizard objects with open dialogs.
//
// A modal dialog dispatches whatever the host's thread has to do, so any operation may be called while dialogs of the
// same object are open; the host may even destroy the object. What the open dialogs use must outlast them.
#pragma once

#include "afx/ThreadState.h"
#include "core/FunWizard.h"

#include <optional>

/// Stands on the stack of whatever runs dialogs of a wizard object, and of each of these dialogs. When the object is
/// destroyed meanwhile, its dialogs are ended as by Cancel, and until the outermost of its scopes ends a stand-in with
/// its library and font takes its place.
class COpenWizard
{
public:
    /// `wizard` is redirected to the stand-in, and set to null at the end of the scope when there is one. `dialog` is
    /// what to end.
    explicit COpenWizard(CFunWizard*& wizard, CDialog* dialog = nullptr);
    ~COpenWizard();

    COpenWizard(const COpenWizard&) = delete;
    COpenWizard& operator=(const COpenWizard&) = delete;

    /// Whether the object has been destroyed.
    bool IsOrphaned() const { return m_orphaned; }

    /// Whether dialogs of the object are open.
    static bool IsOpen(const CFunWizard* wizard);
    /// To be called when the object is destroyed.
    static void Orphan(CFunWizard* wizard);

private:
    CFunWizard*& m_wizard;
    CDialog* m_dialog;
    COpenWizard* m_outer;
    bool m_orphaned = false;
    std::optional<CFunWizard> m_standIn;

    /// Of the calling thread: an object belongs to one, and its dialogs do.
    static const CThreadPointer<COpenWizard> s_innermost;
};
