#include "tests/afx/desktop/TestDialog.h"

#include <cstring>

namespace desktop
{
TemplateBuilder::TemplateBuilder(DWORD style, bool extended, DWORD exStyle)
    : m_extended(extended), m_style(style), m_exStyle(exStyle)
{
}

TemplateBuilder& TemplateBuilder::Place(short x, short y, short width, short height)
{
    m_x = x;
    m_y = y;
    m_width = width;
    m_height = height;
    return *this;
}

TemplateBuilder& TemplateBuilder::Title(const char* text)
{
    m_title = text;
    return *this;
}

TemplateBuilder& TemplateBuilder::Class(const char* name)
{
    m_class = name;
    return *this;
}

TemplateBuilder& TemplateBuilder::Font(WORD pointSize, const char* face)
{
    m_style |= DS_SETFONT;
    m_pointSize = pointSize;
    m_face = face;
    return *this;
}

TemplateBuilder& TemplateBuilder::Control(WORD ordinal, DWORD id, const char* title, DWORD style, short x, short y,
                                          short width, short height, DWORD exStyle)
{
    m_items.push_back({ordinal, "", id, title, style | WS_CHILD | WS_VISIBLE, exStyle, x, y, width, height});
    return *this;
}

TemplateBuilder& TemplateBuilder::Control(const char* className, DWORD id, const char* title, DWORD style, short x,
                                          short y, short width, short height, DWORD exStyle)
{
    Control(WORD{0}, id, title, style, x, y, width, height, exStyle);
    m_items.back().className = className;
    return *this;
}

void TemplateBuilder::Word(WORD value) { m_words.push_back(value); }

void TemplateBuilder::Double(DWORD value)
{
    Word(LOWORD(value));
    Word(static_cast<WORD>(value >> 16));
}

void TemplateBuilder::Text(const std::string& text)
{
    for (char c : text)
        Word(static_cast<unsigned char>(c));
    Word(0);
}

void TemplateBuilder::Align()
{
    if (m_words.size() % 2)
        Word(0);
}

LPCDLGTEMPLATE TemplateBuilder::Build()
{
    m_words.clear();
    if (m_extended)
    {
        Word(1);
        Word(0xFFFF);
        Double(0);
        Double(m_exStyle);
        Double(m_style);
    }
    else
    {
        Double(m_style);
        Double(m_exStyle);
    }
    Word(static_cast<WORD>(m_items.size()));
    for (short value : {m_x, m_y, m_width, m_height})
        Word(static_cast<WORD>(value));
    Word(0); // No menu
    Text(m_class);
    Text(m_title);
    if (m_style & DS_SETFONT)
    {
        Word(m_pointSize);
        if (m_extended)
        {
            Word(FW_NORMAL);
            Word(DEFAULT_CHARSET << 8);
        }
        Text(m_face);
    }
    for (const Item& item : m_items)
    {
        Align();
        if (m_extended)
        {
            Double(0);
            Double(item.exStyle);
            Double(item.style);
        }
        else
        {
            Double(item.style);
            Double(item.exStyle);
        }
        for (short value : {item.x, item.y, item.width, item.height})
            Word(static_cast<WORD>(value));
        if (m_extended)
            Double(item.id);
        else
            Word(static_cast<WORD>(item.id));
        if (item.className.empty())
        {
            Word(0xFFFF);
            Word(item.ordinal);
        }
        else
            Text(item.className);
        Text(item.title);
        Word(0);
    }
    return reinterpret_cast<LPCDLGTEMPLATE>(m_words.data());
}

TestDialog::TestDialog(TemplateBuilder builder, HWND owner)
{
    m_window = CreateDialogIndirectParamA(GetModuleHandleA(nullptr), builder.Build(), owner, Procedure,
                                          reinterpret_cast<LPARAM>(this));
    EXPECT_NE(m_window, nullptr);
}

TestDialog::~TestDialog()
{
    if (IsWindow(m_window))
        DestroyWindow(m_window);
    Pump();
}

INT_PTR CALLBACK TestDialog::Procedure(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == WM_INITDIALOG)
        SetWindowLongPtrA(dialog, static_cast<int>(DWLP_USER), lParam);
    auto* self = reinterpret_cast<TestDialog*>(GetWindowLongPtrA(dialog, static_cast<int>(DWLP_USER)));
    if (!self)
        return FALSE;
    if (message == WM_COMMAND)
        self->m_log << LOWORD(wParam) << ":" << static_cast<short>(HIWORD(wParam)) << " ";
    for (UINT noted : self->m_noted)
        if (noted == message)
            self->m_log << "#" << message << " ";
    return message == WM_INITDIALOG;
}

