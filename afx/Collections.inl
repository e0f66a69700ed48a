// The bodies of the templates in Collections.h.
#pragma once

// ---- CArray ---------------------------------------------------------------------------------------------------------

template <class TYPE, class ARG_TYPE>
void CArray<TYPE, ARG_TYPE>::SetSize(int newSize, int growBy)
{
    ASSERT(newSize >= 0);
    if (growBy >= 0)
        m_nGrowBy = growBy;

    if (newSize > m_nMaxSize)
        Grow(newSize);
    Construct(m_nSize, newSize);
    Destroy(newSize, m_nSize);
    m_nSize = newSize;

    if (newSize == 0)
    {
        AfxFree(m_pData);
        m_pData = nullptr;
        m_nMaxSize = 0;
    }
}

template <class TYPE, class ARG_TYPE>
void CArray<TYPE, ARG_TYPE>::FreeExtra()
{
    if (m_nSize == m_nMaxSize)
        return;
    m_pData = static_cast<TYPE*>(AfxReallocate(m_pData, m_nSize * sizeof(TYPE)));
    m_nMaxSize = m_nSize;
}

template <class TYPE, class ARG_TYPE>
inline const TYPE& CArray<TYPE, ARG_TYPE>::operator[](int index) const
{
    ASSERT(index >= 0 && index < m_nSize);
    return m_pData[index];
}

template <class TYPE, class ARG_TYPE>
inline TYPE& CArray<TYPE, ARG_TYPE>::operator[](int index)
{
    ASSERT(index >= 0 && index < m_nSize);
    // NOLINTNEXTLINE(clang-analyzer-core.uninitialized.UndefReturn): there is memory once there are elements
    return m_pData[index];
}

template <class TYPE, class ARG_TYPE>
inline int CArray<TYPE, ARG_TYPE>::Add(ARG_TYPE newElement)
{
    if (m_nSize == m_nMaxSize)
    {
        SetAtGrow(m_nSize, newElement);
        return m_nSize - 1;
    }
    ::new (static_cast<void*>(m_pData + m_nSize)) TYPE(newElement);
    return m_nSize++;
}

template <class TYPE, class ARG_TYPE>
void CArray<TYPE, ARG_TYPE>::SetAtGrow(int index, ARG_TYPE newElement)
{
    TYPE copy(newElement); // may be an element of this array, which is about to move
    if (index >= m_nSize)
        SetSize(index + 1);
    (*this)[index] = std::move(copy);
}

template <class TYPE, class ARG_TYPE>
void CArray<TYPE, ARG_TYPE>::InsertAt(int index, ARG_TYPE newElement, int count)
{
    ASSERT(index >= 0 && count > 0);
    const int oldSize = m_nSize;
    const TYPE copy(newElement);
    const int first = std::max(oldSize, index); // the new elements go to the end, then to their place
    SetSize(first + count);
    try
    {
        std::fill(m_pData + first, m_pData + m_nSize, copy);
    }
    catch (...)
    {
        SetSize(oldSize);
        throw;
    }
    std::rotate(m_pData + index, m_pData + first, m_pData + m_nSize);
}

template <class TYPE, class ARG_TYPE>
void CArray<TYPE, ARG_TYPE>::RemoveAt(int index, int count)
{
    ASSERT(index >= 0 && count >= 0 && index + count <= m_nSize);
    Destroy(index, index + count);
    std::memmove(static_cast<void*>(m_pData + index), m_pData + index + count,
                 (m_nSize - index - count) * sizeof(TYPE));
    m_nSize -= count;
}

// Makes the storage hold at least `size` elements.
template <class TYPE, class ARG_TYPE>
void CArray<TYPE, ARG_TYPE>::Grow(int size)
{
    const int step = m_nGrowBy ? m_nGrowBy : std::min(std::max(m_nSize / 8, 4), 1024);
    const int newMax = size - m_nMaxSize > step ? size : m_nMaxSize + step;
    if (newMax > INT_MAX / static_cast<int>(sizeof(TYPE)))
        AfxThrowMemoryException();
    m_pData = static_cast<TYPE*>(AfxReallocate(m_pData, newMax * sizeof(TYPE)));
    m_nMaxSize = newMax;
}

