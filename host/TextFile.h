// Reading the files that people write.
#pragma once

#include <filesystem>
#include <stdexcept>
#include <string>

/// A file that is not what it should be: the message says where and why.
class CFileError : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

/// The bytes of a file. Throws CFileError.
std::string ReadFile(const std::filesystem::path& path);
