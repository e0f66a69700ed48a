#include "dialogs/process/ScreenImage.h"

namespace
{

/// A value that stands for any of its mode, in as many places as the mode has. Where leading zeros can be left out it
/// begins with one.
struct SSample
{
    const char* text;
    int places;
    bool hasZeros;
};

constexpr SSample kSamples[] = {{"00123", 5, true}, {"02AF", 4, true}, {"00101", 5, true}};

// Lit at random, as segments are that stand for no character.
constexpr std::array<BYTE, kScreenDigits> kSegmentSample = {0x01, 0x03, 0x07, 0x0F, 0x5C};

/// The digit at a position from the left, counted from the right and from 1.
int DigitNumber(int position) { return kScreenDigits - position; }

/// The leftmost digit with a decimal point: zeros from there on belong to the number.
int HighestPoint(DWORD points)
{
    constexpr int kFirstWithPoint = 2;
    for (int digit = kScreenDigits; digit >= kFirstWithPoint; --digit)
        if ((points & 1u << (digit - kFirstWithPoint)) != 0)
            return digit;
    return 1;
}

// From the left, blanks for what is dark.
CString TextOf(const SScreenLine& line)
{
    if (line.IsText())
        return line.text;
    const SSample& sample = kSamples[line.Get(kScreenMode)];
    CString text = CString(' ', kScreenDigits - sample.places) + sample.text;
    const int last = kScreenDigits - HighestPoint(line.Get(kScreenPoints));
    const bool suppressed = line.Get(kScreenAllDigits) == 0;
    for (int position = 0; suppressed && position < last && (text[position] == '0' || text[position] == ' ');
         ++position)
        text.SetAt(position, ' ');
    return text;
}

} // namespace

SScreenImage ScreenImage(const SScreenLine& line)
{
    SScreenImage image;
    if (line.hidden)
        return image;
    const bool isRaw = line.Get(kScreenMode) == kScreenSegments;
    const CString text = isRaw ? CString() : TextOf(line);
    const DWORD points = line.Get(kScreenPoints);
    for (int position = 0; position < kScreenDigits; ++position)
    {
        SScreenDigit& digit = image[static_cast<size_t>(position)];
        const int number = DigitNumber(position);
        if ((line.Get(kScreenHidden) & 1u << (number - 1)) == 0)
            digit.segments = isRaw                         ? kSegmentSample[static_cast<size_t>(position)]
                             : position < text.GetLength() ? SegmentsOf(text[position])
                                                           : BYTE{0};
        digit.point = number > 1 && (points & 1u << (number - 2)) != 0;
        digit.upperPoint = number == 3 && (points & 1u << 4) != 0;
    }
    return image;
}
