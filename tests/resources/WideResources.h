// The resources in use as they are stored: in Unicode, whatever page narrow texts are in.
#pragma once

#include "afx/afx.h"

#include <map>
#include <optional>
#include <string>
#include <vector>

struct SWideControl
{
    unsigned id; ///< 0xFFFF for the controls that all share the id -1
    std::u16string className;
    std::u16string text;
    DWORD style;
    DWORD extendedStyle;
};

struct SWideTemplate
{
    std::u16string caption;
    std::u16string face;
    DWORD style;
    DWORD extendedStyle;
    std::vector<SWideControl> controls; ///< in tab order
};

/// A text of the resources, and where it stands: "text 11000", "dialog 1011, control 4".
struct SPlacedText
{
    std::string place;
    std::u16string text;
};

/// All strings by their ids.
std::map<unsigned, std::u16string> WideTexts();
/// None when there is no such template.
std::optional<SWideTemplate> WideTemplate(unsigned id);
/// The ids of all dialog templates.
std::vector<unsigned> TemplateIds();
/// Every string, caption and text of a control. The same place means the same thing in every language.
std::vector<SPlacedText> PlacedTexts();

/// The languages that a string or a dialog template is there in.
std::vector<WORD> LanguagesOfString(unsigned id);
std::vector<WORD> LanguagesOfTemplate(unsigned id);

/// For messages.
std::string Utf8(const std::u16string& text);
/// In a code page. A character that the page lacks becomes another one, such as a question mark.
std::string InPage(const std::u16string& text, UINT page);
std::u16string FromPage(const std::string& text, UINT page);
