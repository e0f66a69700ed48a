#include "tests/robust/Holdings.h"

#include "afx/Platform.h"

#include <functional>
#include <vector>

namespace
{

int Windows()
{
    int count = 0;
    const WNDENUMPROC countTree = [](HWND window, LPARAM counter) -> BOOL {
        ++*reinterpret_cast<int*>(counter);
        EnumChildWindows(
            window,
            [](HWND, LPARAM inner) -> BOOL {
                ++*reinterpret_cast<int*>(inner);
                return TRUE;
            },
            counter);
        return TRUE;
    };
    EnumThreadWindows(GetCurrentThreadId(), countTree, reinterpret_cast<LPARAM>(&count));
    return count;
}

// The system does not tell how many objects are in use on every version, but there is only room for so many of them:
// what is in use is missing from those that can still be made.
template <typename THandle>
int RoomFor(const std::function<THandle()>& make, const std::function<void(THandle)>& destroy)
{
    constexpr size_t kMost = 100000;
    std::vector<THandle> made;
    while (made.size() < kMost)
    {
        const THandle handle = make();
        if (handle == nullptr)
            break;
        made.push_back(handle);
    }
    for (THandle handle : made)
        destroy(handle);
    return static_cast<int>(made.size());
}

} // namespace

Holdings CurrentHoldings()
{
    const int brushes = RoomFor<HBRUSH>([] { return CreateSolidBrush(RGB(1, 2, 3)); }, [](HBRUSH brush) { DeleteObject(brush); });
    const int menus = RoomFor<HMENU>([] { return CreateMenu(); }, [](HMENU menu) { DestroyMenu(menu); });
    return {{"windows", Windows()}, {"room for graphics objects", brushes}, {"room for user objects", menus}};
}

size_t AllocatedBytes()
{
    HANDLE heaps[100];
    const DWORD count = GetProcessHeaps(100, heaps);
    size_t bytes = 0;
    for (DWORD i = 0; i < count && i < 100; ++i)
    {
        PROCESS_HEAP_ENTRY entry = {};
        HeapLock(heaps[i]);
        while (HeapWalk(heaps[i], &entry))
        {
            if ((entry.wFlags & PROCESS_HEAP_ENTRY_BUSY) != 0)
                bytes += entry.cbData;
        }
        HeapUnlock(heaps[i]);
    }
    return bytes;
}
