// What each thread has of its own. A window belongs to the thread that made it, and so does what goes with it.
#pragma once

#include "afx/Platform.h"

/// A pointer of which each thread has its own, null at first. Of static storage; without a slot of the system's, which
/// are plenty, it stays null.
template <class T>
class CThreadPointer
{
public:
    /// `release` is called with what a thread leaves behind when it ends or the library is unloaded.
    explicit CThreadPointer(PFLS_CALLBACK_FUNCTION release = nullptr) : m_slot(::FlsAlloc(release)) {}
    ~CThreadPointer() { ::FlsFree(m_slot); }

    CThreadPointer(const CThreadPointer&) = delete;
    CThreadPointer& operator=(const CThreadPointer&) = delete;

    T* Get() const { return static_cast<T*>(::FlsGetValue(m_slot)); }
    /// Returns what was set before.
    T* Exchange(T* pointer) const
    {
        T* const before = Get();
        ::FlsSetValue(m_slot, pointer);
        return before;
    }

private:
    DWORD m_slot;
};

#ifndef PEXLO_WITH_MFC
#include "afx/Temporary.h"
#endif

struct SThreadState
{
    UINT textPage = CP_ACP; ///< of narrow texts
#ifndef PEXLO_WITH_MFC      // which has the rest of its own
    STemporaries temporaries;
    /// The message that is being handled, for CWnd::Default.
    MSG message = {};
    /// The object whose window CWnd::CreateEx is about to create; the first message to an unknown window is for it.
    CWnd* windowInCreation = nullptr;
    HINSTANCE resources = nullptr; ///< where texts and templates come from; null: this module
#endif
};

/// That of the calling thread. Of the thread that has loaded the library it is there from the start; for another one it
/// is made when it is first asked for, which throws std::bad_alloc without memory.
SThreadState& AfxThreadState();
