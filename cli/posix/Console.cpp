#include "cli/Console.h"

#include <unistd.h>

void UseBinaryStreams() {}

void Write(std::FILE* stream, const std::string& text) { std::fwrite(text.data(), 1, text.size(), stream); }

bool IsTerminal(std::FILE* stream) { return isatty(fileno(stream)) != 0; }

std::vector<std::string> Arguments(int argc, char** argv) { return {argv, argv + argc}; }
