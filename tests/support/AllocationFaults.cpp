#include "tests/support/AllocationFaults.h"

#include "afx/DialogRobot.h"
#include "tests/support/DesktopInside.h"

#include <cstdlib>
#include <new>

namespace
{
// Plain data: it is asked for every allocation of the program, the first ones before any constructor has run.
struct SFaults
{
    bool on;
    int firstFailure;
    int failureCount;
    int requests;
    int failures;
};
SFaults g_faults;

bool NextFails()
{
    if (!g_faults.on || CDialogRobot::IsInside() || IsInsideDesktop())
        return false;
    const int request = g_faults.requests++;
    const bool fails = request >= g_faults.firstFailure && request - g_faults.firstFailure < g_faults.failureCount;
    g_faults.failures += fails ? 1 : 0;
    return fails;
}

BOOL PASCAL AllocationHook(size_t, BOOL, LONG) { return NextFails() ? FALSE : TRUE; }
} // namespace

CAllocationFaults::CAllocationFaults(int successes, int failures)
{
    g_faults = {true, successes, failures, 0, 0};
    AfxSetAllocHook(&AllocationHook);
}

CAllocationFaults::~CAllocationFaults()
{
    AfxSetAllocHook(nullptr);
    g_faults.on = false;
}

void CAllocationFaults::Pause() { g_faults.on = false; }
void CAllocationFaults::Resume() { g_faults.on = true; }
int CAllocationFaults::Requests() const { return g_faults.requests; }
int CAllocationFaults::Failures() const { return g_faults.failures; }

// The allocation functions of the whole test program.

void* operator new(std::size_t size)
{
    void* memory = NextFails() ? nullptr : std::malloc(size == 0 ? 1 : size);
    if (memory == nullptr)
        throw std::bad_alloc();
    return memory;
}

void operator delete(void* memory) noexcept { std::free(memory); }
void operator delete(void* memory, std::size_t) noexcept { std::free(memory); }
