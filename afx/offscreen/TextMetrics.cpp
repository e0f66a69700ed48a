// The fonts that the desktop knows: their heights and the widths of their characters, as measured with
// GetTextExtentPoint32 on the bitmap faces of the system at 96 dots per inch.

#include "afx/offscreen/CodePages.h"
#include "afx/offscreen/Internal.h"

#include <cstdlib>
#include <memory>

namespace offscreen
{
namespace
{
// clang-format off
// MS Sans Serif, 13 pixels high (8 and 9 point)
constexpr std::uint8_t kSans13[256] = {
    3, 3, 3, 3, 3, 3, 3, 3, 3, 3, 3, 3, 3, 3, 3, 3, 3, 3, 3, 3, 3, 3, 3, 3, 3, 3, 3, 3, 3, 3, 3, 3,
    3, 3, 5, 7, 6, 8, 6, 2, 3, 3, 4, 6, 3, 3, 3, 5, 6, 6, 6, 6, 6, 6, 6, 6, 6, 6, 3, 3, 6, 6, 6, 6,
    11, 7, 7, 7, 8, 7, 6, 8, 8, 3, 5, 7, 6, 9, 8, 8, 7, 8, 8, 7, 7, 8, 7, 11, 7, 7, 7, 3, 5, 3, 6, 6,
    3, 6, 6, 6, 6, 6, 3, 6, 6, 2, 2, 6, 2, 8, 6, 6, 6, 6, 3, 5, 3, 6, 6, 8, 5, 5, 5, 4, 2, 4, 7, 3,
    6, 3, 3, 3, 5, 6, 5, 5, 3, 11, 7, 6, 10, 3, 7, 3, 3, 3, 3, 4, 4, 6, 5, 6, 3, 9, 5, 6, 10, 3, 5, 7,
    3, 3, 6, 6, 6, 6, 2, 6, 3, 9, 4, 6, 6, 3, 8, 6, 4, 6, 3, 3, 3, 6, 6, 3, 3, 3, 4, 6, 8, 8, 8, 6,
    7, 7, 7, 7, 7, 7, 10, 7, 7, 7, 7, 7, 3, 3, 3, 3, 8, 8, 8, 8, 8, 8, 8, 6, 8, 8, 8, 8, 8, 7, 7, 6,
    6, 6, 6, 6, 6, 6, 10, 6, 6, 6, 6, 6, 2, 4, 4, 4, 6, 6, 6, 6, 6, 6, 6, 6, 6, 6, 6, 6, 6, 5, 6, 5,
};

// MS Sans Serif, 16 pixels high (10 and 11 point)
constexpr std::uint8_t kSans16[256] = {
    5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5,
    3, 3, 5, 7, 7, 12, 9, 3, 4, 4, 5, 7, 3, 4, 3, 4, 7, 7, 7, 7, 7, 7, 7, 7, 7, 7, 3, 3, 7, 7, 7, 7,
    14, 9, 9, 9, 10, 9, 8, 10, 10, 3, 7, 8, 7, 11, 10, 10, 9, 10, 10, 9, 9, 10, 9, 13, 8, 9, 8, 4, 4, 4, 7, 7,
    4, 8, 8, 7, 8, 8, 3, 8, 7, 3, 3, 7, 3, 11, 7, 8, 8, 8, 4, 7, 3, 7, 7, 9, 6, 7, 6, 5, 3, 5, 9, 5,
    7, 5, 3, 4, 5, 6, 9, 9, 4, 14, 9, 5, 13, 5, 8, 5, 5, 3, 3, 5, 5, 5, 4, 5, 4, 7, 7, 5, 12, 5, 6, 9,
    3, 3, 7, 7, 7, 7, 3, 7, 4, 8, 5, 7, 7, 4, 8, 7, 4, 7, 4, 4, 4, 7, 7, 3, 4, 4, 5, 7, 9, 9, 9, 7,
    9, 9, 9, 9, 9, 9, 13, 9, 9, 9, 9, 9, 3, 3, 3, 3, 9, 10, 10, 10, 10, 10, 10, 7, 10, 10, 10, 10, 10, 9, 9, 8,
    8, 8, 8, 8, 8, 8, 13, 7, 8, 8, 8, 8, 3, 3, 3, 3, 8, 7, 8, 8, 8, 8, 8, 7, 8, 7, 7, 7, 7, 7, 8, 7,
};

// MS Sans Serif, 20 pixels high (12 point and more)
constexpr std::uint8_t kSans20[256] = {
    5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5,
    4, 4, 6, 9, 9, 14, 11, 3, 5, 5, 6, 9, 4, 5, 4, 4, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 4, 4, 9, 9, 9, 9,
    16, 11, 11, 11, 12, 11, 10, 13, 12, 5, 8, 10, 9, 13, 11, 12, 10, 12, 12, 11, 9, 12, 11, 15, 11, 11, 10, 4, 4, 4, 7, 9,
    5, 9, 9, 8, 9, 9, 5, 9, 9, 3, 3, 8, 3, 13, 9, 9, 9, 9, 5, 8, 5, 9, 7, 11, 7, 7, 8, 5, 5, 5, 9, 5,
    9, 5, 4, 5, 6, 6, 9, 9, 5, 16, 11, 6, 16, 5, 10, 5, 5, 4, 4, 6, 6, 8, 6, 9, 5, 10, 8, 6, 15, 5, 8, 11,
    4, 4, 9, 9, 9, 9, 5, 9, 5, 11, 6, 9, 9, 5, 11, 9, 5, 9, 5, 5, 5, 8, 8, 4, 5, 5, 6, 9, 12, 12, 12, 9,
    11, 11, 11, 11, 11, 11, 16, 11, 11, 11, 11, 11, 5, 5, 5, 5, 12, 11, 12, 12, 12, 12, 12, 9, 12, 12, 12, 12, 12, 11, 10, 10,
    9, 9, 9, 9, 9, 9, 15, 8, 9, 9, 9, 9, 3, 3, 3, 3, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 7, 9, 7,
};

// System, 16 pixels high
constexpr std::uint8_t kSystem16[256] = {
    4, 4, 4, 4, 4, 4, 4, 4, 4, 4, 4, 4, 4, 4, 4, 4, 4, 4, 4, 4, 4, 4, 4, 4, 4, 4, 4, 4, 4, 4, 4, 4,
    4, 4, 6, 8, 8, 11, 9, 4, 4, 4, 6, 8, 4, 4, 4, 4, 8, 8, 8, 8, 8, 8, 8, 8, 8, 8, 4, 4, 8, 8, 8, 8,
    14, 8, 10, 9, 10, 9, 8, 10, 10, 4, 7, 9, 8, 12, 10, 10, 9, 10, 10, 9, 8, 10, 8, 14, 9, 10, 9, 4, 4, 4, 5, 8,
    5, 8, 8, 7, 8, 8, 4, 8, 8, 4, 4, 7, 4, 12, 8, 8, 8, 8, 5, 8, 4, 8, 8, 10, 8, 8, 8, 5, 4, 5, 5, 4,
    4, 4, 5, 4, 6, 8, 10, 10, 4, 15, 9, 8, 4, 4, 9, 4, 4, 4, 4, 7, 7, 7, 6, 9, 4, 9, 8, 7, 4, 4, 8, 4,
    9, 4, 8, 8, 8, 8, 4, 8, 5, 10, 5, 7, 8, 4, 10, 8, 5, 8, 4, 4, 5, 8, 7, 4, 5, 4, 5, 7, 11, 11, 11, 8,
    8, 8, 8, 8, 8, 8, 13, 9, 9, 9, 9, 9, 4, 4, 4, 4, 10, 10, 10, 10, 10, 10, 10, 8, 10, 10, 10, 10, 10, 10, 9, 8,
    8, 8, 8, 8, 8, 8, 12, 7, 8, 8, 8, 8, 4, 4, 4, 4, 8, 8, 8, 8, 8, 8, 8, 6, 8, 8, 8, 8, 8, 8, 8, 8,
};

// clang-format on

struct Strike
{
    FontMetrics metrics;
    std::uint8_t widths[256];
};

struct Size
{
    const std::uint8_t* widths;
    int height;
    int ascent;
    int internalLeading;
    int averageWidth;
    int maximumWidth;
};

constexpr Size kSmall = {kSans13, 13, 11, 2, 5, 11};
constexpr Size kMedium = {kSans16, 16, 13, 3, 7, 14};
constexpr Size kLarge = {kSans20, 20, 16, 4, 8, 16};
constexpr Size kSystem = {kSystem16, 16, 13, 3, 7, 15};
constexpr Size kCourier = {nullptr, 13, 11, 0, 8, 8};

// A bold bitmap font is the plain one drawn twice, a pixel apart.
FontMetrics* MakeStrike(const Size& size, bool bold)
{
    auto* strike = new Strike;
    const int extra = bold ? 1 : 0;
    for (int c = 0; c < 256; ++c)
        strike->widths[c] = static_cast<std::uint8_t>((size.widths ? size.widths[c] : size.averageWidth) + extra);
    strike->metrics = {size.height,
                       size.ascent,
                       size.internalLeading,
                       0,
                       size.averageWidth + extra,
                       size.maximumWidth + extra,
                       size.height - size.internalLeading + 1,
                       size.averageWidth + 2,
                       strike->widths};
    return &strike->metrics;
}

// Every face that is not one of the others looks like MS Sans Serif.
const Size& SizeFor(const LOGFONTW& font)
{
    if (CompareTexts(font.lfFaceName, u"System") == 0)
        return kSystem;
    if (CompareTexts(font.lfFaceName, u"Courier") == 0 || CompareTexts(font.lfFaceName, u"Courier New") == 0)
        return kCourier;
    // A negative height is that of the characters, a positive one that of the cell.
    const int height = font.lfHeight < 0 ? -font.lfHeight : font.lfHeight == 0 ? 12 : font.lfHeight;
    const bool cell = font.lfHeight > 0;
    if (height <= (cell ? 15 : 12))
        return kSmall;
    return height <= (cell ? 19 : 15) ? kMedium : kLarge;
}

BaseUnits g_systemUnits{8, 16};
} // namespace

const FontMetrics& MetricsFor(const LOGFONTW& font)
{
    constexpr const Size* kSizes[] = {&kSmall, &kMedium, &kLarge, &kSystem, &kCourier};
    static FontMetrics* strikes[std::size(kSizes)][2] = {};
    const Size& size = SizeFor(font);
    const bool bold = font.lfWeight > 550 && &size != &kSystem;
    const auto index = static_cast<std::size_t>(std::find(std::begin(kSizes), std::end(kSizes), &size) - kSizes);
    FontMetrics*& strike = strikes[index][bold];
    if (!strike)
        strike = MakeStrike(size, bold);
    return *strike;
}

namespace
{
constexpr char16_t kDefaultCharacter = 0x1F; // Drawn for those that the font does not have

// Thai vowels and tone marks above and below a consonant
bool IsCombining(char16_t c) { return c == 0x0E31 || (c >= 0x0E34 && c <= 0x0E3A) || (c >= 0x0E47 && c <= 0x0E4E); }
bool IsThai(char16_t c) { return c >= 0x0E01 && c <= 0x0E5B; }
bool IsHalfWidth(char16_t c) { return c >= 0xFF61 && c <= 0xFFDC; }

// Characters beyond ASCII; the ones that the faces do not have are drawn by the system with fonts of their scripts.
int WidthOf(const FontMetrics& metrics, char16_t c)
{
    static const CodePage& western = *CodePage::Find(1252);
    if (const WORD byte = western.BytesOf(c))
        return metrics.widths[byte];
    if (IsFullWidth(c))
        return metrics.doubleByteWidth;
    if (IsHalfWidth(c))
        return metrics.doubleByteWidth / 2;
    if (IsCombining(c))
        return 0;
    return IsThai(c) ? metrics.thaiWidth : metrics.widths[kDefaultCharacter];
}
} // namespace

int TextWidth(const FontMetrics& metrics, std::u16string_view text)
{
    int width = 0;
    for (const char16_t c : text)
        width += c < 0x80 ? metrics.widths[c] : WidthOf(metrics, c);
    return width;
}

BaseUnits SystemBaseUnits() { return g_systemUnits; }

BaseUnits BaseUnitsOf(HFONT font)
{
    constexpr std::u16string_view kAlphabet = u"ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz";
    const FontMetrics& metrics = MetricsOf(font);
    return {(TextWidth(metrics, kAlphabet) / 26 + 1) / 2, metrics.height};
}

void SetDialogBaseUnits(int x, int y) { g_systemUnits = {x, y}; }
} // namespace offscreen
