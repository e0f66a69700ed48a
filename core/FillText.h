// Texts of the resource library with gaps for values, written as printf does: "(%d - %d)", "Y%1d", "%2.1f", "%s".
//
// The texts come from libraries that are translated and built elsewhere, so none of them is trusted as a format string:
// whatever stands in a text, only the values given are read, and each as what it is.
#pragma once

#include "afx/afx.h"

#include <initializer_list>

/// A value for a gap: a decimal or hexadecimal number, a real number or a text. A text is not copied.
class CGapValue
{
public:
    CGapValue(int number) : m_kind(kNumber), m_number(number), m_unsignedBits(UINT_MAX) {}
    CGapValue(LONGLONG number) : m_kind(kNumber), m_number(number) {}
    CGapValue(double real) : m_kind(kReal), m_real(real) {}
    CGapValue(LPCSTR text) : m_kind(kText), m_text(text) {}
    CGapValue(const CString& text) : m_kind(kText), m_text(text) {}

    /// Whether a directive that ends with `conversion` prints this kind of value.
    bool Fits(char conversion) const;
    /// Prints the value by a directive that it fits: `layout` is its beginning, "%02", `conversion` its last character.
    CString Print(const CString& layout, char conversion) const;

private:
    enum EKind
    {
        kNumber,
        kReal,
        kText
    };

    EKind m_kind;
    LONGLONG m_number = 0;
    ULONGLONG m_unsignedBits = ~0ull; // those that %X and its kin show
    double m_real = 0;
    LPCSTR m_text = nullptr;
};

/// Fills the gaps of a text with values, in order. %d, %i, %u, %x, %X and %o print numbers, whatever size they name; %f
/// prints real numbers, always with a point; %s prints texts. Flags, width and precision count, each of at most two
/// digits. "%%" is a percent sign. Everything else, a directive of another kind than the next value or behind the last
/// one as well, is copied as it stands; values that find no gap are left out.
CString FillText(LPCSTR text, std::initializer_list<CGapValue> values);
/// The same with a string of the current resource library; empty when there is none.
CString FillText(UINT id, std::initializer_list<CGapValue> values);
