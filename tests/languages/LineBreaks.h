// Where lines may be broken in the languages of the library.
#pragma once

#include <string>

/// Lines, as UTF-8 with "\r\n" between them: none begins with closing punctuation or a Thai mark, none ends with an
/// opening bracket or a vowel that goes before its consonant, and no Latin word or number is broken.
void ExpectAllowedBreaks(const std::string& lines);
