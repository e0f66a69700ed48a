#include "host/DeviceText.h"

#include <algorithm>
#include <cstdarg>
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
    const char* name;
    int code;
    ENotation notation;
};

constexpr SDevice kDevices[] = {
    {"X", 3, kBit},
    {"Y", 2, kBit},
    {"R", 1, kBit},
    {"Sp.R", 20001, kBit},
    {"T", 4, kDecimal},
    {"C", 5, kDecimal},
    {"L", 0, kBit},
    {"E", 18, kDecimal},
    {"P", 17, kBit},
    {"WX", 67, kDecimal},
    {"WY", 66, kDecimal},
    {"WR", 65, kDecimal},
    {"Sp.WR", 20065, kDecimal},
    {"WL", 64, kDecimal},
    {"DT", 9, kDecimal},
    {"Sp.DT", 20009, kDecimal},
    {"SV", 6, kDecimal},
    {"EV", 7, kDecimal},
    {"FL", 10, kDecimal},
    {"LD", 8, kDecimal},
    {"INDEX", 15, kDecimal},
    {"K", 11, kDecimal},
    {"H", 12, kHexadecimal},
    {"f", 20, kReal},
};

[[gnu::format(printf, 1, 2)]] std::string Print(const char* format, ...)
{
    char text[48];
    va_list values;
    va_start(values, format);
    std::vsnprintf(text, sizeof text, format, values);
    va_end(values);
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
