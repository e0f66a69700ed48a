// The functions of the system that a library calls, replaced for a test.
#pragma once

#include <windows.h>

/// While it lives, a loaded module calls another function in place of one that it imports by name.
class CImportedFunction
{
public:
    CImportedFunction(LPCSTR module, LPCSTR name, void* replacement);
    ~CImportedFunction();
    CImportedFunction(const CImportedFunction&) = delete;
    CImportedFunction& operator=(const CImportedFunction&) = delete;

    /// False when the module imports no such function.
    bool IsReplaced() const { return m_slot != nullptr; }

private:
    void** m_slot; // where the module looks for the address
    void* m_original = nullptr;
};
