// Memory that runs out on demand, for the library's code and nothing else.
#pragma once

#include <limits>

/// While an object lives, the library's allocations fail as it says: those of objects, strings and containers with a
/// CMemoryException, those by operator new with std::bad_alloc. The desktop and the robot, which work in between,
/// always get their memory, and so does what the test itself does between Pause and Resume. Objects do not nest.
class CAllocationFaults
{
public:
    static constexpr int kNever = std::numeric_limits<int>::max();

    /// Lets `successes` allocations pass and the `failures` that follow fail, then lets everything pass again.
    explicit CAllocationFaults(int successes, int failures = 1);
    ~CAllocationFaults();
    CAllocationFaults(const CAllocationFaults&) = delete;
    CAllocationFaults& operator=(const CAllocationFaults&) = delete;

    void Pause();
    void Resume();

    /// The allocations that have been asked for so far, and how many of them failed.
    int Requests() const;
    int Failures() const;
};

/// Memory is short during a call, and plentiful before and after it.
class CShortOfMemory
{
public:
    explicit CShortOfMemory(CAllocationFaults& faults) : m_faults(faults) { m_faults.Resume(); }
    ~CShortOfMemory() { m_faults.Pause(); }
    CShortOfMemory(const CShortOfMemory&) = delete;
    CShortOfMemory& operator=(const CShortOfMemory&) = delete;

private:
    CAllocationFaults& m_faults;
};
