// Operations repeated until memory has failed at every single place.
#pragma once

#include "tests/support/AllocationFaults.h"

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
            CAllocationFaults memory(n);
            result = operation();
            memory.Pause();
            failed = memory.Failures() > 0;
        }
        if (!failed)
            return n;
        check(result);
    }
}
