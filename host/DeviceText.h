// How the ladder tool writes devices and constants: DT100, R10A, K-5, H1F, f2.5.
#pragma once

#include <string>

/// A device or constant as operands show it. Numbers of bit devices are written as a decimal word and a hexadecimal
/// bit; the value of the real constant is the bits of its single-precision form. Code -1, an operand that was not
/// given, is "-"; a code without a name is shown as it is: ?81:5.
std::string DeviceText(int code, int value);

/// The code of the device with that name ("DT", "Sp.R"); -1 when there is none.
int DeviceCode(const std::string& name);
