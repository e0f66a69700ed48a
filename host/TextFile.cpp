#include "host/TextFile.h"

#include <fstream>
#include <sstream>

std::string ReadFile(const std::filesystem::path& path)
{
    std::ifstream file(path, std::ios::binary);
    std::ostringstream text;
    if (!file || (file.peek() != std::ifstream::traits_type::eof() && !(text << file.rdbuf())))
        throw CFileError("the file cannot be read");
    return text.str();
}
