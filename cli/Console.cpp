#include "cli/Console.h"

#include <array>

std::string ReadAll(std::FILE* stream)
{
    std::string text;
    std::array<char, 65536> part;
    while (const size_t count = std::fread(part.data(), 1, part.size(), stream))
        text.append(part.data(), count);
    return text;
}
