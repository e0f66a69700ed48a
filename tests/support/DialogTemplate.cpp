#include "tests/support/DialogTemplate.h"

#include <cstring>
#include <stdexcept>

namespace
{
constexpr size_t kCountAt = 4; // the word that counts the controls, after style and extended style
constexpr short kRowHeight = 14;

int ClassAtom(const std::string& windowClass)
{
    const char* const classes[] = {"BUTTON", "EDIT", "STATIC", "LISTBOX", "SCROLLBAR", "COMBOBOX"};
    int atom = 0x80;
    for (const char* name : classes)
    {
        if (windowClass == name)
            return atom;
        ++atom;
    }
    throw std::invalid_argument("no predefined class: " + windowClass);
}
} // namespace

CDialogTemplate::CDialogTemplate(const std::string& caption, short width, short height)
{
    DWord(WS_POPUP | WS_CAPTION | WS_SYSMENU | DS_MODALFRAME);
    DWord(0);
    Word(0); // controls
    for (int value : {0, 0, static_cast<int>(width), static_cast<int>(height)})
        Word(value);
    Word(0); // no menu
    Word(0); // the standard class
    Text(caption);
}

CDialogTemplate& CDialogTemplate::Add(const char* windowClass, int id, DWORD style, const std::string& text)
{
    if (m_words.size() % 2 != 0)
        Word(0); // items start at multiples of four bytes
    DWord(style | WS_CHILD | WS_VISIBLE);
    DWord(0);
    const short height = ClassAtom(windowClass) == 0x85 ? 60 : kRowHeight;
    for (int value : {7, static_cast<int>(m_nextRow), 80, static_cast<int>(height), id})
        Word(value);
    Word(0xFFFF);
    Word(ClassAtom(windowClass));
    Text(text);
    Word(0); // no creation data
    ++m_words[kCountAt];
    m_nextRow = static_cast<short>(m_nextRow + kRowHeight + 1);
    return *this;
}

LPCDLGTEMPLATE CDialogTemplate::Get() const { return reinterpret_cast<LPCDLGTEMPLATE>(m_words.data()); }

void CDialogTemplate::Word(int value) { m_words.push_back(static_cast<std::uint16_t>(value)); }

void CDialogTemplate::DWord(DWORD value)
{
    Word(LOWORD(value));
    Word(HIWORD(value));
}

void CDialogTemplate::Text(const std::string& text)
{
    for (char c : text)
        Word(static_cast<unsigned char>(c));
    Word(0);
}