template <class TYPE, class ARG_TYPE>
void CArray<TYPE, ARG_TYPE>::Construct(int first, int last)
{
    for (; first < last; ++first)
        ::new (static_cast<void*>(m_pData + first)) TYPE();
}

template <class TYPE, class ARG_TYPE>
void CArray<TYPE, ARG_TYPE>::Destroy(int first, int last)
{
    for (; first < last; ++first)
        m_pData[first].~TYPE();
}

// ---- CMap -----------------------------------------------------------------------------------------------------------

template <class KEY, class ARG_KEY, class VALUE, class ARG_VALUE>
void CMap<KEY, ARG_KEY, VALUE, ARG_VALUE>::InitHashTable(UINT hashSize, BOOL allocateNow)
{
    ASSERT(m_nCount == 0 && hashSize > 0);
    CAssoc** table = nullptr;
    if (allocateNow)
    {
        table = static_cast<CAssoc**>(AfxAllocate(hashSize * sizeof(CAssoc*)));
        std::fill(table, table + hashSize, nullptr);
    }
    AfxFree(m_pHashTable);
    m_pHashTable = table;
    m_nHashTableSize = hashSize;
}

template <class KEY, class ARG_KEY, class VALUE, class ARG_VALUE>
BOOL CMap<KEY, ARG_KEY, VALUE, ARG_VALUE>::Lookup(ARG_KEY key, VALUE& value) const
{
    const CAssoc* found = Find(key);
    if (found)
        value = found->value;
    return found != nullptr;
}

template <class KEY, class ARG_KEY, class VALUE, class ARG_VALUE>
VALUE& CMap<KEY, ARG_KEY, VALUE, ARG_VALUE>::operator[](ARG_KEY key)
{
    CAssoc* found = Find(key);
    return (found ? found : NewAssoc(key))->value;
}

template <class KEY, class ARG_KEY, class VALUE, class ARG_VALUE>
void CMap<KEY, ARG_KEY, VALUE, ARG_VALUE>::SetAt(ARG_KEY key, ARG_VALUE newValue)
{
    VALUE copy(newValue);
    (*this)[key] = std::move(copy);
}

template <class KEY, class ARG_KEY, class VALUE, class ARG_VALUE>
BOOL CMap<KEY, ARG_KEY, VALUE, ARG_VALUE>::RemoveKey(ARG_KEY key)
{
    CAssoc* found = Find(key);
    if (!found)
        return FALSE;

    CAssoc** link = &m_pHashTable[found->nHashValue % m_nHashTableSize];
    while (*link != found)
        link = &(*link)->pNext;
    *link = found->pNext;

    FreeAssoc(found);
    return TRUE;
}

template <class KEY, class ARG_KEY, class VALUE, class ARG_VALUE>
void CMap<KEY, ARG_KEY, VALUE, ARG_VALUE>::RemoveAll()
{
    for (CAssoc* next = NextInTable(nullptr); next;)
    {
        CAssoc* const assoc = next;
        next = NextInTable(assoc);
        assoc->key.~KEY();
        assoc->value.~VALUE();
    }
    while (m_pBlocks)
    {
        CPlex* const block = m_pBlocks;
        m_pBlocks = block->pNext;
        AfxFree(block);
    }
    AfxFree(m_pHashTable);
    m_pHashTable = nullptr;
    m_pFreeList = nullptr;
    m_nCount = 0;
}

