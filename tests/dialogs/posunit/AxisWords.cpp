#include "tests/dialogs/posunit/AxisWords.h"

#include <algorithm>

namespace
{

constexpr int kBitsOfNoField[] = {11, 14, 15, 22, 23, 26, 27};

DWORD BitOf(DWORD word, int bit) { return word / (DWORD{1} << bit) % 2; }

} // namespace

const std::vector<SAxisField>& AxisFields()
{
    static const std::vector<SAxisField> fields = {
        {0, 1, {"Incremental", "Absolute"}},
        {1, 1, {"Linear accel./decel.", "\"S\" accel./decel."}},
        {2, 1, {"Elapsed value (-) direction", "Elapsed value (+) direction"}},
        {3, 1, {"0.02ms", "0.005ms"}},
        {4, 1, {"Non-electric conduction ON", "Electric conduction ON"}},
        {5, 1, {"Electric conduction ON", "Non-electric conduction ON"}},
        {6, 1, {"Disable", "Enable"}},
        {7, 1, {"Non-electric conduction ON", "Electric conduction ON"}},
        {8, 3, {"x 1", "x 2", "x 5", "x 10", "x 50", "x 100", "x 500", "x 1000"}},
        {12, 2, {"Sin curve", "Secondary curve", "Cycloid curve", "The 3rd curve"}},
        {16, 1, {"Forward rotation", "Reverse rotation"}},
        {17, 1, {"Available", "Masked"}},
        {18, 2, {"2-phase input", "Direction distinction input", "Individual input"}},
        {20, 2, {"x 1", "x 2", "x 4"}},
        {24, 1, {"Forward rotation", "Reverse rotation"}},
        {25, 1, {"Pulse + Sign", "CW + CCW"}},
        {28,
         3,
         {"1 devided", "2 devided", "4 devided", "8 devided", "16 devided", "32 devided", "64 devided", "128 devided"}},
        {31, 1, {"1ms", "10ms"}},
    };
    return fields;
}

const SAxisField& AxisFieldAt(int shift)
{
    const auto& fields = AxisFields();
    return *std::find_if(fields.begin(), fields.end(), [=](const SAxisField& field) { return field.shift == shift; });
}

int ItemOf(DWORD word, const SAxisField& field)
{
    size_t value = 0;
    for (int bit = field.width; bit-- > 0;)
        value = value * 2 + BitOf(word, field.shift + bit);
    return value < field.items.size() ? static_cast<int>(value) : 0;
}

DWORD ComposedOf(DWORD word)
{
    DWORD composed = 0;
    for (const SAxisField& field : AxisFields())
        composed += static_cast<DWORD>(ItemOf(word, field)) << field.shift;
    return composed;
}

DWORD ShownOf(DWORD word)
{
    DWORD shown = ComposedOf(word);
    for (int bit : kBitsOfNoField)
        shown += BitOf(word, bit) << bit;
    return shown;
}

std::string HexText(DWORD word)
{
    std::string text;
    for (int digit = 8; digit-- > 0; word /= 16)
        text.insert(text.begin(), "0123456789ABCDEF"[word % 16]);
    return text;
}
