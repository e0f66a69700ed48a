// Allocations that fail on demand.
#pragma once

#include "afx/afx.h"

/// While it lives, the n-th allocation of objects, strings and containers fails, n from 0; the others succeed.
class CFailingMemory
{
public:
    explicit CFailingMemory(int n) : m_previous(AfxSetAllocHook(&Hook))
    {
        s_left = n;
        s_failed = false;
    }
    ~CFailingMemory() { AfxSetAllocHook(m_previous); }

    CFailingMemory(const CFailingMemory&) = delete;
    CFailingMemory& operator=(const CFailingMemory&) = delete;

    /// Whether the n-th allocation has been asked for.
    bool HasFailed() const { return s_failed; }

private:
    static BOOL PASCAL Hook(size_t, BOOL, LONG)
    {
        const bool fails = s_left-- == 0;
        s_failed = s_failed || fails;
        return fails ? FALSE : TRUE;
    }

    static inline int s_left = 0;
    static inline bool s_failed = false;

    AFX_ALLOC_HOOK m_previous;
};

/// Calls operation() with the first, then the second, ... allocation failing, until none of its allocations fails any
/// more. After each failed call check(result) is called with memory restored. Returns how many calls met a failure.
template <typename TOperation, typename TCheck>
int WithEveryAllocationFailing(TOperation operation, TCheck check)
{
    for (int n = 0;; ++n)
    {
        int result = 0;
        bool failed = false;
        {
            CFailingMemory memory(n);
            result = operation();
            failed = memory.HasFailed();
        }
        if (!failed)
            return n;
        check(result);
    }
}
