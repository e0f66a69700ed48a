#include "tests/resources/WideResources.h"

#include "afx/CodePage.h"

#include <cstdint>
#include <cstring>

namespace
{

constexpr WORD kDialogs = 5;
constexpr WORD kStrings = 6;
constexpr unsigned kStringsInBlock = 16;
constexpr unsigned kLastId = 0xFFFF;

LPCSTR NarrowResource(WORD id) { return reinterpret_cast<LPCSTR>(static_cast<UINT_PTR>(id)); }
LPCWSTR WideResource(unsigned id) { return reinterpret_cast<LPCWSTR>(static_cast<UINT_PTR>(id)); }

LPCWSTR Wide(const std::u16string& text) { return reinterpret_cast<LPCWSTR>(text.c_str()); }
std::u16string Text(LPCWSTR text, int length)
{
    return std::u16string(reinterpret_cast<const char16_t*>(text), static_cast<size_t>(length));
}

/// Reads an extended dialog template from its beginning to its end.
class CTemplateReader
{
public:
    explicit CTemplateReader(const void* data) : m_at(static_cast<const std::uint8_t*>(data)), m_start(m_at) {}

    template <typename T>
    T Take()
    {
        T value;
        std::memcpy(&value, m_at, sizeof value);
        m_at += sizeof value;
        return value;
    }
    void Skip(size_t bytes) { m_at += bytes; }
    void Align() { m_at = m_start + ((m_at - m_start + 3) & ~3); }

    std::u16string TakeText()
    {
        std::u16string text;
        while (const auto character = Take<char16_t>())
            text += character;
        return text;
    }
    /// A text, or a number, which is given as "#128".
    std::u16string TakeName()
    {
        constexpr char16_t kNumberFollows = 0xFFFF;
        const auto* const before = m_at;
        if (Take<char16_t>() == kNumberFollows)
        {
            const std::string number = "#" + std::to_string(Take<WORD>());
            return std::u16string(number.begin(), number.end());
        }
        m_at = before;
        return TakeText();
    }

private:
    const std::uint8_t* m_at;
    const std::uint8_t* m_start;
};

SWideControl TakeControl(CTemplateReader& reader)
{
    SWideControl control;
    reader.Align();
    reader.Skip(sizeof(DWORD)); // the help id
    control.extendedStyle = reader.Take<DWORD>();
    control.style = reader.Take<DWORD>();
    reader.Skip(4 * sizeof(short)); // the place
    control.id = reader.Take<DWORD>() & 0xFFFF;
    control.className = reader.TakeName();
    control.text = reader.TakeName();
    reader.Skip(reader.Take<WORD>()); // data of its own
    return control;
}

BOOL CALLBACK AddLanguage(HMODULE, LPCWSTR, LPCWSTR, WORD language, LONG_PTR languages)
{
    reinterpret_cast<std::vector<WORD>*>(languages)->push_back(language);
    return TRUE;
}

std::vector<WORD> LanguagesOf(WORD type, unsigned name)
{
    std::vector<WORD> languages;
    ::EnumResourceLanguagesW(AfxGetResourceHandle(), WideResource(type), WideResource(name), AddLanguage,
                             reinterpret_cast<LONG_PTR>(&languages));
    return languages;
}

} // namespace

std::map<unsigned, std::u16string> WideTexts()
{
    std::map<unsigned, std::u16string> texts;
    for (unsigned id = 1; id <= kLastId; ++id)
    {
        int length = 0;
        const LPCWSTR text = AfxFindString(id, length);
        if (length > 0)
            texts.emplace(id, Text(text, length));
    }
    return texts;
}

std::optional<SWideTemplate> WideTemplate(unsigned id)
{
    const HINSTANCE module = AfxGetResourceHandle();
    const HRSRC resource = ::FindResourceA(module, NarrowResource(static_cast<WORD>(id)), NarrowResource(kDialogs));
    if (resource == nullptr)
        return std::nullopt;
    CTemplateReader reader(::LockResource(::LoadResource(module, resource)));
    reader.Skip(2 * sizeof(WORD) + sizeof(DWORD)); // version, signature, help id
    SWideTemplate dialog;
    dialog.extendedStyle = reader.Take<DWORD>();
    dialog.style = reader.Take<DWORD>();
    const int count = reader.Take<WORD>();
    reader.Skip(4 * sizeof(short)); // the place
    reader.TakeName();              // the menu
    reader.TakeName();              // the class
    dialog.caption = reader.TakeText();
    reader.Skip(2 * sizeof(WORD) + 2 * sizeof(BYTE)); // size and look of the font
    dialog.face = reader.TakeText();
    for (int i = 0; i < count; ++i)
        dialog.controls.push_back(TakeControl(reader));
    return dialog;
}

std::vector<unsigned> TemplateIds()
{
    std::vector<unsigned> ids;
    for (unsigned id = 1; id <= kLastId; ++id)
        if (!LanguagesOfTemplate(id).empty())
            ids.push_back(id);
    return ids;
}

std::vector<SPlacedText> PlacedTexts()
{
    std::vector<SPlacedText> all;
    for (const auto& [id, text] : WideTexts())
        all.push_back({"text " + std::to_string(id), text});
    for (const unsigned id : TemplateIds())
    {
        const auto dialog = WideTemplate(id);
        const std::string place = "dialog " + std::to_string(id);
        all.push_back({place, dialog->caption});
        for (size_t i = 0; i < dialog->controls.size(); ++i)
            all.push_back({place + ", control " + std::to_string(i), dialog->controls[i].text});
    }
    return all;
}

std::vector<WORD> LanguagesOfString(unsigned id) { return LanguagesOf(kStrings, id / kStringsInBlock + 1); }

std::vector<WORD> LanguagesOfTemplate(unsigned id) { return LanguagesOf(kDialogs, id); }

std::string Utf8(const std::u16string& text) { return InPage(text, CP_UTF8); }

std::string InPage(const std::u16string& text, UINT page)
{
    return static_cast<LPCSTR>(AfxNarrow(Wide(text), static_cast<int>(text.size()), page));
}

std::u16string FromPage(const std::string& text, UINT page)
{
    const CWideText wide(text.c_str(), static_cast<int>(text.size()), page);
    return Text(wide, wide.GetLength());
}
