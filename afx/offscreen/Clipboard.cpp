// The clipboard, and the movable memory that its contents live in.

#include "afx/offscreen/Internal.h"

#include <cstring>
#include <map>

namespace offscreen
{
namespace
{
struct Memory
{
    std::vector<BYTE> bytes;
    int locks = 0;
    bool owned = false; // By the clipboard
};

struct ClipboardState
{
    HandleTable<Memory> movable{5};
    std::map<UINT, HANDLE> contents;
    bool open = false;
    HWND opener = nullptr;
};

ClipboardState& State()
{
    static auto* state = new ClipboardState;
    return *state;
}

Memory* MemoryOf(HGLOBAL handle)
{
    Memory* memory = State().movable.Find(handle);
    if (!memory)
        SetLastError(ERROR_INVALID_HANDLE);
    return memory;
}

void Free(HGLOBAL handle) { State().movable.Remove(handle); }

void Empty()
{
    for (const auto& [format, data] : State().contents)
        Free(data);
    State().contents.clear();
}
} // namespace

void ResetClipboard()
{
    ClipboardState& state = State();
    state.movable.Clear();
    state.contents.clear();
    state.open = false;
    state.opener = nullptr;
}

int CountGlobals()
{
    int count = 0;
    State().movable.ForEach([&](const Memory& memory) { count += !memory.owned; });
    return count;
}
} // namespace offscreen

using namespace offscreen;

HGLOBAL GlobalAlloc(UINT flags, SIZE_T size)
{
    Inside inside;
    if (flags != GMEM_MOVEABLE)
        return NotModelled("GlobalAlloc of other than movable memory", HGLOBAL{});
    auto memory = std::make_unique<Memory>();
    memory->bytes.resize(std::max<SIZE_T>(size, 1));
    return State().movable.Add<HGLOBAL>(std::move(memory));
}

LPVOID GlobalLock(HGLOBAL handle)
{
    Inside inside;
    Memory* memory = MemoryOf(handle);
    if (!memory)
        return nullptr;
    ++memory->locks;
    return memory->bytes.data();
}

BOOL GlobalUnlock(HGLOBAL handle)
{
    Inside inside;
    Memory* memory = MemoryOf(handle);
    if (!memory || memory->locks == 0)
        return FALSE;
    SetLastError(NO_ERROR);
    return --memory->locks > 0;
}

SIZE_T GlobalSize(HGLOBAL handle)
{
    Inside inside;
    const Memory* memory = MemoryOf(handle);
    return memory ? memory->bytes.size() : 0;
}

HGLOBAL GlobalFree(HGLOBAL handle)
{
    Inside inside;
    const Memory* memory = MemoryOf(handle);
    if (!memory || memory->owned)
        return handle;
    Free(handle);
    return nullptr;
}

BOOL OpenClipboard(HWND window)
{
    Inside inside;
    ClipboardState& state = State();
    if (state.open && state.opener != window)
        return FALSE;
    state.open = true;
    state.opener = window;
    return TRUE;
}

BOOL CloseClipboard()
{
    ClipboardState& state = State();
    if (!state.open)
    {
        SetLastError(ERROR_CLIPBOARD_NOT_OPEN);
        return FALSE;
    }
    state.open = false;
    state.opener = nullptr;
    return TRUE;
}

BOOL EmptyClipboard()
{
    Inside inside;
    ClipboardState& state = State();
    if (!state.open)
    {
        SetLastError(ERROR_CLIPBOARD_NOT_OPEN);
        return FALSE;
    }
    Empty();
    return TRUE;
}

HANDLE SetClipboardData(UINT format, HANDLE data)
{
    Inside inside;
    ClipboardState& state = State();
    Memory* memory = state.open ? MemoryOf(data) : nullptr;
    if (!memory)
        return nullptr;
    if (const auto it = state.contents.find(format); it != state.contents.end())
        Free(it->second);
    memory->owned = true;
    state.contents[format] = data;
    return data;
}

HANDLE GetClipboardData(UINT format)
{
    Inside inside;
    const ClipboardState& state = State();
    const auto it = state.contents.find(format);
    return state.open && it != state.contents.end() ? it->second : nullptr;
}

BOOL IsClipboardFormatAvailable(UINT format) { return State().contents.count(format) != 0; }
