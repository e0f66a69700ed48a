// Reading and writing of the values that stand in edit boxes and labels.
//
// The readers never fail on any text: they report through their result whether it was well-formed. White space in the
// sense of the C locale is trimmed where it says so. Nothing here depends on a dialog.
#pragma once

#include "afx/afx.h"

/// A text without the white space at its ends.
CString Trimmed(LPCSTR text);

/// Reads a signed decimal number; blanks around it are trimmed. `ok`, when given, receives 1 or 0. A malformed or empty
/// text gives 0. A lone "-" is a well-formed 0. The arithmetic wraps in 64 bits.
LONGLONG ParseDecimal64(LPCSTR text, BOOL* ok = nullptr);

/// Reads an entry: as ParseDecimal64, but a number outside the 64-bit range becomes the nearest bound instead of
/// wrapping, so that no range check takes it for another number.
LONGLONG ParseEntry64(LPCSTR text, BOOL* ok = nullptr);

/// Reads a hexadecimal number of any length and either case; blanks around it are trimmed, the low 32 bits are kept. An
/// empty text is a well-formed 0. At a foreign character `ok` becomes 0 and the result is the value read so far.
DWORD ParseHex32(LPCSTR text, BOOL* ok = nullptr);

/// Writes the number of a bit device (word x 16 + bit, 0..15999): the word in decimal, the bit as a hexadecimal digit,
/// right-aligned in four places unless `compact`. Returns 0, and leaves the buffer alone, for any other number. The
/// buffer holds at least five characters.
int FormatBitDeviceNumber(int number, char* buffer, BOOL compact);

/// Reads the number of a bit device; blanks count as nothing. 0 for a malformed text. No upper limit is checked; a
/// number above the 32-bit range becomes the highest one.
int ParseBitDeviceNumber(LPCSTR text, int& number);

/// The name of a device, "DT" say, in the current language; empty for an unknown code.
CString FormatDeviceName(short code);

/// A device number in the notation of its device: bit devices as FormatBitDeviceNumber (compact), H in hexadecimal, f
/// as FormatPackedReal, everything else, and a bit number without a notation, in decimal.
CString FormatDeviceNumber(short code, int number);

/// Reads back what FormatDeviceNumber writes, blanks around it trimmed. A well-formed number outside the 32-bit range
/// becomes the nearest one. False, and `number` untouched, for a malformed text.
BOOL ParseDeviceNumber(short code, LPCSTR text, int& number);

/// Reads an unsigned fixed-point number with at most `whole` digits before the point and `decimals` after it, not
/// counting zeros at the end; blanks around it are trimmed. The value is in units of the last decimal: "2.5" with two
/// decimals is 250. False, and `value` untouched, for a malformed text or one without any digit.
BOOL ParseFixed(LPCSTR text, int whole, int decimals, LONGLONG& value);

/// The notation of fixed-point values: a sign, the whole part and `decimals` (0..9) digits of fraction. 1250 with two
/// decimals is "12.50".
CString FormatFixed(LONGLONG value, int decimals);
CString FormatDecimal64(LONGLONG value);
/// Eight upper-case hexadecimal digits.
CString FormatHex32(DWORD value);

// Packed real numbers: bits 0..23 an unsigned decimal mantissa, bits 24..30 a decimal exponent biased by 70, bit 31 the
// sign; the value is mantissa x 10^(exponent - 70).

struct SPackedReal
{
    bool negative;
    DWORD mantissa;
    int exponent;
};

SPackedReal UnpackReal(DWORD packed);

constexpr int kPackedRealBuffer = 50;

/// Writes a packed real number, with an exponent ("25E+1") or without ("250"). The buffer holds kPackedRealBuffer
/// characters; a longer text is cut. Returns the buffer.
char* FormatPackedReal(DWORD packed, char* buffer, BOOL exponentNotation);

/// Reads a real number into its packed form. In `realMode` 1 it must have a single-precision magnitude and at most
/// seven significant digits, else it must fit the packed form. `sign` 0 or 1 is the sign to store; when negative the
/// text's own sign counts. Returns 0, with `packed` untouched, for anything else.
int ParsePackedReal(LPCSTR text, DWORD& packed, BYTE realMode, signed char sign);

/// Whether a text, otherwise well-formed, is a number that is too large or too small for single precision; 0 is not.
bool IsRealOutOfRange(LPCSTR text);

/// As much of a text as so many bytes hold, in whole characters.
CString LeftWhole(const CString& text, int bytes);

/// What becomes of a text that was `before` when the user has entered more than so many bytes: what goes on too long is
/// cut, and what was put before a part of the text finds no room.
CString FitEntered(const CString& entered, const CString& before, int bytes);

/// Takes the first line that fits into `width` pixels off `text`, broken after the last blank that fits, or before the
/// first character that does not fit; "\r\n" always ends a line. At least one character is taken. A break before a
/// character moves a few characters back where East Asian or Thai texts must not be broken: before closing punctuation
/// or a Thai mark, behind an opening bracket, in a word of another script.
CString TakeFittingLine(CDC* dc, int width, CString& text);
