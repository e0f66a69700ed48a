// The console: everything in UTF-8, whatever the system's code page.
#pragma once

#include <cstdio>
#include <string>
#include <vector>

/// Bytes are written as they are from now on: "\n" stays one character on Windows too.
void UseBinaryStreams();
/// To a console in its own characters, to a file or pipe as UTF-8.
void Write(std::FILE* stream, const std::string& text);
bool IsTerminal(std::FILE* stream);
/// Everything up to the end.
std::string ReadAll(std::FILE* stream);

/// The arguments of the program. `argv` is what main was given, which lacks characters on Windows.
std::vector<std::string> Arguments(int argc, char** argv);
