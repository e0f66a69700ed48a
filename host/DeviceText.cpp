#include "host/DeviceText.h"

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <iterator>

namespace
{
enum ENotation
{
    kDecimal,
    kHexadecimal,
    kBit,
    kReal
};

struct SDevice
{
    int code;
    const char* name;
    ENotation notation;
};

constexpr SDevice kDevices[] = {
    {3, "X", kBit},
    {2, "Y", kBit},
    {1, "R", kBit},
    {20001, "Sp.R", kBit},
    {4, "T", kDecimal},
    {5, "C", kDecimal},
    {0, "L", kBit},
    {18, "E", kDecimal},
    {17, "P", kBit},
    {67, "WX", kDecimal},
    {66, "WY", kDecimal},
    {65, "WR", kDecimal},
    {20065, "Sp.WR", kDecimal},
    {64, "WL", kDecimal},
    {9, "DT", kDecimal},
    {20009, "Sp.DT", kDecimal},
    {6, "SV", kDecimal},
    {7, "EV", kDecimal},
    {10, "FL", kDecimal},
    {8, "LD", kDecimal},
    {15, "INDEX", kDecimal},
    {11, "K", kDecimal},
    {12, "H", kHexadecimal},
    {20, "f", kReal},
};

template <typename... T>
std::string Print(const char* format, T... values)
{
    char text[48];
    std::snprintf(text, sizeof text, format, values...);
    return text;
}

std::string BitNumber(int number)
{
    if (number < 0)
        return Print("%d", number);
    const std::string word = number < 16 ? "" : Print("%d", number / 16);
    return word + Print("%X", static_cast<unsigned>(number) % 16);
}

std::string RealNumber(int bits)
{
    float real;
    static_assert(sizeof real == sizeof bits, "single precision");
    std::memcpy(&real, &bits, sizeof real);
    // The shortest form that reads back as the same number. Windows writes three digits of the exponent where two do.
    for (int digits = 1; digits <= 9; ++digits)
    {
        std::string text = Print("%.*g", digits, static_cast<double>(real));
        if (std::strtof(text.c_str(), nullptr) != real && digits < 9)
            continue;
        const size_t exponent = text.find_first_of("eE");
        if (exponent != std::string::npos && text.size() - exponent == 5 && text[exponent + 2] == '0')
            text.erase(exponent + 2, 1);
        return text;
    }
    return {};
}

std::string NumberText(ENotation notation, int value)
{
    switch (notation)
    {
    case kHexadecimal:
        return Print("%X", static_cast<unsigned>(value));
    case kBit:
        return BitNumber(value);
    case kReal:
        return RealNumber(value);
    default:
        return Print("%d", value);
    }
}
} // namespace

std::string DeviceText(int code, int value)
{
    if (code == -1)
        return "-";
    const auto device =
        std::find_if(std::begin(kDevices), std::end(kDevices), [code](const SDevice& d) { return d.code == code; });
    if (device == std::end(kDevices))
        return Print("?%d:%d", code, value);
    return device->name + NumberText(device->notation, value);
}

int DeviceCode(const std::string& name)
{
    const auto device =
        std::find_if(std::begin(kDevices), std::end(kDevices), [&](const SDevice& d) { return d.name == name; });
    return device == std::end(kDevices) ? -1 : device->code;
}
