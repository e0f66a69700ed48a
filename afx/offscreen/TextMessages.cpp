#include "afx/offscreen/TextMessages.h"

#include <cstring>
#include <optional>

namespace offscreen
{
namespace
{
// The first byte of a double-byte character that has come to a window.
struct LeadByte
{
    HWND window = nullptr;
    char byte = 0;
};
LeadByte g_lead;

enum class Form
{
    Plain,
    Text,       // lParam is a text that the receiver reads.
    Buffer,     // lParam is a buffer for wParam characters.
    Line,       // lParam is a buffer whose first word is its size.
    Item,       // lParam is a buffer that is large enough.
    TextLength, // The result is the length of the window's text.
    ItemLength, // The result is the length of an item's text.
    Character,
    Creation
};

Form FormOf(UINT message)
{
    switch (message)
    {
    case WM_SETTEXT:
    case EM_REPLACESEL:
    case CB_ADDSTRING:
    case CB_INSERTSTRING:
    case CB_FINDSTRING:
    case CB_FINDSTRINGEXACT:
    case CB_SELECTSTRING:
    case CB_DIR:
    case LB_ADDSTRING:
    case LB_INSERTSTRING:
    case LB_FINDSTRING:
    case LB_FINDSTRINGEXACT:
    case LB_SELECTSTRING:
    case LB_DIR:
        return Form::Text;
    case WM_GETTEXT:
        return Form::Buffer;
    case EM_GETLINE:
        return Form::Line;
    case CB_GETLBTEXT:
    case LB_GETTEXT:
        return Form::Item;
    case WM_GETTEXTLENGTH:
        return Form::TextLength;
    case CB_GETLBTEXTLEN:
    case LB_GETTEXTLEN:
        return Form::ItemLength;
    case WM_CHAR:
    case WM_SYSCHAR:
        return Form::Character;
    case WM_NCCREATE:
    case WM_CREATE:
        return Form::Creation;
    default:
        return Form::Plain;
    }
}

// The message that asks for the length of what another one gets, or the other way round.
UINT Counterpart(UINT message)
{
    switch (message)
    {
    case WM_GETTEXTLENGTH:
        return WM_GETTEXT;
    case CB_GETLBTEXT:
        return CB_GETLBTEXTLEN;
    case CB_GETLBTEXTLEN:
        return CB_GETLBTEXT;
    case LB_GETTEXT:
        return LB_GETTEXTLEN;
    default: // LB_GETTEXTLEN
        return LB_GETTEXT;
    }
}

template <class Text>
LPARAM AsParam(const Text* text)
{
    return reinterpret_cast<LPARAM>(text);
}

// What differs between the two directions: the characters of sender and receiver, and how they become each other.
struct ToUnicode
{
    using Sent = char;
    using Received = char16_t;
    static std::u16string Forth(std::string_view text) { return ToWide(text); }
    static std::string Back(std::u16string_view text) { return ToAnsi(text); }
    static int Copy(std::u16string_view text, char* target, std::size_t size) { return CopyAnsi(text, target, size); }
    // Units that the receiver needs for as many of the sender.
    static constexpr std::size_t kFactor = 1;
};

struct ToBytes
{
    using Sent = char16_t;
    using Received = char;
    static std::string Forth(std::u16string_view text) { return ToAnsi(text); }
    static std::u16string Back(std::string_view text) { return ToWide(text); }
    static int Copy(std::string_view text, char16_t* target, std::size_t size)
    {
        return CopyText(ToWide(text), target, size);
    }
    static constexpr std::size_t kFactor = 2;
};

template <class Direction>
class Translation
{
    using Sent = typename Direction::Sent;
    using Received = typename Direction::Received;
    using View = std::basic_string_view<Received>;
    using Buffer = std::basic_string<Received>;

public:
    Translation(const Receiver& receiver, UINT message, WPARAM wParam, LPARAM lParam)
        : m_receiver(receiver), m_message(message), m_wParam(wParam), m_lParam(lParam)
    {
    }

    LRESULT Text() const
    {
        if (!m_lParam)
            return m_receiver(m_message, m_wParam, m_lParam);
        const auto text = Direction::Forth(reinterpret_cast<const Sent*>(m_lParam));
        return m_receiver(m_message, m_wParam, AsParam(text.c_str()));
    }

    LRESULT IntoBuffer() const
    {
        if (!m_wParam || !m_lParam)
            return m_receiver(m_message, m_wParam, m_lParam);
        Buffer buffer(m_wParam * Direction::kFactor, 0);
        const LRESULT length = m_receiver(m_message, buffer.size(), AsParam(buffer.data()));
        return Direction::Copy(Answer(buffer, length), reinterpret_cast<Sent*>(m_lParam), m_wParam);
    }

    LRESULT Line() const
    {
        auto* target = reinterpret_cast<Sent*>(m_lParam);
        WORD size = 0;
        std::memcpy(&size, target, sizeof size);
        const auto room = static_cast<WORD>(std::min<std::size_t>(size * Direction::kFactor, 0xFFFF));
        Buffer buffer(std::max<std::size_t>(room, sizeof room), 0);
        std::memcpy(buffer.data(), &room, sizeof room);
        const LRESULT length = m_receiver(m_message, m_wParam, AsParam(buffer.data()));
        const auto line = Direction::Back(Answer(buffer, length));
        const std::size_t copied = line.copy(target, size);
        if (copied < size) // The line is not terminated unless there is room.
            target[copied] = 0;
        return static_cast<LRESULT>(copied);
    }

