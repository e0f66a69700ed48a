#include "dialogs/process/SegmentFont.h"

namespace
{

constexpr BYTE kUnknown = kTopSegment | kMiddleSegment | kBottomSegment;

constexpr BYTE kDigits[] = {0x3F, 0x06, 0x5B, 0x4F, 0x66, 0x6D, 0x7D, 0x07, 0x7F, 0x6F};

constexpr BYTE kLetters[] = {
    0x77, 0x7C, 0x39, 0x5E, 0x79, 0x71, 0x3D, // A b C d E F G
    0x76, 0x30, 0x1E, 0x75, 0x38, 0x55, 0x54, // H I J K L M n
    0x5C, 0x73, 0x67, 0x50, 0x6D, 0x78,       // o P q r S t
    0x3E, 0x1C, 0x6A, 0x76, 0x6E, 0x5B,       // U v W X y Z
};

struct SSign
{
    char sign;
    BYTE segments;
};

constexpr SSign kSigns[] = {{' ', 0x00}, {'-', 0x40}, {'_', 0x08}, {'=', 0x48}, {'\'', 0x02}, {'"', 0x22},
                            {'(', 0x39}, {')', 0x0F}, {'[', 0x39}, {']', 0x0F}, {'?', 0x53},  {'*', 0x63},
                            {'/', 0x52}, {'!', 0x0A}, {'.', 0x08}, {',', 0x0C}, {'^', 0x23}};

} // namespace

BYTE SegmentsOf(char character)
{
    if (character >= '0' && character <= '9')
        return kDigits[character - '0'];
    if (character >= 'A' && character <= 'Z')
        return kLetters[character - 'A'];
    if (character >= 'a' && character <= 'z')
        return kLetters[character - 'a'];
    for (const SSign& row : kSigns)
        if (row.sign == character)
            return row.segments;
    return kUnknown;
}
