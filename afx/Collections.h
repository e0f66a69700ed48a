// Arrays and hash maps. Elements are moved as raw bytes when storage grows; every operation that needs storage throws a
// CMemoryException when there is none and leaves the container as it was. Indexes count from 0.
#pragma once

#include "afx/Object.h"
#include "afx/String.h"

#include <algorithm>
#include <climits>
#include <cstring>
#include <new>
#include <utility>

/// An array that grows. TYPE may be anything whose objects can be moved as raw bytes; ARG_TYPE is how elements are
/// passed.
template <class TYPE, class ARG_TYPE = const TYPE&>
class CArray : public CObject
{
public:
    CArray() = default;
    ~CArray() override { RemoveAll(); }

    int GetSize() const { return m_nSize; }
    int GetCount() const { return m_nSize; }
    BOOL IsEmpty() const { return m_nSize == 0; }
    int GetUpperBound() const { return m_nSize - 1; }

    /// Makes the array `newSize` elements long. New elements are zero but for what their constructors set. When the
    /// storage has to grow it grows by at least `growBy` elements; 0 means one eighth of the size, no less than 4 and
    /// no more than 1024, and -1 keeps what was set before.
    void SetSize(int newSize, int growBy = -1);
    /// Gives back the storage that the elements do not need.
    void FreeExtra();
    void RemoveAll() { SetSize(0); }

    const TYPE& GetAt(int index) const { return (*this)[index]; }
    void SetAt(int index, ARG_TYPE newElement) { (*this)[index] = newElement; }
    TYPE& ElementAt(int index) { return (*this)[index]; }
    const TYPE& ElementAt(int index) const { return (*this)[index]; }
    const TYPE& operator[](int index) const;
    TYPE& operator[](int index);
    /// The elements in a row, valid until the size changes; null when there are none.
    const TYPE* GetData() const { return m_pData; }
    TYPE* GetData() { return m_pData; }

    /// Appends an element, which may be one of this array, and returns its index.
    int Add(ARG_TYPE newElement);
    /// Sets an element; the array grows when the index is past its end.
    void SetAtGrow(int index, ARG_TYPE newElement);
    /// Inserts an element `count` times; the array grows when the index is past its end.
    void InsertAt(int index, ARG_TYPE newElement, int count = 1);
    void RemoveAt(int index, int count = 1);

private:
    static_assert(alignof(TYPE) <= alignof(std::max_align_t), "the elements need more alignment than memory has");

    void Grow(int size);
    void Construct(int first, int last);
    void Destroy(int first, int last);

    TYPE* m_pData = nullptr;
    int m_nSize = 0;
    int m_nMaxSize = 0; // elements that the storage holds
    int m_nGrowBy = 0;
};

/// An array of texts, which are copied.
class AFX_API CStringArray : public CArray<CString, LPCSTR>
{
    DECLARE_DYNAMIC(CStringArray)
};

class AFX_API CDWordArray : public CArray<DWORD, DWORD>
{
    DECLARE_DYNAMIC(CDWordArray)
};

/// A place in a map; null is the end.
struct AFX_POSITION;
typedef AFX_POSITION* POSITION;
#define BEFORE_START_POSITION (reinterpret_cast<POSITION>(static_cast<INT_PTR>(-1)))

template <class ARG_KEY>
inline UINT HashKey(ARG_KEY key)
{
    return static_cast<UINT>((DWORD_PTR)key) >> 4; // numbers and pointers alike
}

/// A hash map. Its associations live in blocks of `blockSize` and do not move.
template <class KEY, class ARG_KEY, class VALUE, class ARG_VALUE>
class CMap : public CObject
{
public:
    explicit CMap(int blockSize = 10) : m_nBlockSize(blockSize) {}
    ~CMap() override { RemoveAll(); }

    int GetCount() const { return m_nCount; }
    BOOL IsEmpty() const { return m_nCount == 0; }
    UINT GetHashTableSize() const { return m_nHashTableSize; }
    /// Sets the number of buckets of an empty map; a prime number spreads best. The buckets are allocated now or with
    /// the first association.
    void InitHashTable(UINT hashSize, BOOL allocateNow = TRUE);

    /// FALSE, and `value` as it was, when there is no such key.
    BOOL Lookup(ARG_KEY key, VALUE& value) const;
    /// The value of a key, added when it was not there.
    VALUE& operator[](ARG_KEY key);
    void SetAt(ARG_KEY key, ARG_VALUE newValue);
    BOOL RemoveKey(ARG_KEY key);
    /// Frees the associations and the buckets; their number stays.
    void RemoveAll();

    // Walks the associations in no particular order:
    //     for (POSITION at = map.GetStartPosition(); at;) map.GetNextAssoc(at, key, value);
    POSITION GetStartPosition() const { return m_nCount ? BEFORE_START_POSITION : nullptr; }
    void GetNextAssoc(POSITION& position, KEY& key, VALUE& value) const;

private:
    struct CAssoc
    {
        CAssoc* pNext;
        UINT nHashValue;
        KEY key;
        VALUE value;
    };
    // A block of storage for associations, in front of them.
    struct alignas(CAssoc) CPlex
    {
        CPlex* pNext;
    };

    static constexpr UINT kDefaultHashTableSize = 17;

    CAssoc* Find(ARG_KEY key) const;
    CAssoc* NextInTable(const CAssoc* assoc) const;
    void AllocateBlock();
    CAssoc* NewAssoc(ARG_KEY key);
    void FreeAssoc(CAssoc* assoc);

    CAssoc** m_pHashTable = nullptr; // m_nHashTableSize chains of associations
    UINT m_nHashTableSize = kDefaultHashTableSize;
    int m_nCount = 0;
    CAssoc* m_pFreeList = nullptr;
    CPlex* m_pBlocks = nullptr;
    int m_nBlockSize;
};

#include "afx/Collections.inl"
