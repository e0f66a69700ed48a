#include "afx/offscreen/DialogTemplate.h"

#include <cstring>

namespace offscreen
{
namespace
{
// Reads a template's words.
class Reader
{
public:
    explicit Reader(const void* data) : m_start(static_cast<const BYTE*>(data)), m_position(m_start) {}

    WORD Word() { return Number<WORD>(); }
    DWORD Double() { return Number<DWORD>(); }
    short Short() { return static_cast<short>(Word()); }

    BYTE Byte() { return Number<BYTE>(); }

    void Align() { m_position = m_start + ((m_position - m_start + 3) & ~std::ptrdiff_t{3}); }
    void Skip(std::size_t bytes) { m_position += bytes; }
    const BYTE* Position() const { return m_position; }

    std::u16string Text()
    {
        std::u16string text;
        while (const WORD c = Word())
            text.push_back(static_cast<char16_t>(c));
        return text;
    }

    TemplateName Name()
    {
        TemplateName name;
        const BYTE* before = m_position;
        if (Word() == 0xFFFF)
        {
            name.ordinal = Word();
            return name;
        }
        m_position = before;
        name.text = Text();
        return name;
    }

private:
    template <class T>
    T Number()
    {
        T value{};
        std::memcpy(&value, m_position, sizeof(T));
        m_position += sizeof(T);
        return value;
    }

    const BYTE* m_start;
    const BYTE* m_position;
};

void ReadPlace(Reader& reader, TemplateWindow& window)
{
    window.x = reader.Short();
    window.y = reader.Short();
    window.width = reader.Short();
    window.height = reader.Short();
}

TemplateFont ReadFont(Reader& reader, bool extended)
{
    TemplateFont font;
    font.pointSize = reader.Short();
    if (extended)
    {
        font.weight = reader.Word();
        font.italic = reader.Byte() != 0;
        font.charSet = reader.Byte();
    }
    font.face = reader.Text();
    return font;
}

TemplateControl ReadControl(Reader& reader, bool extended)
{
    TemplateControl control;
    reader.Align();
    if (extended)
    {
        reader.Double(); // Help id
        control.exStyle = reader.Double();
        control.style = reader.Double();
    }
    else
    {
        control.style = reader.Double();
        control.exStyle = reader.Double();
    }
    ReadPlace(reader, control);
    control.id = extended ? reader.Double() : reader.Word();
    control.className = reader.Name();
    control.title = reader.Name();
    const WORD extra = reader.Word();
    if (extra == 0)
        return control;
    // In the plain form the size counts itself, in the extended one it does not.
    const std::size_t bytes = extended ? extra : extra - std::min<std::size_t>(extra, sizeof(WORD));
    control.data = extended ? reader.Position() : reader.Position() - sizeof(WORD);
    reader.Skip(bytes);
    return control;
}
} // namespace

Template ReadTemplate(const void* data)
{
    Reader reader(data);
    Template result;
    WORD version = reader.Word();
    const WORD signature = reader.Word();
    const bool extended = version == 1 && signature == 0xFFFF;
    WORD count = 0;
    if (extended)
    {
        reader.Double(); // Help id
        result.exStyle = reader.Double();
        result.style = reader.Double();
    }
    else
    {
        result.style = static_cast<DWORD>(signature) << 16 | version;
        result.exStyle = reader.Double();
    }
    count = reader.Word();
    ReadPlace(reader, result);
    result.menu = reader.Name();
    result.className = reader.Name();
    result.title.text = reader.Text();
    if (result.style & DS_SETFONT)
        result.font = ReadFont(reader, extended);
    result.controls.reserve(count);
    for (WORD i = 0; i < count; ++i)
        result.controls.push_back(ReadControl(reader, extended));
    return result;
}
} // namespace offscreen
