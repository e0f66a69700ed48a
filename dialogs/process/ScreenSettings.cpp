#include "dialogs/process/ScreenSettings.h"

#include "core/Values.h"

namespace
{

// Words of the block.
constexpr int kLineWords = 1;
constexpr int kTexts = 3;
constexpr int kWordsOfText = 3;

constexpr int kHiddenLine = 8; // the bit of the upside line in the first word

} // namespace

WORD SScreenLine::TextWord(int index) const
{
    const LPCSTR bytes = text;
    const int first = 2 * index, length = text.GetLength();
    if (first >= length)
        return 0;
    return MAKEWORD(bytes[first], first + 1 < length ? bytes[first + 1] : 0);
}

WORD SScreenSettings::FirstWord() const
{
    int word = marks;
    for (int line = 0; line < kScreenLines; ++line)
        if (lines[static_cast<size_t>(line)].hidden)
            word |= 1 << (kHiddenLine + line);
    return static_cast<WORD>(word);
}

SScreenSettings::Block SScreenSettings::ToBlock() const
{
    Block block = {FirstWord()};
    for (size_t line = 0; line < kScreenLines; ++line)
    {
        block[kLineWords + line] = lines[line].control;
        for (int word = 0; word < kWordsOfText; ++word)
            block[kTexts + line * kWordsOfText + static_cast<size_t>(word)] = lines[line].TextWord(word);
    }
    return block;
}

SScreenSettings SScreenSettings::FromBlock(const WORD* words)
{
    SScreenSettings settings;
    settings.marks = LOBYTE(words[0]);
    for (int index = 0; index < kScreenLines; ++index)
    {
        SScreenLine& line = settings.lines[static_cast<size_t>(index)];
        line.hidden = (words[0] & 1 << (kHiddenLine + index)) != 0;
        line.control = words[kLineWords + index];
        if (line.Get(kScreenMode) >= kScreenModes)
            line.Set(kScreenMode, kScreenDecimal);
        if (line.Get(kScreenColor) < kScreenGreen)
            line.Set(kScreenColor, kScreenGreen);
        char text[2 * kWordsOfText + 1] = {};
        char* character = text;
        for (int word = 0; word < kWordsOfText; ++word)
        {
            const WORD pair = words[kTexts + index * kWordsOfText + word];
            *character++ = static_cast<char>(LOBYTE(pair));
            *character++ = static_cast<char>(HIBYTE(pair));
        }
        line.text = LeftWhole(text, kScreenDigits);
    }
    return settings;
}
