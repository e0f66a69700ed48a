#include "host/TextFile.h"

#include <fstream>
#include <sstream>

std::string ReadFile(const std::filesystem::path& path)
{
    std::error_code unknown;
    std::ifstream file(path, std::ios::binary);
    std::ostringstream text;
    if (!file || std::filesystem::is_directory(path, unknown) ||
        (file.peek() != std::ifstream::traits_type::eof() && !(text << file.rdbuf())))
        throw CFileError("the file cannot be read");
    return text.str();
}
