#pragma once

#include <cstdint>
#include <deque>
#include <memory>
#include <utility>
#include <vector>

namespace offscreen
{
// Owns objects and gives them handles that look like the system's: small numbers, never a pointer. A handle carries the
// generation of its slot and slots are used again in turn, so the handle of a dead object finds nothing, and no object
// that is born soon after takes its place.
template <class Object>
class HandleTable
{
public:
    // Tables with different tags never give the same handle.
    explicit HandleTable(std::uintptr_t tag = 0) : m_tag(tag) {}

    // 0 when there is no handle left; the object is gone then.
    template <class Handle>
    Handle Add(std::unique_ptr<Object> object)
    {
        std::size_t index = m_slots.size();
        if (m_free.size() > kRestingSlots)
        {
            index = m_free.front();
            m_free.pop_front();
        }
        else if (index > kLast)
            return Handle{};
        else
            m_slots.emplace_back();
        Slot& slot = m_slots[index];
        slot.object = std::move(object);
        ++m_count;
        return reinterpret_cast<Handle>(NumberOf(index));
    }

    Object* Find(const void* handle) const
    {
        const std::size_t index = IndexOf(handle);
        return index < m_slots.size() ? m_slots[index].object.get() : nullptr;
    }

    // Takes the object out; its handle is dead from then on.
    std::unique_ptr<Object> Remove(const void* handle)
    {
        const std::size_t index = IndexOf(handle);
        if (index >= m_slots.size() || !m_slots[index].object)
            return nullptr;
        Slot& slot = m_slots[index];
        slot.generation = slot.generation % kGenerations + 1;
        m_free.push_back(index);
        --m_count;
        return std::move(slot.object);
    }

    // Removes all objects that the condition holds for.
    template <class Condition>
    void RemoveIf(Condition condition)
    {
        for (std::size_t index = 0; index < m_slots.size(); ++index)
            if (m_slots[index].object && condition(*m_slots[index].object))
                Remove(reinterpret_cast<const void*>(NumberOf(index)));
    }

    void Clear()
    {
        RemoveIf([](const Object&) { return true; });
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
    static constexpr std::size_t kLast = 0xFFFF - kFirst;
    static constexpr std::size_t kRestingSlots = 64;
    static constexpr unsigned kGenerations = 0x3FF;

    struct Slot
    {
        std::unique_ptr<Object> object;
        unsigned generation = 1;
    };

    std::uintptr_t NumberOf(std::size_t index) const
    {
        return m_tag << 26 | static_cast<std::uintptr_t>(m_slots[index].generation) << 16 | (index + kFirst);
    }

    // Past the end for what is no handle of a slot's present generation.
    std::size_t IndexOf(const void* handle) const
    {
        const auto number = reinterpret_cast<std::uintptr_t>(handle);
        const std::size_t index = (number & 0xFFFF) - kFirst;
        return index < m_slots.size() && NumberOf(index) == number ? index : m_slots.size();
    }

    std::uintptr_t m_tag;
    std::vector<Slot> m_slots;
    std::deque<std::size_t> m_free;
    int m_count = 0;
};
} // namespace offscreen
