// Dialog templates put together in memory, for tests that need a dialog of their own.
#pragma once

#include "afx/afx.h"

#include <cstdint>
#include <string>
#include <vector>

class CDialogTemplate
{
public:
    explicit CDialogTemplate(const std::string& caption, short width = 200, short height = 120);

    /// Adds a visible child below the one before. Classes as resource compilers know them: "BUTTON", "EDIT", "STATIC",
    /// "LISTBOX", "SCROLLBAR", "COMBOBOX". Texts are plain ASCII.
    CDialogTemplate& Add(const char* windowClass, int id, DWORD style, const std::string& text = "");

    /// Valid as long as the object lives and nothing is added.
    LPCDLGTEMPLATE Get() const;

private:
    void Word(int value);
    void DWord(DWORD value);
    void Text(const std::string& text);

    std::vector<std::uint16_t> m_words; // the form that CreateDialogIndirect and its kin read
    short m_nextRow = 7;
};
