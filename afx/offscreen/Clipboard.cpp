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
    std::map<UINT, HANDLE> contents; // Without a handle: to be made of the other form of the text
    UINT synthesized = 0;            // The form of the text that is made of the other one
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
    State().synthesized = 0;
}

// The form that a text can be made of.
UINT OtherText(UINT format) { return format == CF_TEXT ? CF_UNICODETEXT : CF_TEXT; }

template <class Character>
std::basic_string_view<Character> TextIn(const std::vector<BYTE>& bytes)
{
    const std::basic_string_view<Character> all(reinterpret_cast<const Character*>(bytes.data()),
                                                bytes.size() / sizeof(Character));
    return all.substr(0, all.find(Character{}));
}

template <class Character>
std::vector<BYTE> BytesOf(const std::basic_string<Character>& text)
{
    const auto* first = reinterpret_cast<const BYTE*>(text.c_str());
    return {first, first + (text.size() + 1) * sizeof(Character)};
}

// Offers a text in the other form too, as the system does when the clipboard is closed.
void OfferOtherText()
{
    ClipboardState& state = State();
    for (const UINT format : {CF_TEXT, CF_UNICODETEXT})
        if (state.contents.contains(format) && state.contents.try_emplace(OtherText(format)).second)
            state.synthesized = OtherText(format);
}

HANDLE Synthesize(UINT format)
{
    ClipboardState& state = State();
    const Memory* source = state.movable.Find(state.contents[OtherText(format)]);
    if (!source)
        return nullptr;
    auto memory = std::make_unique<Memory>();
    memory->owned = true;
    memory->bytes = format == CF_TEXT ? BytesOf(ToAnsi(TextIn<char16_t>(source->bytes)))
                                      : BytesOf(ToWide(TextIn<char>(source->bytes)));
    const auto handle = state.movable.Add<HANDLE>(std::move(memory));
    state.contents[format] = handle;
    return handle;
}
} // namespace

void ResetClipboard()
{
    ClipboardState& state = State();
    state.movable.Clear();
    state.contents.clear();
    state.synthesized = 0;
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
    Inside inside;
    ClipboardState& state = State();
    if (!state.open)
    {
        SetLastError(ERROR_CLIPBOARD_NOT_OPEN);
        return FALSE;
    }
    OfferOtherText();
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
    // What was made of the old text does not fit the new one.
    for (const UINT old : {format, state.synthesized})
        if (const auto it = state.contents.find(old); it != state.contents.end())
        {
            Free(it->second);
            state.contents.erase(it);
        }
    state.synthesized = 0;
    memory->owned = true;
    state.contents[format] = data;
    return data;
}

HANDLE GetClipboardData(UINT format)
{
    Inside inside;
    ClipboardState& state = State();
    if (!state.open)
        return nullptr;
    const auto it = state.contents.find(format);
    if (it == state.contents.end())
        return nullptr;
    return it->second ? it->second : Synthesize(format);
}

BOOL IsClipboardFormatAvailable(UINT format) { return State().contents.contains(format); }
