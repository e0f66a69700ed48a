// Names of files, as the command line has them.
#pragma once

#include <filesystem>
#include <string>

inline std::filesystem::path PathOf(const std::string& utf8)
{
    return std::filesystem::path(std::u8string(utf8.begin(), utf8.end()));
}
