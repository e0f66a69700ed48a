#include "tests/library/ImportedFunction.h"

#include <cstring>

namespace
{

template <class T>
T* At(HMODULE module, DWORD offset)
{
    return reinterpret_cast<T*>(reinterpret_cast<BYTE*>(module) + offset);
}

/// The slot of a function in the table of addresses that the loader has filled in; null when there is none.
void** FindSlot(HMODULE module, LPCSTR name)
{
    const auto* headers = At<IMAGE_NT_HEADERS>(module, static_cast<DWORD>(At<IMAGE_DOS_HEADER>(module, 0)->e_lfanew));
    const IMAGE_DATA_DIRECTORY& imports = headers->OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_IMPORT];
    for (const auto* library = At<IMAGE_IMPORT_DESCRIPTOR>(module, imports.VirtualAddress); library->Name != 0;
         library++)
    {
        const auto* names = At<IMAGE_THUNK_DATA>(module, library->OriginalFirstThunk);
        auto* slots = At<void*>(module, library->FirstThunk);
        for (int i = 0; names[i].u1.AddressOfData != 0; i++)
        {
            if (IMAGE_SNAP_BY_ORDINAL(names[i].u1.Ordinal))
                continue;
            const auto* imported = At<IMAGE_IMPORT_BY_NAME>(module, static_cast<DWORD>(names[i].u1.AddressOfData));
            if (std::strcmp(reinterpret_cast<LPCSTR>(imported->Name), name) == 0)
                return &slots[i];
        }
    }
    return nullptr;
}

void* Exchange(void** slot, void* address)
{
    DWORD protection = 0;
    ::VirtualProtect(slot, sizeof *slot, PAGE_READWRITE, &protection);
    void* const before = *slot;
    *slot = address;
    ::VirtualProtect(slot, sizeof *slot, protection, &protection);
    return before;
}

} // namespace

CImportedFunction::CImportedFunction(LPCSTR module, LPCSTR name, void* replacement)
    : m_slot(FindSlot(::GetModuleHandleA(module), name))
{
    if (m_slot != nullptr)
        m_original = Exchange(m_slot, replacement);
}

CImportedFunction::~CImportedFunction()
{
    if (m_slot != nullptr)
        Exchange(m_slot, m_original);
}
