// What somebody may have meant who mistyped a name.
#pragma once

#include <string>
#include <vector>

/// The name that takes the fewest changes of letters, if they are few; else empty.
std::string NearestName(const std::string& mistyped, const std::vector<std::string>& names);

/// `; did you mean "maximum-speed"?`, or what there is instead: `; there are X, Y`. Empty without names.
std::string Suggestion(const std::string& mistyped, const std::vector<std::string>& names);
