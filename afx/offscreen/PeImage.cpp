#include "afx/offscreen/PeImage.h"

#include <cstdlib>
#include <cstring>

namespace offscreen
{
namespace
{
constexpr WORD kDosSignature = 0x5A4D;     // "MZ"
constexpr DWORD kPeSignature = 0x00004550; // "PE"
constexpr WORD kMachineX86 = 0x014C;
constexpr WORD kOptionalHeader32 = 0x010B;
constexpr std::size_t kFileHeader = 4;         // Behind the signature
constexpr std::size_t kOptionalHeader = 24;    // Behind the signature
constexpr std::size_t kDirectories = 96;       // In the optional header
constexpr std::size_t kResourceDirectory = 16; // In the directories
constexpr std::size_t kSectionSize = 40;
constexpr DWORD kSubdirectory = 0x80000000u;
} // namespace

template <class T>
T PeImage::Read(std::size_t offset) const
{
    T value{};
    if (Has(offset, sizeof value))
        std::memcpy(&value, m_data + offset, sizeof value);
    return value;
}

PeImage::PeImage(const BYTE* data, std::size_t size) : m_data(data), m_size(size)
{
    if (Read<WORD>(0) != kDosSignature)
        return;
    const std::size_t header = Read<DWORD>(0x3C);
    if (!Has(header, kOptionalHeader + kDirectories) || Read<DWORD>(header) != kPeSignature ||
        Read<WORD>(header + kFileHeader) != kMachineX86 || Read<WORD>(header + kOptionalHeader) != kOptionalHeader32)
        return;
    m_valid = true;
    m_sectionCount = Read<WORD>(header + 6);
    m_sections = header + kOptionalHeader + Read<WORD>(header + 20);
    const DWORD directoryCount = Read<DWORD>(header + kOptionalHeader + kDirectories - 4);
    if (directoryCount <= 2)
        return;
    const DWORD address = Read<DWORD>(header + kOptionalHeader + kDirectories + kResourceDirectory);
    if (address)
        m_resources = OffsetOf(address, 16);
}

// Where `size` bytes at an address of the loaded image lie in the file.
std::size_t PeImage::OffsetOf(DWORD address, std::size_t size) const
{
    for (WORD i = 0; i < m_sectionCount; ++i)
    {
        const std::size_t section = m_sections + i * kSectionSize;
        if (!Has(section, kSectionSize))
            break;
        const DWORD start = Read<DWORD>(section + 12);
        const DWORD rawSize = Read<DWORD>(section + 16);
        const DWORD rawOffset = Read<DWORD>(section + 20);
        if (address < start || address - start > rawSize || size > rawSize - (address - start))
            continue;
        const std::size_t offset = static_cast<std::size_t>(rawOffset) + (address - start);
        return Has(offset, size) ? offset : kNowhere;
    }
    return kNowhere;
}

bool PeImage::NameMatches(DWORD nameField, LPCWSTR name) const
{
    if (IS_INTRESOURCE(name))
        return nameField == LOWORD(name);
    if (name[0] == '#')
        return nameField == static_cast<DWORD>(std::strtoul(ToAnsi(name + 1).c_str(), nullptr, 10));
    if (!(nameField & kSubdirectory))
        return false;
    const std::size_t offset = m_resources + (nameField & ~kSubdirectory);
    const std::size_t length = Read<WORD>(offset);
    if (!Has(offset + 2, length * 2))
        return false;
    std::u16string text(length, u'\0');
    std::memcpy(text.data(), m_data + offset + 2, length * 2);
    return CompareTexts(text, name) == 0;
}

bool PeImage::FindChild(std::size_t directory, LPCWSTR name, std::size_t& child, bool& isDirectory) const
{
    if (!Has(directory, 16))
        return false;
    const std::size_t count = static_cast<std::size_t>(Read<WORD>(directory + 12)) + Read<WORD>(directory + 14);
    for (std::size_t i = 0; i < count; ++i)
    {
        const std::size_t entry = directory + 16 + i * 8;
        if (!Has(entry, 8))
            return false;
        if (name && !NameMatches(Read<DWORD>(entry), name))
            continue;
        const DWORD target = Read<DWORD>(entry + 4);
        isDirectory = (target & kSubdirectory) != 0;
        child = m_resources + (target & ~kSubdirectory);
        return Has(child, 16);
    }
    return false;
}

const BYTE* PeImage::FindEntry(LPCWSTR type, LPCWSTR name) const
{
    if (m_resources == kNowhere)
        return nullptr;
    std::size_t place = m_resources;
    bool isDirectory = true;
    // Type, name and language; the first language is as good as any.
    for (LPCWSTR wanted : {type, name, LPCWSTR{}})
        if (!isDirectory || !FindChild(place, wanted, place, isDirectory))
            return nullptr;
    return isDirectory ? nullptr : m_data + place;
}

std::vector<WORD> PeImage::LanguagesOf(LPCWSTR type, LPCWSTR name) const
{
    std::size_t place = m_resources;
    bool isDirectory = m_resources != kNowhere;
    for (LPCWSTR wanted : {type, name})
        if (!isDirectory || !FindChild(place, wanted, place, isDirectory))
            return {};
    std::vector<WORD> languages;
    const std::size_t count = isDirectory ? Read<WORD>(place + 12) + std::size_t{Read<WORD>(place + 14)} : 0;
    for (std::size_t i = 0; i < count && Has(place + 16 + i * 8, 8); ++i)
        languages.push_back(Read<WORD>(place + 16 + i * 8));
    return languages;
}

Bytes PeImage::DataOf(const BYTE* entry) const
{
    if (!m_data || entry < m_data || entry >= m_data + m_size)
        return {};
    const auto place = static_cast<std::size_t>(entry - m_data);
    if (!Has(place, 8))
        return {};
    const std::size_t size = Read<DWORD>(place + 4);
    const std::size_t offset = OffsetOf(Read<DWORD>(place), size);
    return offset == kNowhere ? Bytes{} : Bytes{m_data + offset, size};
}
} // namespace offscreen
