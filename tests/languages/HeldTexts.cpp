#include "tests/languages/HeldTexts.h"

#include "tests/languages/Translations.h"

#include <gtest/gtest.h>

#include <cstring>

namespace
{

struct SListMessages
{
    UINT count;
    UINT length;
    UINT text;
};

std::string WindowText(HWND window)
{
    std::vector<WCHAR> text(static_cast<size_t>(::GetWindowTextLengthW(window)) + 1);
    return Utf8(text.data(), ::GetWindowTextW(window, text.data(), static_cast<int>(text.size())));
}

std::string ItemText(HWND list, const SListMessages& messages, WPARAM item)
{
    std::vector<WCHAR> text(static_cast<size_t>(::SendMessageW(list, messages.length, item, 0)) + 1);
    ::SendMessageW(list, messages.text, item, reinterpret_cast<LPARAM>(text.data()));
    return Utf8(text.data(), static_cast<int>(text.size()) - 1);
}

void AddTexts(HWND control, std::vector<SHeldText>& texts)
{
    char className[80] = "";
    ::GetClassNameA(control, className, sizeof className);
    const UINT id = static_cast<UINT>(::GetDlgCtrlID(control)) & 0xFFFF;
    const bool isCombo = std::strcmp(className, "ComboBox") == 0;
    if (!isCombo && std::strcmp(className, "ListBox") != 0)
    {
        texts.push_back({id, className, WindowText(control)});
        return;
    }
    const SListMessages messages = isCombo ? SListMessages{CB_GETCOUNT, CB_GETLBTEXTLEN, CB_GETLBTEXT}
                                           : SListMessages{LB_GETCOUNT, LB_GETTEXTLEN, LB_GETTEXT};
    const LRESULT count = ::SendMessageW(control, messages.count, 0, 0);
    for (LRESULT i = 0; i < count; ++i)
        texts.push_back({id, className, ItemText(control, messages, static_cast<WPARAM>(i))});
}

/// Reads an extended dialog template (DLGTEMPLATEEX) from its beginning to its end.
class CTemplateReader
{
public:
    explicit CTemplateReader(const void* data) : m_start(static_cast<const BYTE*>(data)), m_next(m_start) {}

    WORD Word()
    {
        WORD word;
        std::memcpy(&word, m_next, sizeof word);
        m_next += sizeof word;
        return word;
    }
    void Skip(size_t bytes) { m_next += bytes; }
    void Align() { m_next += (4 - (m_next - m_start) % 4) % 4; }
    /// Empty for an ordinal.
    std::string Name()
    {
        std::vector<WCHAR> name;
        WORD c = Word();
        if (c == 0xFFFF)
        {
            Word();
            return {};
        }
        for (; c != 0; c = Word())
            name.push_back(static_cast<WCHAR>(c));
        return Utf8(name.data(), static_cast<int>(name.size()));
    }

private:
    const BYTE* m_start;
    const BYTE* m_next;
};

} // namespace

std::vector<SHeldText> HeldTexts(HWND dialog)
{
    std::vector<SHeldText> texts = {{0, "dialog", WindowText(dialog)}};
    for (HWND child = ::GetWindow(dialog, GW_CHILD); child != nullptr; child = ::GetWindow(child, GW_HWNDNEXT))
        AddTexts(child, texts);
    return texts;
}

std::vector<std::string> TemplateTexts(HINSTANCE library, UINT id)
{
    constexpr size_t kRectangle = 4 * sizeof(WORD);
    const HRSRC resource = ::FindResourceA(library, MAKEINTRESOURCEA(id), MAKEINTRESOURCEA(5));
    if (resource == nullptr)
        return {};
    CTemplateReader reader(::LockResource(::LoadResource(library, resource)));
    EXPECT_EQ(reader.Word(), 1);
    EXPECT_EQ(reader.Word(), 0xFFFF) << "an extended template";
    reader.Skip(3 * sizeof(DWORD)); // help, extended style, style
    const int controls = reader.Word();
    reader.Skip(kRectangle);
    reader.Name(); // menu
    reader.Name(); // class
    std::vector<std::string> texts = {reader.Name()};
    reader.Skip(3 * sizeof(WORD)); // size, weight, slant and character set of the font
    reader.Name();
    for (int i = 0; i < controls; ++i)
    {
        reader.Align();
        reader.Skip(3 * sizeof(DWORD) + kRectangle + sizeof(DWORD));
        reader.Name(); // class
        texts.push_back(reader.Name());
        reader.Skip(reader.Word());
    }
    return texts;
}