std::string TestDialog::Text(int id) const { return WindowText(Item(id)); }

int TestDialog::FocusId() const
{
    const HWND focus = GetFocus();
    return focus && IsChild(m_window, focus) ? GetDlgCtrlID(focus) : 0;
}

std::string TestDialog::Log()
{
    std::string log = m_log.str();
    m_log.str("");
    if (!log.empty())
        log.pop_back(); // The last blank
    return log;
}

void TestDialog::Deliver(UINT message, WPARAM wParam, LPARAM lParam)
{
    MSG msg{};
    msg.hwnd = GetFocus() ? GetFocus() : m_window;
    msg.message = message;
    msg.wParam = wParam;
    msg.lParam = lParam;
    if (!IsDialogMessageA(m_window, &msg))
    {
        TranslateMessage(&msg);
        DispatchMessageA(&msg);
    }
    Pump();
}

void TestDialog::Key(WPARAM key, bool shift)
{
    if (shift)
        SetKey(VK_SHIFT, true);
    Deliver(WM_KEYDOWN, key, 1);
    Deliver(WM_KEYUP, key, static_cast<LPARAM>(0xC0000001));
    if (shift)
        SetKey(VK_SHIFT, false);
}

void TestDialog::Char(char c, bool alt) { Deliver(alt ? WM_SYSCHAR : WM_CHAR, static_cast<unsigned char>(c), 1); }

void TestDialog::Pump()
{
    MSG msg;
    while (PeekMessageA(&msg, nullptr, 0, 0, PM_REMOVE))
    {
        if (IsWindow(m_window) && IsDialogMessageA(m_window, &msg))
            continue;
        TranslateMessage(&msg);
        DispatchMessageA(&msg);
    }
}

HWND MakeOwner()
{
    static const bool registered = [] {
        WNDCLASSA windowClass{};
        windowClass.lpfnWndProc = DefWindowProcA;
        windowClass.hInstance = GetModuleHandleA(nullptr);
        windowClass.lpszClassName = "DesktopTestOwner";
        return RegisterClassA(&windowClass) != 0;
    }();
    EXPECT_TRUE(registered);
    const HWND owner = CreateWindowExA(0, "DesktopTestOwner", "Owner", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 50, 60, 600,
                                       400, nullptr, nullptr, GetModuleHandleA(nullptr), nullptr);
    SetActiveWindow(owner);
    return owner;
}

void TypeInto(HWND control, const std::string& text)
{
    for (char c : text)
        SendMessageA(control, WM_CHAR, static_cast<unsigned char>(c), 1);
}

void SetKey(int key, bool down)
{
    BYTE keys[256];
    GetKeyboardState(keys);
    keys[key] = down ? 0x80 : 0;
    SetKeyboardState(keys);
}

std::string WindowText(HWND window)
{
    std::string text(static_cast<std::size_t>(GetWindowTextLengthA(window)) + 1, '\0');
    text.resize(static_cast<std::size_t>(GetWindowTextA(window, text.data(), static_cast<int>(text.size()))));
    return text;
}

RECT RectIn(HWND dialog, int id)
{
    RECT rect{};
    GetWindowRect(GetDlgItem(dialog, id), &rect);
    MapWindowPoints(nullptr, dialog, reinterpret_cast<POINT*>(&rect), 2);
    return rect;
}
} // namespace desktop
