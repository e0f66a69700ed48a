#pragma once

#include <cstdint>
#include <deque>
#include <vector>

namespace offscreen
{
// Gives objects handles that look like the system's: small numbers, never a pointer. A handle carries the generation of
// its slot and slots are used again in turn, so the handle of a dead object finds nothing, and no object that is born
// soon after takes its place.
template <class Object>
class HandleTable
{
public:
    explicit HandleTable(std::uintptr_t tag = 0) : m_tag(tag) {}

    std::uintptr_t Add(Object* object)
    {
        std::size_t index = 0;
        if (m_free.size() > kRestingSlots)
        {
            index = m_free.front();
            m_free.pop_front();
        }
        else
        {
            index = m_slots.size();
            m_slots.emplace_back();
        }
        if (index > 0xFFFF - kFirst)
            return 0;
        Slot& slot = m_slots[index];
        slot.object = object;
        ++m_count;
        return HandleOf(index, slot.generation);
    }

    Object* Find(std::uintptr_t handle) const
    {
        const std::size_t index = (handle & 0xFFFF) - kFirst;
        if (index >= m_slots.size())
            return nullptr;
        const Slot& slot = m_slots[index];
        return slot.object && HandleOf(index, slot.generation) == handle ? slot.object : nullptr;
    }

    void Remove(std::uintptr_t handle)
    {
        if (!Find(handle))
            return;
        const std::size_t index = (handle & 0xFFFF) - kFirst;
        Slot& slot = m_slots[index];
        slot.object = nullptr;
        slot.generation = slot.generation % kGenerations + 1;
        m_free.push_back(index);
        --m_count;
    }

    int Count() const { return m_count; }

    template <class Visitor>
    void ForEach(Visitor visit) const
    {
        for (const Slot& slot : m_slots)
            if (slot.object)
                visit(*slot.object);
    }

private:
    static constexpr std::size_t kFirst = 0x10;
    static constexpr std::size_t kRestingSlots = 64;
    static constexpr unsigned kGenerations = 0x3FF;

    struct Slot
    {
        Object* object = nullptr;
        unsigned generation = 1;
    };

    std::uintptr_t HandleOf(std::size_t index, unsigned generation) const
    {
        return m_tag << 26 | static_cast<std::uintptr_t>(generation) << 16 | (index + kFirst);
    }

    std::uintptr_t m_tag;
    std::vector<Slot> m_slots;
    std::deque<std::size_t> m_free;
    int m_count = 0;
};
} // namespace offscreen
