#pragma once

#include "afx/offscreen/Internal.h"

namespace offscreen
{
// Reads the resources of a 32-bit PE file as it lies on disk. Every offset in the file is checked before it is
// followed, so a damaged file has fewer resources, or none, and nothing worse.
class PeImage
{
public:
    PeImage() = default;
    PeImage(const BYTE* data, std::size_t size);

    // Whether it is a PE file for 32-bit x86 at all.
    bool IsValid() const { return m_valid; }

    // The data entry of a resource, null when there is none. Names are compared without case.
    const BYTE* FindEntry(LPCWSTR type, LPCWSTR name) const;
    // The languages that a resource is there in; nothing when there is no such type or name.
    std::vector<WORD> LanguagesOf(LPCWSTR type, LPCWSTR name) const;
    // The data that an entry from FindEntry stands for.
    Bytes DataOf(const BYTE* entry) const;

private:
    bool Has(std::size_t offset, std::size_t size) const { return offset <= m_size && size <= m_size - offset; }
    template <class T>
    T Read(std::size_t offset) const;
    std::size_t OffsetOf(DWORD address, std::size_t size) const;
    bool FindChild(std::size_t directory, LPCWSTR name, std::size_t& child, bool& isDirectory) const;
    bool NameMatches(DWORD nameField, LPCWSTR name) const;

    static constexpr std::size_t kNowhere = static_cast<std::size_t>(-1);

    const BYTE* m_data = nullptr;
    std::size_t m_size = 0;
    bool m_valid = false;
    std::size_t m_sections = 0; // File offset of the section table
    WORD m_sectionCount = 0;
    std::size_t m_resources = kNowhere; // File offset of the resource directory
};
} // namespace offscreen
