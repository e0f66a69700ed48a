#include <gtest/gtest.h>

#include "afx/afx.h"
#include "tests/core/FailingMemory.h"
#include "tests/support/PrintTo.h"

#include <map>
#include <vector>

namespace
{

std::vector<size_t> allocations;

BOOL PASCAL RecordingHook(size_t size, BOOL, LONG)
{
    allocations.push_back(size);
    return TRUE;
}

// While it lives, the sizes of allocations are recorded.
class CRecordedAllocations
{
public:
    CRecordedAllocations()
    {
        allocations.clear();
        AfxSetAllocHook(RecordingHook);
    }
    ~CRecordedAllocations() { AfxSetAllocHook(nullptr); }
};

std::vector<int> Elements(const CArray<int, int>& array)
{
    return std::vector<int>(array.GetData(), array.GetData() + array.GetSize());
}

CArray<int, int>& Fill(CArray<int, int>& array, std::vector<int> elements)
{
    for (int element : elements)
        array.Add(element);
    return array;
}

// ---- CArray ---------------------------------------------------------------------------------------------------------

TEST(ArrayTest, IsEmptyAtFirst)
{
    const CArray<int, int> array;
    EXPECT_EQ(array.GetSize(), 0);
    EXPECT_EQ(array.GetUpperBound(), -1);
    EXPECT_TRUE(array.IsEmpty());
    EXPECT_EQ(array.GetData(), nullptr);
}

TEST(ArrayTest, AddsAndReads)
{
    CArray<int, int> array;
    EXPECT_EQ(array.Add(5), 0);
    EXPECT_EQ(array.Add(6), 1);
    EXPECT_EQ(array.GetAt(0), 5);
    EXPECT_EQ(array[1], 6);
    array.SetAt(0, 7);
    array.ElementAt(1)++;
    EXPECT_EQ(Elements(array), (std::vector<int>{7, 7}));
    EXPECT_EQ(array.GetCount(), 2);
}

TEST(ArrayTest, GrowsByAnEighthBetween4And1024)
{
    CArray<int, int> array;
    const CRecordedAllocations recorded;
    std::vector<size_t> expected;
    for (int size = 0, capacity = 0; size < 20000; ++size)
    {
        if (size == capacity)
        {
            capacity += std::min(std::max(size / 8, 4), 1024);
            expected.push_back(static_cast<size_t>(capacity) * sizeof(int));
        }
        array.Add(size);
    }
    EXPECT_EQ(allocations, expected);
}

TEST(ArrayTest, GrowsByTheStepThatIsSet)
{
    CArray<int, int> array;
    const CRecordedAllocations recorded;
    array.SetSize(0, 100);
    for (int i = 0; i < 250; ++i)
        array.Add(i);
    EXPECT_EQ(allocations, (std::vector<size_t>{400, 800, 1200}));
}

TEST(ArrayTest, GrowsToTheSizeThatIsAskedForWhenTheStepIsSmaller)
{
    CArray<int, int> array;
    const CRecordedAllocations recorded;
    array.SetSize(50);
    array.SetSize(51);
    EXPECT_EQ(allocations, (std::vector<size_t>{200, 56 * sizeof(int)}));
}

TEST(ArrayTest, NewElementsAreZero)
{
    CArray<int, int> array;
    Fill(array, {1, 2, 3});
    array.SetSize(1);
    array.SetSize(4);
    EXPECT_EQ(Elements(array), (std::vector<int>{1, 0, 0, 0}));
}

// A class whose constructor leaves a member to the array.
struct SPartlySet
{
    int set = 7;
    int rest;
};

TEST(ArrayTest, NewElementsAreZeroButForWhatTheirConstructorSets)
{
    CArray<SPartlySet> array;
    SPartlySet used;
    used.set = 1;
    used.rest = 2;
    for (int i = 0; i < 4; ++i)
        array.Add(used);
    array.SetSize(1);
    array.SetSize(4);
    for (int i = 1; i < 4; ++i)
    {
        EXPECT_EQ(array[i].set, 7);
        EXPECT_EQ(array[i].rest, 0);
    }
}

TEST(ArrayTest, GivesSpareStorageBack)
{
    CArray<int, int> array;
    Fill(array, {1, 2, 3, 4, 5});
    const CRecordedAllocations recorded;
    array.FreeExtra();
    array.FreeExtra();
    EXPECT_EQ(allocations, (std::vector<size_t>{20}));
    EXPECT_EQ(Elements(array), (std::vector<int>{1, 2, 3, 4, 5}));
    array.RemoveAll();
    array.FreeExtra();
    EXPECT_EQ(array.GetData(), nullptr);
}

TEST(ArrayTest, Inserts)
{
    CArray<int, int> array;
    array.InsertAt(0, 3);
    array.InsertAt(0, 1);
    array.InsertAt(1, 2, 3);
    EXPECT_EQ(Elements(array), (std::vector<int>{1, 2, 2, 2, 3}));
    array.InsertAt(7, 9, 2);
    EXPECT_EQ(Elements(array), (std::vector<int>{1, 2, 2, 2, 3, 0, 0, 9, 9}));
}

TEST(ArrayTest, Removes)
{
    CArray<int, int> array;
    Fill(array, {1, 2, 3, 4, 5});
    array.RemoveAt(1);
    array.RemoveAt(2, 2);
    EXPECT_EQ(Elements(array), (std::vector<int>{1, 3}));
    array.RemoveAt(0, 0);
    array.RemoveAt(0, 2);
    EXPECT_TRUE(array.IsEmpty());
}

TEST(ArrayTest, SetsPastItsEnd)
{
    CArray<int, int> array;
    array.SetAtGrow(2, 5);
    array.SetAtGrow(0, 4);
    EXPECT_EQ(Elements(array), (std::vector<int>{4, 0, 5}));
}

TEST(ArrayTest, AddsItsOwnElements)
{
    CArray<CString, const CString&> array;
    array.Add("a text that needs storage");
    for (int i = 0; i < 100; ++i)
        array.Add(array[0]);
    array.SetAtGrow(200, array[0]);
    array.InsertAt(0, array[0], 50);
    for (int i : {0, 1, 50, 150, 250})
        EXPECT_EQ(array[i], "a text that needs storage") << i;
}

TEST(ArrayTest, AFailedGrowthLeavesTheArray)
{
    const auto attempt = [](auto operation) {
        CArray<int, int> array;
        Fill(array, {1, 2, 3, 4});
        {
            const CAllocationFaults memory(0);
            EXPECT_THROW(operation(array), CMemoryException*);
        }
        EXPECT_EQ(Elements(array), (std::vector<int>{1, 2, 3, 4}));
        array.Add(5);
        EXPECT_EQ(Elements(array), (std::vector<int>{1, 2, 3, 4, 5}));
    };
    attempt([](auto& array) { array.Add(9); });
    attempt([](auto& array) { array.SetSize(100); });
    attempt([](auto& array) { array.InsertAt(1, 9); });
    attempt([](auto& array) { array.SetAtGrow(4, 9); });
}

TEST(ArrayTest, AFailedCopyOfAnElementLeavesTheArray)
{
    const int failures = WithEveryAllocationFailing(
        [] {
            CStringArray array;
            try
            {
                for (LPCSTR text : {"a", "b", "c", "d", "e"})
                    array.Add(text);
                array.InsertAt(1, "x", 3);
                return array.GetSize() == 8 && array[1] == "x" && array[3] == "x" && array[7] == "e" ? 0 : 3;
            }
            catch (CMemoryException*)
            {
                for (int i = 0; i < array.GetSize(); ++i)
                {
                    if (array[i] != CString(static_cast<char>('a' + i)))
                        return 2;
                }
                return array.GetSize() <= 5 ? 1 : 2;
            }
        },
        [](int result) { EXPECT_EQ(result, 1); });
    EXPECT_GE(failures, 8);
}

TEST(ArrayTest, AnImpossibleSizeIsAMemoryFailure)
{
    CArray<int, int> array;
    EXPECT_THROW(array.SetSize(INT_MAX), CMemoryException*);
    EXPECT_EQ(array.GetSize(), 0);
}

TEST(ArrayTest, TextsAreCopied)
{
    CStringArray array;
    char text[] = "abc";
    array.Add(text);
    text[0] = 'x';
    EXPECT_EQ(array[0], "abc");
    array.RemoveAt(0);
    EXPECT_EQ(array.GetSize(), 0);
    array.SetSize(2);
    EXPECT_EQ(array[1], "");
    EXPECT_STREQ(array.GetRuntimeClass()->m_lpszClassName, "CStringArray");
}

TEST(ArrayTest, NumbersOf32Bits)
{
    CDWordArray array;
    array.Add(0xFFFFFFFF);
    EXPECT_EQ(array[0], 0xFFFFFFFF);
    EXPECT_STREQ(array.GetRuntimeClass()->m_lpszClassName, "CDWordArray");
}

// ---- CMap -----------------------------------------------------------------------------------------------------------

using CNumbers = CMap<DWORD, DWORD, int, int>;

std::map<DWORD, int> Associations(const CNumbers& map)
{
    std::map<DWORD, int> all;
    for (POSITION at = map.GetStartPosition(); at;)
    {
        DWORD key;
        int value;
        map.GetNextAssoc(at, key, value);
        EXPECT_TRUE(all.emplace(key, value).second) << "key " << key << " came twice";
    }
    return all;
}

TEST(MapTest, IsEmptyAtFirst)
{
    const CNumbers map;
    int value = 7;
    EXPECT_EQ(map.GetCount(), 0);
    EXPECT_FALSE(map.Lookup(1, value));
    EXPECT_EQ(value, 7);
    EXPECT_EQ(map.GetStartPosition(), nullptr);
}

TEST(MapTest, SetsReplacesAndFinds)
{
    CNumbers map;
    map.SetAt(1, 10);
    map[2] = 20;
    map.SetAt(1, 11);
    int value;
    EXPECT_TRUE(map.Lookup(1, value));
    EXPECT_EQ(value, 11);
    EXPECT_EQ(map[3], 0);
    EXPECT_EQ(Associations(map), (std::map<DWORD, int>{{1, 11}, {2, 20}, {3, 0}}));
}

TEST(MapTest, BehavesAsAMapUnderManyOperations)
{
    CNumbers map(3);
    map.InitHashTable(7);
    std::map<DWORD, int> model;
    DWORD random = 1;
    for (int i = 0; i < 20000; ++i)
    {
        random = random * 1664525 + 1013904223;
        const DWORD key = (random >> 16) % 200;
        if (random & 0x8000)
        {
            map.SetAt(key, i);
            model[key] = i;
        }
        else
        {
            EXPECT_EQ(map.RemoveKey(key) != FALSE, model.erase(key) == 1);
        }
        ASSERT_EQ(map.GetCount(), static_cast<int>(model.size()));
    }
    EXPECT_EQ(Associations(map), model);
}

TEST(MapTest, RemovesKeysThatShareABucket)
{
    for (DWORD removed : {0u, 1u, 2u})
    {
        CNumbers map; // the low four bits do not count for the bucket
        map[0] = 0;
        map[1] = 1;
        map[2] = 2;
        EXPECT_TRUE(map.RemoveKey(removed));
        EXPECT_FALSE(map.RemoveKey(removed));
        std::map<DWORD, int> rest{{0, 0}, {1, 1}, {2, 2}};
        rest.erase(removed);
        EXPECT_EQ(Associations(map), rest);
    }
}

TEST(MapTest, AllocatesInBlocks)
{
    CNumbers map(10);
    const CRecordedAllocations recorded;
    map.InitHashTable(101);
    EXPECT_EQ(allocations, (std::vector<size_t>{101 * sizeof(void*)}));
    for (DWORD key = 0; key < 30; ++key)
        map[key] = 0;
    EXPECT_EQ(allocations.size(), 4u);
    map.RemoveKey(5);
    map[99] = 0;
    EXPECT_EQ(allocations.size(), 4u);
}

TEST(MapTest, ReturnsToItsFirstStateWhenEmptied)
{
    CNumbers map;
    map.InitHashTable(101, FALSE);
    map[1] = 1;
    map.RemoveAll();
    EXPECT_EQ(map.GetCount(), 0);
    EXPECT_EQ(map.GetHashTableSize(), 101u);
    map[2] = 2;
    EXPECT_EQ(Associations(map), (std::map<DWORD, int>{{2, 2}}));
}

TEST(MapTest, HashesNumbersByTheirUpperBits)
{
    EXPECT_EQ(HashKey<DWORD>(0x1234), 0x123u);
    EXPECT_EQ(HashKey<DWORD>(0xFFFFFFFF), 0x0FFFFFFFu);
}

TEST(MapTest, HoldsTexts)
{
    CMap<int, int, CString, LPCSTR> map(2);
    for (int i = 0; i < 10; ++i)
        map.SetAt(i, "a text that needs storage");
    map.RemoveKey(3);
    CString text;
    EXPECT_TRUE(map.Lookup(9, text));
    EXPECT_EQ(text, "a text that needs storage");
    EXPECT_FALSE(map.Lookup(3, text));
}

TEST(MapTest, AFailedAssociationLeavesTheMap)
{
    const int failures = WithEveryAllocationFailing(
        [] {
            CMap<int, int, CString, LPCSTR> map(1);
            int added = 0;
            try
            {
                for (; added < 3; ++added)
                    map.SetAt(added, "text");
                return 0;
            }
            catch (CMemoryException*)
            {
                CString text;
                for (int i = 0; i < added; ++i)
                {
                    if (!map.Lookup(i, text) || text != "text")
                        return 2;
                }
                return map.GetCount() == added && !map.Lookup(added, text) ? 1 : 2;
            }
        },
        [](int result) { EXPECT_EQ(result, 1); });
    EXPECT_GE(failures, 7);
}

TEST(MapTest, AFailedTableLeavesTheMap)
{
    CNumbers map;
    map.InitHashTable(5);
    {
        const CAllocationFaults memory(0);
        EXPECT_THROW(map.InitHashTable(1000), CMemoryException*);
    }
    EXPECT_EQ(map.GetHashTableSize(), 5u);
    map[1] = 1;
    EXPECT_EQ(map.GetCount(), 1);
}

} // namespace
