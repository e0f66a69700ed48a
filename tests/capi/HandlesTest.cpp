// Handles: what is none, whose they are, and several threads side by side.
#include "tests/capi/Capi.h"
#include "tests/support/Sampled.h"

#include <gtest/gtest.h>

#include <atomic>
#include <set>
#include <thread>

namespace
{

PexloHandle HandleFrom(size_t number) { return reinterpret_cast<PexloHandle>(number); }

TEST(CapiHandlesTest, AreNoneWhenTheyAreNull)
{
    EXPECT_EQ(Pexlo_Destroy(nullptr), PEXLO_E_HANDLE);
    EXPECT_EQ(Pexlo_TakeOver(nullptr), PEXLO_E_HANDLE);
    EXPECT_EQ(Pexlo_GetPlcType(nullptr), PEXLO_E_HANDLE);
    EXPECT_EQ(Pexlo_GetLoadInstance(nullptr), nullptr);
    EXPECT_EQ(Pexlo_CreateDlgFont(nullptr, nullptr), nullptr);
    EXPECT_EQ(Pexlo_GetDlgDataPtr(nullptr), nullptr);
    EXPECT_EQ(Pexlo_DoOpenPosDlg(nullptr, 0, 0, nullptr), PEXLO_E_HANDLE);
    EXPECT_EQ(Pexlo_DoOpenPosDlg(nullptr, -1, 0, nullptr), PEXLO_E_HANDLE);
    EXPECT_EQ(Pexlo_GetHelpPath(nullptr, nullptr, 0), PEXLO_E_HANDLE);
    EXPECT_EQ(Pexlo_Fill(nullptr, nullptr, nullptr, 0, nullptr), PEXLO_E_HANDLE);
    EXPECT_EQ(Pexlo_GetFieldText(nullptr, 0, nullptr, 0), PEXLO_E_HANDLE);
}

TEST(CapiHandlesTest, AreNoneWhenNobodyMadeThem)
{
    const CCapiHandle handle;
    const auto alive = reinterpret_cast<size_t>(static_cast<PexloHandle>(handle));
    for (const size_t number :
         {size_t{1}, size_t{2}, size_t{0xFFFF}, size_t{0x10000}, ~size_t{0}, ~size_t{0} / 2, alive + 1, alive + 0x10000,
          alive ^ 0x40000000, alive << 1, reinterpret_cast<size_t>(&handle)})
        EXPECT_EQ(Pexlo_GetPlcType(HandleFrom(number)), PEXLO_E_HANDLE) << number;
    if constexpr (sizeof(size_t) > 4)
    {
        EXPECT_EQ(Pexlo_GetPlcType(HandleFrom(alive | size_t{1} << 40)), PEXLO_E_HANDLE);
    }
    EXPECT_EQ(Pexlo_GetPlcType(handle), 0);
}

TEST(CapiHandlesTest, AreNoneOnceTheyAreDestroyed)
{
    const PexloHandle handle = Pexlo_Create();
    EXPECT_EQ(Pexlo_Destroy(handle), 1);
    EXPECT_EQ(Pexlo_Destroy(handle), PEXLO_E_HANDLE);
    EXPECT_EQ(Pexlo_SetPlcType(handle, 1), PEXLO_E_HANDLE);
    std::set<PexloHandle> later;
    for (int i = 0; i < 1000; ++i)
    {
        const PexloHandle next = Pexlo_Create();
        EXPECT_NE(next, handle);
        later.insert(next);
        EXPECT_EQ(Pexlo_GetPlcType(handle), PEXLO_E_HANDLE);
        EXPECT_EQ(Pexlo_Destroy(next), 1);
    }
    EXPECT_EQ(later.size(), 1000u);
}

TEST(CapiHandlesTest, AreSixtyFiveThousand)
{
    std::vector<PexloHandle> handles;
    while (const PexloHandle handle = Pexlo_Create())
    {
        handles.push_back(handle);
        ASSERT_LE(handles.size(), 65535u);
    }
    EXPECT_EQ(handles.size(), 65535u);
    EXPECT_EQ(std::set<PexloHandle>(handles.begin(), handles.end()).size(), handles.size());
    EXPECT_EQ(Pexlo_GetPlcType(handles.back()), 0);
    EXPECT_EQ(Pexlo_Destroy(handles[4711]), 1);
    const PexloHandle again = Pexlo_Create();
    EXPECT_NE(again, nullptr);
    EXPECT_NE(again, handles[4711]);
    EXPECT_EQ(Pexlo_Create(), nullptr);
    EXPECT_EQ(Pexlo_GetPlcType(handles[4711]), PEXLO_E_HANDLE);
    handles[4711] = again;
    for (const PexloHandle handle : handles)
        EXPECT_EQ(Pexlo_Destroy(handle), 1);
}

TEST(CapiHandlesTest, BelongToTheirThread)
{
    const CCapiHandle handle;
    PexloHandle others = nullptr;
    auto form = FormOf(168);
    std::thread([&] {
        EXPECT_EQ(Pexlo_SetPlcType(handle, 1), PEXLO_E_THREAD);
        EXPECT_EQ(Pexlo_Destroy(handle), PEXLO_E_THREAD);
        EXPECT_EQ(Pexlo_GetLoadInstance(handle), nullptr);
        EXPECT_EQ(Pexlo_Fill(handle, &form, nullptr, 0, nullptr), PEXLO_E_THREAD);
        EXPECT_EQ(Pexlo_DescribeFields(handle, &form, nullptr, 0, nullptr, 0, nullptr), PEXLO_E_THREAD);
        EXPECT_EQ(Pexlo_DoOpenPIDDlg(handle, 1, nullptr), PEXLO_E_THREAD);
        others = Pexlo_Create();
        EXPECT_EQ(Pexlo_SetPlcType(others, 70), 1);
    }).join();
    EXPECT_EQ(Pexlo_GetPlcType(handle), 0);
    // Its thread has ended.
    EXPECT_EQ(Pexlo_GetPlcType(others), PEXLO_E_THREAD);
    EXPECT_EQ(Pexlo_TakeOver(others), 1);
    EXPECT_EQ(Pexlo_GetPlcType(others), 70);
    EXPECT_EQ(Pexlo_TakeOver(others), 1);
    std::thread([&] {
        EXPECT_EQ(Pexlo_TakeOver(others), 1);
        EXPECT_EQ(Pexlo_GetPlcType(others), 70);
    }).join();
    EXPECT_EQ(Pexlo_GetPlcType(others), PEXLO_E_THREAD);
    EXPECT_EQ(Pexlo_TakeOver(others), 1);
    EXPECT_EQ(Pexlo_Destroy(others), 1);
    EXPECT_EQ(Pexlo_TakeOver(others), PEXLO_E_HANDLE);
}

// A thread may get the number of one that has ended.
TEST(CapiHandlesTest, DoNotBelongToALaterThread)
{
    for (int i = 0; i < 20; ++i)
    {
        PexloHandle handle = nullptr;
        std::thread([&] { handle = Pexlo_Create(); }).join();
        std::thread([&] { EXPECT_EQ(Pexlo_GetPlcType(handle), PEXLO_E_THREAD) << i; }).join();
        EXPECT_EQ(Pexlo_TakeOver(handle), 1);
        EXPECT_EQ(Pexlo_Destroy(handle), 1);
    }
}

/// What a thread does with handles of its own.
std::vector<SResults> Work(unsigned first, unsigned count)
{
    std::vector<SResults> all;
    const auto& rows = FormRows();
    for (unsigned i = 0; i < count; ++i)
    {
        const CCapiHandle handle;
        const SFormRow& row = rows[(first + i) % rows.size()];
        Prepare(handle, row, i % 2 == 0 ? 0 : 1);
        auto form = FormOf(row);
        Fill(handle, form, AcceptedEntries(handle, form));
        Pexlo_CreateInstCode(handle);
        all.push_back(ReadResults(handle));
    }
    return all;
}

TEST(CapiHandlesTest, FillSideBySide)
{
    constexpr unsigned kThreads = 4;
    const unsigned count = IsThorough() ? static_cast<unsigned>(FormRows().size()) / 3 : 1;
    std::vector<std::vector<SResults>> expected, found(kThreads);
    for (unsigned i = 0; i < kThreads; ++i)
        expected.push_back(Work(i * 11, count));
    std::vector<std::thread> threads;
    for (unsigned i = 0; i < kThreads; ++i)
        threads.emplace_back([&, i] { found[i] = Work(i * 11, count); });
    for (std::thread& thread : threads)
        thread.join();
    EXPECT_EQ(found, expected);
    EXPECT_FALSE(expected[0][0].instructions.empty());
}

// One handle, passed around while others look whether it is theirs.
TEST(CapiHandlesTest, ChangeTheirOwner)
{
    const PexloHandle handle = Pexlo_Create();
    Prepare(handle, FormRows()[0]);
    std::atomic<int> filled = 0, wrong = 0;
    std::vector<std::thread> threads;
    for (int i = 0; i < 3; ++i)
        threads.emplace_back([&] {
            auto form = FormOf(168);
            const PexloEntry entry = {sizeof entry, 0, "start", "100"};
            for (int round = 0; round < 100; ++round)
            {
                const int taken = Pexlo_TakeOver(handle);
                if (taken != 1 && taken != PEXLO_E_BUSY)
                    ++wrong;
                const int result = Pexlo_Check(handle, &form, &entry, 1, nullptr);
                if (result == 2)
                    ++filled;
                else if (result != PEXLO_E_THREAD)
                    ++wrong;
            }
        });
    for (std::thread& thread : threads)
        thread.join();
    EXPECT_EQ(wrong, 0);
    EXPECT_GT(filled, 0);
    EXPECT_EQ(Pexlo_TakeOver(handle), 1);
    EXPECT_EQ(Pexlo_Destroy(handle), 1);
}

} // namespace
