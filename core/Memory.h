// Where failures end: no exception crosses the boundary of the library.
#pragma once

#include "afx/Temporary.h"

#include <new>

/// Runs an operation that may run out of memory or be refused a resource of the system; 1 when it went well, 0 when it
/// did not.
template <typename TOperation>
[[nodiscard]] int WithMemory(TOperation operation)
{
    try
    {
        operation();
        return 1;
    }
    catch (CException* e)
    {
        e->Delete();
    }
    catch (const std::bad_alloc&)
    {
    }
    return 0;
}

/// Runs an operation of the interface that works with windows. Temporary objects that it asks for are gone at its end.
/// Returns what it returns, or `failed` when memory or a resource has run out.
template <typename TOperation>
[[nodiscard]] int RunOperation(int failed, TOperation operation)
{
    const CTemporaryScope temporaries;
    int result = failed;
    return WithMemory([&] { result = operation(); }) ? result : failed;
}
