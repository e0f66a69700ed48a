// Real numbers of single precision and their texts, whatever the locale.
#pragma once

#include "afx/afx.h"

/// Reads a real number of at most seven significant digits, plain or with an exponent, in the notation of
/// ParsePackedReal, blanks around it trimmed, and rounds it once. False, and `value` untouched, for any other text,
/// also for one that IsRealOutOfRange.
bool ParseReal(LPCSTR text, float& value);

/// The shortest text that ParseReal reads as `value`; where there is none, the nearest number that it reads. What is no
/// number has no text.
CString FormatReal(float value);
