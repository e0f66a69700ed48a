#pragma once

// Dialogs made from templates that tests put together in memory, and a log of what their controls say.

#include "afx/Platform.h"

#include <gtest/gtest.h>

#include <sstream>
#include <string>
#include <vector>

namespace desktop
{
// Writes a DLGTEMPLATE, or a DLGTEMPLATEEX when it is asked to be extended.
class TemplateBuilder
{
public:
    explicit TemplateBuilder(DWORD style, bool extended = false, DWORD exStyle = 0);

    TemplateBuilder& Place(short x, short y, short width, short height);
    TemplateBuilder& Title(const char* text);
    TemplateBuilder& Class(const char* name);
    TemplateBuilder& Font(WORD pointSize, const char* face);
    // `ordinal` is 0x80 Button, 0x81 Edit, 0x82 Static, 0x83 ListBox, 0x84 ScrollBar, 0x85 ComboBox.
    TemplateBuilder& Control(WORD ordinal, DWORD id, const char* title, DWORD style, short x = 0, short y = 0,
                             short width = 50, short height = 14, DWORD exStyle = 0);
    TemplateBuilder& Control(const char* className, DWORD id, const char* title, DWORD style, short x = 0, short y = 0,
                             short width = 50, short height = 14, DWORD exStyle = 0);

    LPCDLGTEMPLATE Build();

private:
    struct Item
    {
        WORD ordinal;
        std::string className;
        DWORD id;
        std::string title;
        DWORD style;
        DWORD exStyle;
        short x, y, width, height;
    };

    void Word(WORD value);
    void Double(DWORD value);
    void Text(const std::string& text);
    void Align();

    bool m_extended;
    DWORD m_style;
    DWORD m_exStyle;
    short m_x = 10, m_y = 10, m_width = 200, m_height = 100;
    std::string m_title = "Test";
    std::string m_class;
    WORD m_pointSize = 0;
    std::string m_face;
    std::vector<Item> m_items;
    std::vector<WORD> m_words;
};

constexpr WORD kButton = 0x80;
constexpr WORD kEdit = 0x81;
constexpr WORD kStatic = 0x82;
constexpr WORD kListBox = 0x83;
constexpr WORD kScrollBar = 0x84;
constexpr WORD kComboBox = 0x85;

// A modeless dialog that notes every WM_COMMAND as "id:code" and can be told to note other messages as "#message".
class TestDialog
{
public:
    explicit TestDialog(TemplateBuilder builder, HWND owner = nullptr);
    ~TestDialog();
    TestDialog(const TestDialog&) = delete;
    TestDialog& operator=(const TestDialog&) = delete;

    HWND Window() const { return m_window; }
    HWND Item(int id) const { return GetDlgItem(m_window, id); }
    LRESULT Send(int id, UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const
    {
        return SendDlgItemMessageA(m_window, id, message, wParam, lParam);
    }
    std::string Text(int id) const;
    // The control with the focus, 0 when none of this dialog has it.
    int FocusId() const;

    // What was noted since the last call, divided by blanks.
    std::string Log();
    void Note(UINT message) { m_noted.push_back(message); }

    // Sends a key as the message loop would: through IsDialogMessage.
    void Key(WPARAM key, bool shift = false);
    void Char(char c, bool alt = false);
    void Pump();

private:
    static INT_PTR CALLBACK Procedure(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam);
    void Deliver(UINT message, WPARAM wParam, LPARAM lParam);

    HWND m_window = nullptr;
    std::ostringstream m_log;
    std::vector<UINT> m_noted;
};

// A top-level window that is visible and active, so that dialogs have an owner.
HWND MakeOwner();

// Types characters one by one.
void TypeInto(HWND control, const std::string& text);
void SetKey(int key, bool down);

std::string WindowText(HWND window);
RECT RectIn(HWND dialog, int id); // In client coordinates.
} // namespace desktop
