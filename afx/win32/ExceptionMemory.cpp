// The memory of exceptions, in place of the C++ run-time library's.
//
// An exception that tells that memory has run out must not need any. The run-time library keeps some in reserve, but
// guards it by a lock that is made when it is first needed, out of memory: without memory it calls itself until the
// stack is full. What it needs once and for all for the first exception of a thread it asks for just then, and ends the
// program when it gets nothing; so an exception is thrown while there is still everything.
#include <atomic>
#include <cstddef>
#include <cstdlib>
#include <cstring>
#include <exception>

namespace
{

// In front of an exception stands what the run-time library knows about it.
constexpr std::size_t kHeader = 256;

struct alignas(std::max_align_t) SBlock
{
    std::atomic_flag isUsed; // stands before the block of memory itself
    alignas(std::max_align_t) char memory[kHeader + 128];
};
SBlock g_reserve[16];

void* TakeReserve(std::size_t size)
{
    for (SBlock& block : g_reserve)
        if (size <= sizeof block.memory && !block.isUsed.test_and_set())
            return block.memory;
    std::terminate();
}

void* Take(std::size_t size)
{
    void* memory = std::malloc(size);
    if (memory == nullptr)
        memory = TakeReserve(size);
    return std::memset(memory, 0, size);
}

void GiveBack(void* memory)
{
    for (SBlock& block : g_reserve)
    {
        if (memory == block.memory)
        {
            block.isUsed.clear();
            return;
        }
    }
    std::free(memory);
}

const bool g_isReady = [] {
    try
    {
        throw 0;
    }
    catch (int)
    {
        return true;
    }
}();

} // namespace

extern "C"
{
    void* __cxa_allocate_exception(std::size_t size) noexcept
    {
        return static_cast<char*>(Take(kHeader + size)) + kHeader;
    }
    void __cxa_free_exception(void* exception) noexcept { GiveBack(static_cast<char*>(exception) - kHeader); }
    // Of an exception that std::rethrow_exception throws again: a header that refers to the first one.
    void* __cxa_allocate_dependent_exception() noexcept { return Take(kHeader); }
    void __cxa_free_dependent_exception(void* exception) noexcept { GiveBack(exception); }
}
