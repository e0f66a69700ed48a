// The structures that pass the C interface: what callers of earlier and later versions mean by theirs.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <type_traits>

/// No version will have a larger one: what says so is not a size.
constexpr size_t kLargestStructure = 4096;

/// Whether a structure says a size that one of this or a later version can have.
template <typename TStructure>
[[nodiscard]] bool HasRoom(const TStructure* passed)
{
    const size_t size = passed->size;
    return size >= sizeof *passed && size <= kLargestStructure && size % alignof(TStructure) == 0;
}

/// Reads a structure that is passed. False when it is smaller than this version's, or says something that this version
/// does not know.
template <typename TStructure>
[[nodiscard]] bool ReadStructure(const TStructure* passed, TStructure& known)
{
    if (!HasRoom(passed))
        return false;
    const size_t size = passed->size;
    const auto* const rest = reinterpret_cast<const char*>(passed) + sizeof known;
    if (std::any_of(rest, rest + (size - sizeof known), [](char one) { return one != 0; }))
        return false;
    std::memcpy(&known, passed, sizeof known);
    known.size = sizeof known;
    return true;
}

/// Fills a structure that has room. What a later version's has beyond is left alone.
template <typename TStructure>
void WriteStructure(TStructure* returned, TStructure known)
{
    known.size = sizeof known;
    std::memcpy(returned, &known, sizeof known);
}

/// The structure at `index` of an array whose elements have the size that the first one says.
template <typename TStructure>
TStructure* ElementAt(TStructure* array, int index)
{
    using TByte = std::conditional_t<std::is_const_v<TStructure>, const char, char>;
    return reinterpret_cast<TStructure*>(reinterpret_cast<TByte*>(array) +
                                         static_cast<size_t>(array->size) * static_cast<size_t>(index));
}
