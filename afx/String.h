// CString: a text of single-byte or double-byte characters that manages its own storage.
//
// Lengths and positions count bytes. A CString is one pointer in size and converts to LPCSTR at no cost; the pointer is
// valid until the string is changed. Operations that need storage throw a CMemoryException when there is none and leave
// the string as it was. A null LPCSTR counts as an empty text everywhere.
#pragma once

#include "afx/Export.h"

#include <cstdarg>
#include <cstring>

class AFX_API CString
{
public:
    CString() = default;
    CString(const CString& other);
    CString(CString&& other) noexcept : m_pchData(other.m_pchData) { other.m_pchData = nullptr; }
    CString(LPCSTR text);
    CString(LPCSTR text, int length);
    explicit CString(char c, int count = 1);
    ~CString() { Empty(); }

    CString& operator=(const CString& other);
    CString& operator=(CString&& other) noexcept;
    CString& operator=(LPCSTR text);
    CString& operator=(char c);

    int GetLength() const { return m_pchData ? Header()->length : 0; }
    BOOL IsEmpty() const { return GetLength() == 0; }
    /// Also gives the storage back.
    void Empty();

    operator LPCSTR() const { return m_pchData ? m_pchData : ""; }
    char operator[](int index) const { return static_cast<LPCSTR>(*this)[index]; }
    char GetAt(int index) const { return (*this)[index]; }
    /// Replaces a character of the text.
    void SetAt(int index, char c);

    CString& operator+=(const CString& other);
    CString& operator+=(LPCSTR text);
    CString& operator+=(char c);

    /// Below 0, 0 or above 0 as this text is before, equal to or after the other, byte by byte.
    int Compare(LPCSTR other) const { return std::strcmp(*this, other ? other : ""); }
    /// The same with a-z equal to A-Z.
    int CompareNoCase(LPCSTR other) const;

    CString Mid(int first, int count) const;
    CString Mid(int first) const { return Mid(first, GetLength()); }
    CString Left(int count) const { return Mid(0, count); }
    CString Right(int count) const;

    // Positions of the first or last match; -1 when there is none.
    int Find(char c, int start = 0) const;
    int Find(LPCSTR text, int start = 0) const;
    int ReverseFind(char c) const;
    int FindOneOf(LPCSTR characters) const;

    /// Cut white space off one end.
    void TrimLeft();
    void TrimRight();
    void TrimRight(char target);
    // Only a-z and A-Z change, and never the second byte of a character.
    void MakeUpper();
    void MakeLower();
    /// Replace every occurrence and return their number.
    int Replace(char oldChar, char newChar);
    int Replace(LPCSTR oldText, LPCSTR newText);

    /// Prints as printf does; the arguments may be parts of this string. The sizes are those of 32-bit Windows on every
    /// system: %d and %ld print 32 bits, %I64d and %lld 64.
    void Format(LPCSTR format, ...);
    void FormatV(LPCSTR format, va_list arguments);

    /// Loads a string of any length from the current resource library. FALSE, and an empty text, when it is not there.
    BOOL LoadString(UINT id);

    /// Storage for at least minLength characters and a terminator, holding the text so far, to be written to until
    /// ReleaseBuffer is called.
    LPSTR GetBuffer(int minLength);
    /// The same, with the length set at once.
    LPSTR GetBufferSetLength(int newLength);
    /// Ends writing; -1 measures the text up to its terminator.
    void ReleaseBuffer(int newLength = -1);
    /// Gives back the storage that the text does not need.
    void FreeExtra();

private:
    struct SHeader
    {
        int length;
        int capacity; // without the terminator
    };

    SHeader* Header() const { return reinterpret_cast<SHeader*>(m_pchData) - 1; }
    int Capacity() const { return m_pchData ? Header()->capacity : 0; }
    void SetLength(int length);
    void Reserve(int capacity);
    void Assign(LPCSTR text, int length);
    void Append(LPCSTR text, int length);
    void Splice(int position, int count, LPCSTR text, int length);

    char* m_pchData = nullptr; // the text behind its header; null: no storage, an empty text
};

static_assert(sizeof(CString) == sizeof(char*), "a CString is laid out as one pointer");

inline CString operator+(CString left, const CString& right)
{
    left += right;
    return left;
}
inline CString operator+(CString left, LPCSTR right)
{
    left += right;
    return left;
}
inline CString operator+(CString left, char right)
{
    left += right;
    return left;
}
inline CString operator+(LPCSTR left, const CString& right) { return CString(left) + right; }
inline CString operator+(char left, const CString& right) { return CString(left) + right; }

inline bool operator==(const CString& a, const CString& b) { return a.Compare(b) == 0; }
inline bool operator==(const CString& a, LPCSTR b) { return a.Compare(b) == 0; }
inline bool operator==(LPCSTR a, const CString& b) { return b.Compare(a) == 0; }
inline bool operator!=(const CString& a, const CString& b) { return !(a == b); }
inline bool operator!=(const CString& a, LPCSTR b) { return !(a == b); }
inline bool operator!=(LPCSTR a, const CString& b) { return !(a == b); }
inline bool operator<(const CString& a, const CString& b) { return a.Compare(b) < 0; }
inline bool operator<(const CString& a, LPCSTR b) { return a.Compare(b) < 0; }
inline bool operator<(LPCSTR a, const CString& b) { return b.Compare(a) > 0; }
inline bool operator>(const CString& a, const CString& b) { return b < a; }
inline bool operator>(const CString& a, LPCSTR b) { return b < a; }
inline bool operator>(LPCSTR a, const CString& b) { return b < a; }
inline bool operator<=(const CString& a, const CString& b) { return !(b < a); }
inline bool operator<=(const CString& a, LPCSTR b) { return !(b < a); }
inline bool operator<=(LPCSTR a, const CString& b) { return !(b < a); }
inline bool operator>=(const CString& a, const CString& b) { return !(a < b); }
inline bool operator>=(const CString& a, LPCSTR b) { return !(a < b); }
inline bool operator>=(LPCSTR a, const CString& b) { return !(a < b); }