    LRESULT Item() const
    {
        const LRESULT length = m_receiver(Counterpart(m_message), m_wParam, 0);
        if (length < 0)
            return length;
        Buffer buffer(static_cast<std::size_t>(length) + 1, 0);
        const LRESULT copied = m_receiver(m_message, m_wParam, AsParam(buffer.data()));
        if (copied < 0)
            return copied;
        const auto item = Direction::Back(Answer(buffer, copied));
        auto* target = reinterpret_cast<Sent*>(m_lParam);
        item.copy(target, item.size());
        target[item.size()] = 0;
        return static_cast<LRESULT>(item.size());
    }

    // Exact, not only an upper limit.
    LRESULT Length(bool ofItem) const
    {
        const LRESULT length = m_receiver(m_message, m_wParam, m_lParam);
        if (length <= 0 || !HasDoubleBytes())
            return length;
        Buffer buffer(static_cast<std::size_t>(length) + 1, 0);
        const WPARAM which = ofItem ? m_wParam : buffer.size();
        const LRESULT copied = m_receiver(Counterpart(m_message), which, AsParam(buffer.data()));
        return static_cast<LRESULT>(Direction::Back(Answer(buffer, copied)).size());
    }

private:
    static View Answer(const Buffer& buffer, LRESULT length)
    {
        return View(buffer).substr(0, static_cast<std::size_t>(std::max<LRESULT>(length, 0)));
    }

    const Receiver& m_receiver;
    UINT m_message;
    WPARAM m_wParam;
    LPARAM m_lParam;
};

template <class To, class From>
To WithoutTexts(const From& create)
{
    To result{};
    result.lpCreateParams = create.lpCreateParams;
    result.hInstance = create.hInstance;
    result.hMenu = create.hMenu;
    result.hwndParent = create.hwndParent;
    result.cy = create.cy;
    result.cx = create.cx;
    result.y = create.y;
    result.x = create.x;
    result.style = create.style;
    result.dwExStyle = create.dwExStyle;
    return result;
}

// The procedure may change the place and the style, but not the texts.
template <class To, class Direction, class From>
LRESULT SendCreation(const Receiver& receiver, UINT message, WPARAM wParam, LPARAM lParam)
{
    auto& create = *reinterpret_cast<From*>(lParam);
    auto translated = WithoutTexts<To>(create);
    const auto className = Direction::Forth(create.lpszClass);
    const auto name = create.lpszName ? Direction::Forth(create.lpszName) : decltype(className){};
    translated.lpszClass = className.c_str();
    translated.lpszName = create.lpszName ? name.c_str() : nullptr;
    const LRESULT result = receiver(message, wParam, AsParam(&translated));
    const auto [oldName, oldClass] = std::pair(create.lpszName, create.lpszClass);
    create = WithoutTexts<From>(translated);
    create.lpszName = oldName;
    create.lpszClass = oldClass;
    return result;
}

template <class Direction>
std::optional<LRESULT> SendWithText(const Receiver& receiver, UINT message, WPARAM wParam, LPARAM lParam)
{
    const Translation<Direction> translation(receiver, message, wParam, lParam);
    switch (FormOf(message))
    {
    case Form::Text:
        return translation.Text();
    case Form::Buffer:
        return translation.IntoBuffer();
    case Form::Line:
        return translation.Line();
    case Form::Item:
        return translation.Item();
    case Form::TextLength:
        return translation.Length(false);
    case Form::ItemLength:
        return translation.Length(true);
    default:
        return std::nullopt;
    }
}
} // namespace

bool HasText(UINT message) { return FormOf(message) != Form::Plain; }

bool WidenCharacter(HWND window, WPARAM& character)
{
    const char c = static_cast<char>(character);
    const LeadByte lead = std::exchange(g_lead, {});
    std::string bytes(1, c);
    if (lead.byte && lead.window == window)
        bytes.insert(bytes.begin(), lead.byte);
    else if (IsLeadByte(static_cast<unsigned char>(c)))
    {
        g_lead = {window, c};
        return false;
    }
    character = ToWide(bytes)[0];
    return true;
}

void ForgetLeadByte() { g_lead = {}; }

LRESULT SendAnsiToUnicode(const Receiver& receiver, HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (const auto result = SendWithText<ToUnicode>(receiver, message, wParam, lParam))
        return *result;
    switch (FormOf(message))
    {
    case Form::Character:
        return WidenCharacter(window, wParam) ? receiver(message, wParam, lParam) : 0;
    case Form::Creation:
        return SendCreation<CREATESTRUCTW, ToUnicode, CREATESTRUCTA>(receiver, message, wParam, lParam);
    default:
        return receiver(message, wParam, lParam);
    }
}

LRESULT SendUnicodeToAnsi(const Receiver& receiver, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (const auto result = SendWithText<ToBytes>(receiver, message, wParam, lParam))
        return *result;
    switch (FormOf(message))
    {
    case Form::Character: {
        // A double-byte character comes as two messages.
        const char16_t c = static_cast<char16_t>(wParam);
        LRESULT result = 0;
        for (const char byte : ToAnsi({&c, 1}))
            result = receiver(message, static_cast<unsigned char>(byte), lParam);
        return result;
    }
    case Form::Creation:
        return SendCreation<CREATESTRUCTA, ToBytes, CREATESTRUCTW>(receiver, message, wParam, lParam);
    default:
        return receiver(message, wParam, lParam);
    }
}
} // namespace offscreen
