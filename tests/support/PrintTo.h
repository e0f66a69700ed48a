// Makes the library's types readable in the messages of failed tests.
#pragma once

#include "afx/afx.h"

#include <ostream>

// Found by GoogleTest because it stands in the namespace of the type.
inline void PrintTo(const CString& text, std::ostream* out) { *out << '"' << static_cast<LPCSTR>(text) << '"'; }

inline std::ostream& operator<<(std::ostream& out, const CString& text) { return out << static_cast<LPCSTR>(text); }
