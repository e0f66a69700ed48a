#include "dialogs/process/ScreenImage.h"

namespace
{

/// A value of each mode but texts and segments, with leading zeros in as many places as the mode has.
constexpr const char* kSamples[] = {"00123", "02AF", "00101"};

// Segments that make up no characters.
constexpr std::array<BYTE, kScreenDigits> kSegmentSample = {0x11, 0x24, 0x42, 0x14, 0x21};

/// The leftmost digit with a decimal point, or the last one: zeros from there on belong to the number.
int FirstDigitOfNumber(const SScreenLine& line)
{
    int digit = kScreenDigits;
    while (digit > 1 && !line.IsPointShown(digit))
        --digit;
    return digit;
}

// From the left; behind its end the digits are dark.
CString TextOf(const SScreenLine& line)
{
    if (line.IsText())
        return line.text;
    const CString sample = kSamples[line.Get(kScreenMode)];
    CString text = CString(' ', kScreenDigits - sample.GetLength()) + sample;
    const int end = kScreenDigits - FirstDigitOfNumber(line);
    const bool suppressed = line.Get(kScreenAllDigits) == 0;
    for (int position = 0; suppressed && position < end && (text[position] == ' ' || text[position] == '0'); ++position)
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
    for (int position = 0; position < kScreenDigits; ++position)
    {
        const auto index = static_cast<size_t>(position);
        const int digit = DigitAt(position);
        if (isRaw)
            image[index].segments = kSegmentSample[index];
        else if (position < text.GetLength())
            image[index].segments = SegmentsOf(text[position]);
        if (line.IsDigitHidden(digit))
            image[index].segments = 0;
        image[index].point = line.IsPointShown(digit);
        image[index].upperPoint = line.IsUpperPointShown(digit);
    }
    return image;
}
