// What the process holds of the system: compared before and after what must leave nothing behind.
#pragma once

#include <cstddef>
#include <map>
#include <string>

/// Windows, graphics objects, menus, ... by what they are called.
using Holdings = std::map<std::string, int>;
Holdings CurrentHoldings();

/// Bytes that are allocated from the heaps.
size_t AllocatedBytes();

/// Whether a batch of work leaves the heaps as it found them, but for so many bytes that the system itself is known to
/// lose. Caches and lists may still find their size in the first of so many batches; what is lost is lost by every one.
template <typename TBatch>
bool LeavesNoMemory(int batches, size_t lostBySystem, TBatch batch)
{
    bool left = true;
    for (int i = 0; i < batches; ++i)
    {
        const size_t before = AllocatedBytes();
        batch();
        left = left && AllocatedBytes() > before + lostBySystem;
    }
    return !left;
}