template <class KEY, class ARG_KEY, class VALUE, class ARG_VALUE>
void CMap<KEY, ARG_KEY, VALUE, ARG_VALUE>::GetNextAssoc(POSITION& position, KEY& key, VALUE& value) const
{
    const CAssoc* assoc =
        position == BEFORE_START_POSITION ? NextInTable(nullptr) : reinterpret_cast<const CAssoc*>(position);
    key = assoc->key;
    value = assoc->value;
    position = reinterpret_cast<POSITION>(NextInTable(assoc));
}

template <class KEY, class ARG_KEY, class VALUE, class ARG_VALUE>
typename CMap<KEY, ARG_KEY, VALUE, ARG_VALUE>::CAssoc* CMap<KEY, ARG_KEY, VALUE, ARG_VALUE>::Find(ARG_KEY key) const
{
    if (!m_pHashTable)
        return nullptr;
    const UINT hash = HashKey<ARG_KEY>(key);
    CAssoc* assoc = m_pHashTable[hash % m_nHashTableSize];
    while (assoc && !(assoc->nHashValue == hash && assoc->key == key))
        assoc = assoc->pNext;
    return assoc;
}

// The association after another one, bucket by bucket; after null the first.
template <class KEY, class ARG_KEY, class VALUE, class ARG_VALUE>
typename CMap<KEY, ARG_KEY, VALUE, ARG_VALUE>::CAssoc* CMap<KEY, ARG_KEY, VALUE, ARG_VALUE>::NextInTable(
    const CAssoc* assoc) const
{
    if (!m_pHashTable)
        return nullptr;
    if (assoc && assoc->pNext)
        return assoc->pNext;
    for (UINT bucket = assoc ? assoc->nHashValue % m_nHashTableSize + 1 : 0; bucket < m_nHashTableSize; ++bucket)
    {
        if (m_pHashTable[bucket])
            return m_pHashTable[bucket];
    }
    return nullptr;
}

template <class KEY, class ARG_KEY, class VALUE, class ARG_VALUE>
void CMap<KEY, ARG_KEY, VALUE, ARG_VALUE>::AllocateBlock()
{
    void* const storage = AfxAllocate(sizeof(CPlex) + m_nBlockSize * sizeof(CAssoc));
    CPlex* const block = static_cast<CPlex*>(storage);
    block->pNext = m_pBlocks;
    m_pBlocks = block;

    CAssoc* const first = reinterpret_cast<CAssoc*>(block + 1);
    for (CAssoc* assoc = first + m_nBlockSize; assoc-- != first;)
    {
        assoc->pNext = m_pFreeList;
        m_pFreeList = assoc;
    }
}

// Everything that can fail is done before the map changes.
template <class KEY, class ARG_KEY, class VALUE, class ARG_VALUE>
typename CMap<KEY, ARG_KEY, VALUE, ARG_VALUE>::CAssoc* CMap<KEY, ARG_KEY, VALUE, ARG_VALUE>::NewAssoc(ARG_KEY key)
{
    if (!m_pHashTable)
        InitHashTable(m_nHashTableSize);
    if (!m_pFreeList)
        AllocateBlock();

    CAssoc* const assoc = m_pFreeList;
    ::new (static_cast<void*>(&assoc->key)) KEY(key);
    ::new (static_cast<void*>(&assoc->value)) VALUE();
    m_pFreeList = assoc->pNext;

    assoc->nHashValue = HashKey<ARG_KEY>(key);
    CAssoc*& bucket = m_pHashTable[assoc->nHashValue % m_nHashTableSize];
    assoc->pNext = bucket;
    bucket = assoc;
    ++m_nCount;
    return assoc;
}

template <class KEY, class ARG_KEY, class VALUE, class ARG_VALUE>
void CMap<KEY, ARG_KEY, VALUE, ARG_VALUE>::FreeAssoc(CAssoc* assoc)
{
    assoc->key.~KEY();
    assoc->value.~VALUE();
    assoc->pNext = m_pFreeList;
    m_pFreeList = assoc;
    if (--m_nCount == 0)
        RemoveAll();
}
