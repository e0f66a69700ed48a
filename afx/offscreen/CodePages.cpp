#include "afx/offscreen/CodePages.h"

#include "afx/offscreen/Internal.h"

#include <iconv.h>

namespace offscreen
{
namespace
{
constexpr char16_t kReplacement = 0xFFFD; // In texts of UTF-8

// A converter of the C library, used for one character at a time.
class Converter
{
public:
    Converter(const char* to, const char* from) : m_handle(iconv_open(to, from)) {}
    ~Converter()
    {
        if (IsOpen())
            iconv_close(m_handle);
    }
    Converter(const Converter&) = delete;
    Converter& operator=(const Converter&) = delete;

    bool IsOpen() const { return m_handle != reinterpret_cast<iconv_t>(-1); }

    // The number of bytes written, 0 when the input is not exactly one character.
    std::size_t Convert(const void* source, std::size_t size, void* target, std::size_t room) const
    {
        auto* input = static_cast<char*>(const_cast<void*>(source));
        auto* output = static_cast<char*>(target);
        const std::size_t before = room;
        iconv(m_handle, nullptr, nullptr, nullptr, nullptr);
        return iconv(m_handle, &input, &size, &output, &room) == 0 && size == 0 ? before - room : 0;
    }

private:
    iconv_t m_handle;
};

bool IsLeadOf(UINT codePage, unsigned char c)
{
    switch (codePage)
    {
    case 932:
        return (c >= 0x81 && c <= 0x9F) || (c >= 0xE0 && c <= 0xFC);
    case 936:
    case 949:
    case 950:
        return c >= 0x81 && c <= 0xFE;
    default:
        return false;
    }
}

char16_t OfUndefinedByte(UINT codePage, unsigned byte)
{
    if (codePage == 936 && byte == 0x80)
        return 0x20AC; // The euro sign, which the C library leaves out
    return static_cast<char16_t>(byte < 0xA0 ? byte : 0xF800 + byte);
}
} // namespace

const CodePage* CodePage::Find(UINT number)
{
    static std::vector<std::unique_ptr<CodePage>>& known = *new std::vector<std::unique_ptr<CodePage>>;
    for (const auto& codePage : known)
        if (codePage->m_number == number)
            return codePage.get();
    for (const UINT offered : {1252u, 874u, 932u, 936u, 949u, 950u})
        if (offered == number)
            if (std::unique_ptr<CodePage> made = Make(number))
                return known.emplace_back(std::move(made)).get();
    return nullptr;
}

std::unique_ptr<CodePage> CodePage::Make(UINT number)
{
    std::unique_ptr<CodePage> made(new CodePage(number));
    const std::string name = "CP" + std::to_string(number);
    if (!made->ReadCharacters(name.c_str()) || !made->ReadBytes(name.c_str()))
        return NotModelled("a code page that the C library does not have", std::unique_ptr<CodePage>{});
    return made;
}

bool CodePage::ReadCharacters(const char* name)
{
    const Converter converter("UTF-16LE", name);
    if (!converter.IsOpen())
        return false;
    if (IsLeadOf(m_number, 0x81))
        m_pairs.resize(0x10000 - kFirstPair);
    for (unsigned first = 0; first < 256; ++first)
    {
        unsigned char bytes[2] = {static_cast<unsigned char>(first)};
        if (!IsLeadOf(m_number, bytes[0]))
        {
            if (converter.Convert(bytes, 1, &m_single[first], sizeof(char16_t)) != sizeof(char16_t))
                m_single[first] = OfUndefinedByte(m_number, first);
            continue;
        }
        for (unsigned second = 0x40; second < 0xFF; ++second)
        {
            bytes[1] = static_cast<unsigned char>(second);
            char16_t c = 0;
            if (converter.Convert(bytes, 2, &c, sizeof c) == sizeof c)
                m_pairs[(first << 8 | second) - kFirstPair] = c;
        }
    }
    return true;
}

bool CodePage::ReadBytes(const char* name)
{
    const Converter converter(name, "UTF-16LE");
    if (!converter.IsOpen())
        return false;
    m_bytes.resize(0x10000);
    // Of several byte pairs for a character the C library knows the right one.
    for (unsigned c = 0x80; c < 0x10000 && HasDoubleBytes(); ++c)
    {
        const auto character = static_cast<char16_t>(c);
        unsigned char bytes[2] = {};
        if (converter.Convert(&character, sizeof character, bytes, sizeof bytes) != 2)
            continue;
        const auto pair = static_cast<WORD>(bytes[0] << 8 | bytes[1]);
        if (pair >= kFirstPair && PairAt(pair) == character)
            m_bytes[c] = pair;
    }
    for (unsigned pair = 0; pair < m_pairs.size(); ++pair)
        if (const char16_t c = m_pairs[pair]; c && !m_bytes[c])
            m_bytes[c] = static_cast<WORD>(pair + kFirstPair);
    for (unsigned byte = 1; byte < 256; ++byte)
        if (const char16_t c = m_single[byte])
            m_bytes[c] = static_cast<WORD>(byte);
    return true;
}

bool CodePage::IsLead(unsigned char c) const { return IsLeadOf(m_number, c); }

std::size_t CodePage::LengthAt(std::string_view text, std::size_t position) const
{
    constexpr unsigned char kFirstTrailByte = 0x30; // Of all code pages: a line break never ends a character.
    const bool hasTrail =
        position + 1 < text.size() && static_cast<unsigned char>(text[position + 1]) >= kFirstTrailByte;
    return hasTrail && IsLead(static_cast<unsigned char>(text[position])) ? 2 : 1;
}

std::u16string CodePage::ToWide(std::string_view text, bool* invalid) const
{
    if (IsAscii(text))
        return {text.begin(), text.end()};
    std::u16string wide;
    wide.reserve(text.size());
    for (std::size_t i = 0; i < text.size();)
    {
        const auto first = static_cast<unsigned char>(text[i]);
        const std::size_t length = LengthAt(text, i);
        char16_t c = 0;
        if (length == 2)
            c = PairAt(static_cast<WORD>(first << 8 | static_cast<unsigned char>(text[i + 1])));
        else if (!IsLead(first))
            c = m_single[first];
        const bool isNone = c == 0 && (length == 2 || first != 0);
        if (invalid && (isNone || (c >= 0xE000 && c <= 0xF8FF)))
            *invalid = true;
        wide += !isNone ? c : m_number == 932 ? u'\u30FB' : u'?';
        i += length;
    }
    return wide;
}

std::string CodePage::ToBytes(std::u16string_view text, std::string_view replacement, bool* replaced) const
{
    if (IsAscii(text))
        return {text.begin(), text.end()};
    std::string bytes;
    bytes.reserve(text.size() * (HasDoubleBytes() ? 2 : 1));
    for (const char16_t c : text)
    {
        const WORD own = m_bytes[c];
        if (!own && c)
        {
            bytes += replacement;
            if (replaced)
                *replaced = true;
            continue;
        }
        if (own > 0xFF)
            bytes += static_cast<char>(own >> 8);
        bytes += static_cast<char>(own & 0xFF);
    }
    return bytes;
}

// --------------------------------------------------------------------------------------------------------------- UTF-8

namespace
{
struct Decoded
{
    char32_t c;
    std::size_t length;
    bool valid;
};

Decoded DecodeAt(std::string_view text, std::size_t position)
{
    const auto at = [&](std::size_t i) { return static_cast<unsigned char>(text[position + i]); };
    const unsigned char first = at(0);
    if (first < 0x80)
        return {first, 1, true};
    const std::size_t length = first >= 0xF0 ? 4 : first >= 0xE0 ? 3 : 2;
    if (first < 0xC2 || first > 0xF4)
        return {kReplacement, 1, false};
    char32_t c = first & (0x7Fu >> length);
    for (std::size_t i = 1; i < length; ++i)
    {
        if (position + i >= text.size() || (at(i) & 0xC0) != 0x80)
            return {kReplacement, i, false};
        c = c << 6 | (at(i) & 0x3Fu);
    }
    constexpr char32_t kSmallest[] = {0, 0, 0x80, 0x800, 0x10000};
    const bool valid = c >= kSmallest[length] && c <= 0x10FFFF && !(c >= 0xD800 && c <= 0xDFFF);
    return valid ? Decoded{c, length, true} : Decoded{kReplacement, length, false};
}

bool IsHighSurrogate(char16_t c) { return c >= 0xD800 && c <= 0xDBFF; }
bool IsLowSurrogate(char16_t c) { return c >= 0xDC00 && c <= 0xDFFF; }

void AppendUtf8(std::string& bytes, char32_t c)
{
    if (c < 0x80)
    {
        bytes += static_cast<char>(c);
        return;
    }
    const int more = c < 0x800 ? 1 : c < 0x10000 ? 2 : 3;
    constexpr unsigned kLead[] = {0, 0xC0, 0xE0, 0xF0};
    bytes += static_cast<char>(kLead[more] | c >> (6 * more));
    for (int i = more - 1; i >= 0; --i)
        bytes += static_cast<char>(0x80 | (c >> (6 * i) & 0x3F));
}
} // namespace

std::u16string WideOfUtf8(std::string_view text, bool* invalid)
{
    std::u16string wide;
    wide.reserve(text.size());
    for (std::size_t i = 0; i < text.size();)
    {
        const Decoded decoded = DecodeAt(text, i);
        i += decoded.length;
        if (!decoded.valid && invalid)
            *invalid = true;
        if (decoded.c < 0x10000)
        {
            wide += static_cast<char16_t>(decoded.c);
            continue;
        }
        wide += static_cast<char16_t>(0xD800 + ((decoded.c - 0x10000) >> 10));
        wide += static_cast<char16_t>(0xDC00 + ((decoded.c - 0x10000) & 0x3FF));
    }
    return wide;
}

std::string Utf8Of(std::u16string_view text, bool* invalid)
{
    std::string bytes;
    bytes.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i)
    {
        const char16_t c = text[i];
        if (IsHighSurrogate(c) && i + 1 < text.size() && IsLowSurrogate(text[i + 1]))
        {
            const char32_t low = text[++i];
            AppendUtf8(bytes, 0x10000 + ((static_cast<char32_t>(c) - 0xD800) << 10) + (low - 0xDC00));
            continue;
        }
        const bool lone = IsHighSurrogate(c) || IsLowSurrogate(c);
        if (lone && invalid)
            *invalid = true;
        AppendUtf8(bytes, lone ? kReplacement : c);
    }
    return bytes;
}
} // namespace offscreen
