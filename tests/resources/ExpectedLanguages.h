// What each language library is written in, by number, apart from the resource scripts.
#pragma once

#include "afx/afx.h"

#include <ostream>

enum EScript
{
    kLatin,
    kEastAsian,
    kThai
};

struct SExpectedLanguage
{
    int index; ///< as SetLanguageInfo takes it
    const char* name;
    WORD language; ///< of its resources
    UINT page;     ///< 0 for the system's
    const char* face;
    EScript script;
    const char16_t* fullStop; ///< ends a sentence; empty where none does
};

inline constexpr SExpectedLanguage kExpectedLanguages[] = {
    {0, "English", 0x409, 0, "MS Sans Serif", kLatin, u"."},
    {1, "Japanese", 0x411, 932, "MS UI Gothic", kEastAsian, u"\u3002"},
    {2, "SimplifiedChinese", 0x804, 936, "SimSun", kEastAsian, u"\u3002"},
    {3, "TraditionalChinese", 0x404, 950, "PMingLiU", kEastAsian, u"\u3002"},
    {4, "Korean", 0x412, 949, "Gulim", kEastAsian, u"."},
    {5, "Spanish", 0xC0A, 1252, "MS Sans Serif", kLatin, u"."},
    {6, "Italian", 0x410, 1252, "MS Sans Serif", kLatin, u"."},
    {9, "Thai", 0x41E, 874, "Microsoft Sans Serif", kThai, u""},
};

inline std::ostream& operator<<(std::ostream& out, const SExpectedLanguage& language) { return out << language.name; }
