#include "capi/Handles.h"

#include "afx/ThreadState.h"

#include <atomic>
#include <mutex>
#include <vector>

namespace
{

/// A handle is the number of a slot, from 1, below the count of the handles that the slot has had before. Slots rest
/// before they are used again, so that a destroyed handle is not soon somebody else's.
struct SSlot
{
    SPexloObject* object = nullptr; ///< null: the slot is free
    UINT_PTR owner = 0;
    unsigned generation = 1;
    int uses = 0;
    bool isDestroyed = false; ///< and still in use
};

constexpr size_t kMostSlots = 0xFFFF;
constexpr size_t kRestingSlots = 64;
constexpr unsigned kGenerations = 0x7FFF;
constexpr int kSlotBits = 16;

struct SHandles
{
    std::mutex guard;
    std::vector<SSlot> slots;
    std::vector<size_t> free; ///< in the order in which they became free
};

// Never destroyed: a host may use handles until its very end.
SHandles& Handles()
{
    alignas(SHandles) static char storage[sizeof(SHandles)];
    static auto* const handles = new (storage) SHandles;
    return *handles;
}

const CThreadPointer<void> ownNumber;
std::atomic<UINT_PTR> lastNumber = 0;

/// The number of the calling thread. That of the system may be given to a later thread when this one has ended.
UINT_PTR CurrentThread()
{
    if (ownNumber.Get() == nullptr)
        ownNumber.Exchange(reinterpret_cast<void*>(++lastNumber));
    return reinterpret_cast<UINT_PTR>(ownNumber.Get());
}

PexloHandle HandleOf(const SHandles& handles, size_t index)
{
    const auto number = static_cast<UINT_PTR>(handles.slots[index].generation) << kSlotBits | (index + 1);
    return reinterpret_cast<PexloHandle>(number);
}

/// Null for a handle that is not alive.
SSlot* Find(SHandles& handles, PexloHandle handle)
{
    const auto number = reinterpret_cast<UINT_PTR>(handle);
    const size_t index = (number & kMostSlots) - 1;
    if (index >= handles.slots.size() || HandleOf(handles, index) != handle)
        return nullptr;
    SSlot& slot = handles.slots[index];
    return slot.object != nullptr && !slot.isDestroyed ? &slot : nullptr;
}

/// To be deleted outside of the guard: it may end dialogs.
void Release(SHandles& handles, size_t index)
{
    SSlot& slot = handles.slots[index];
    slot.object = nullptr;
    slot.isDestroyed = false;
    slot.generation = slot.generation % kGenerations + 1;
    handles.free.push_back(index); // there is room: Create has made it
}

} // namespace

PexloHandle CHandleUse::Create()
{
    PexloHandle handle = nullptr;
    (void)WithMemory([&] {
        const CDesktopLock desktop;
        AfxThreadState();
        auto object = std::make_unique<SPexloObject>();
        object->wizard.reset(new CFunWizard);
        if (!object->wizard)
            return;
        SHandles& handles = Handles();
        const std::lock_guard lock(handles.guard);
        size_t index = handles.slots.size();
        if (handles.free.size() > kRestingSlots || (index == kMostSlots && !handles.free.empty()))
        {
            index = handles.free.front();
            handles.free.erase(handles.free.begin());
        }
        else if (index == kMostSlots)
            return;
        else
        {
            handles.free.reserve(index + 1);
            handles.slots.emplace_back();
        }
        SSlot& slot = handles.slots[index];
        slot.object = object.release();
        slot.owner = CurrentThread();
        handle = HandleOf(handles, index);
    });
    return handle;
}

int CHandleUse::Destroy(PexloHandle handle)
{
    const CDesktopLock desktop;
    const CHandleUse use(handle);
    if (use.m_error != 0)
        return use.m_error;
    {
        SHandles& handles = Handles();
        const std::lock_guard lock(handles.guard);
        Find(handles, handle)->isDestroyed = true;
    }
    return WithMemory([&] { use.m_object->wizard.reset(); }) ? 1 : PEXLO_E_MEMORY;
}

int CHandleUse::TakeOver(PexloHandle handle)
{
    if (!WithMemory([] { AfxThreadState(); }))
        return PEXLO_E_MEMORY;
    SHandles& handles = Handles();
    const std::lock_guard lock(handles.guard);
    SSlot* const slot = Find(handles, handle);
    if (slot == nullptr)
        return PEXLO_E_HANDLE;
    if (slot->uses > 0 && slot->owner != CurrentThread())
        return PEXLO_E_BUSY;
    slot->owner = CurrentThread();
    return 1;
}

CHandleUse::CHandleUse(PexloHandle handle) : m_handle(handle)
{
    SHandles& handles = Handles();
    const std::lock_guard lock(handles.guard);
    SSlot* const slot = Find(handles, handle);
    if (slot == nullptr)
        m_error = PEXLO_E_HANDLE;
    else if (slot->owner != CurrentThread())
        m_error = PEXLO_E_THREAD;
    else
    {
        ++slot->uses;
        m_object = slot->object;
    }
}

CHandleUse::~CHandleUse()
{
    if (m_object == nullptr)
        return;
    SHandles& handles = Handles();
    bool isLast = false;
    {
        const std::lock_guard lock(handles.guard);
        const size_t index = (reinterpret_cast<UINT_PTR>(m_handle) & kMostSlots) - 1;
        SSlot& slot = handles.slots[index];
        isLast = --slot.uses == 0 && slot.isDestroyed;
        if (isLast)
            Release(handles, index);
    }
    if (isLast)
        delete m_object;
}
