// The forms of output.
#pragma once

#include <string>

enum class EFormat
{
    Text,
    Json,
    Csv
};

/// A number as people write device codes and the like: "0x113".
std::string Hexadecimal(unsigned number);
