#include "tests/robust/Holdings.h"

#include "afx/Platform.h"

#include <algorithm>
#include <cstdint>
#include <vector>

namespace
{

bool IsOurs(HWND window)
{
    DWORD process = 0;
    GetWindowThreadProcessId(window, &process);
    return process == GetCurrentProcessId();
}

BOOL CALLBACK CountWindow(HWND window, LPARAM count)
{
    *reinterpret_cast<int*>(count) += IsOurs(window);
    return TRUE;
}

BOOL CALLBACK CountTree(HWND window, LPARAM count)
{
    if (IsOurs(window))
        EnumChildWindows(window, &CountWindow, count);
    return CountWindow(window, count);
}

int Windows()
{
    int count = 0;
    EnumWindows(&CountTree, reinterpret_cast<LPARAM>(&count));
    HWND unseen = nullptr; // those that only receive messages are not enumerated
    while ((unseen = FindWindowExA(HWND_MESSAGE, unseen, nullptr, nullptr)) != nullptr)
        CountTree(unseen, reinterpret_cast<LPARAM>(&count));
    return count;
}

// A handle is known by its lower half, an even number, and the menus of other processes are none to this one.
int Menus()
{
    int count = 0;
    for (uintptr_t handle = 2; handle <= 0xFFFE; handle += 2)
        count += IsMenu(reinterpret_cast<HMENU>(handle)) != FALSE;
    return count;
}

// The system does not tell on every version how many graphics objects a process has, but there is only room for so
// many: those that there are cannot be made any more.
int RoomForGraphics()
{
    std::vector<HBRUSH> brushes(100000);
    const auto end = std::find_if(brushes.begin(), brushes.end(),
                                  [](HBRUSH& brush) { return (brush = CreateSolidBrush(RGB(1, 2, 3))) == nullptr; });
    std::for_each(brushes.begin(), end, [](HBRUSH brush) { DeleteObject(brush); });
    return static_cast<int>(end - brushes.begin());
}

} // namespace

Holdings CurrentHoldings()
{
    return {{"windows", Windows()}, {"menus", Menus()}, {"room for graphics objects", RoomForGraphics()}};
}

size_t AllocatedBytes()
{
    HANDLE heaps[100];
    const DWORD count = std::min<DWORD>(GetProcessHeaps(100, heaps), 100);
    size_t bytes = 0;
    for (DWORD i = 0; i < count; ++i)
    {
        PROCESS_HEAP_ENTRY entry = {};
        HeapLock(heaps[i]);
        while (HeapWalk(heaps[i], &entry))
            bytes += (entry.wFlags & PROCESS_HEAP_ENTRY_BUSY) != 0 ? entry.cbData : 0;
        HeapUnlock(heaps[i]);
    }
    return bytes;
}
