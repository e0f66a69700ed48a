// Where memory failures end: no exception crosses the boundary of the library.
#pragma once

#include "afx/afx.h"

#include <new>

/// Runs an operation that may run out of memory; 1 when it went well, 0 when it did not.
template <typename TOperation>
[[nodiscard]] int WithMemory(TOperation operation)
{
    try
    {
        operation();
        return 1;
    }
    catch (CMemoryException* e)
    {
        e->Delete();
    }
    catch (const std::bad_alloc&)
    {
    }
    return 0;
}
