// A thousand dialogs of F168, confirmed or left, leave nothing behind: no window, no object, no memory.
#include "tests/dialogs/pulse/Spd1Test.h"
#include "tests/robust/Holdings.h"
#include "tests/support/Sampled.h"

namespace
{

constexpr int kBatches = 5;
const int kOpenings = SampledRounds(200, 20); // where dialogs are quick, a thousand in each test

/// The bytes that the system keeps of each list box with tab stops that is gone.
size_t BytesLostWithTabStops()
{
    constexpr size_t kBoxes = 100;
    const auto makeBoxes = [] {
        for (size_t i = 0; i < kBoxes; ++i)
        {
            int stops[] = {50, 100};
            const HWND box = ::CreateWindowExA(0, "ListBox", "", WS_POPUP | LBS_USETABSTOPS, 0, 0, 100, 100, nullptr,
                                               nullptr, nullptr, nullptr);
            ::SendMessageA(box, LB_SETTABSTOPS, std::size(stops), reinterpret_cast<LPARAM>(stops));
            ::DestroyWindow(box);
        }
    };
    makeBoxes();
    const size_t before = AllocatedBytes();
    makeBoxes();
    const size_t after = AllocatedBytes();
    return after > before ? (after - before) / kBoxes : 0;
}

class COpeningsTest : public CSpd1Test
{
protected:
    /// `selections`: how often the selection dialog comes up in one opening.
    template <typename TOpen>
    void ExpectNothingLeft(size_t selections, TOpen open)
    {
        const auto batch = [&] {
            for (int i = 0; i < kOpenings && !HasFailure(); ++i)
                open(i);
        };
        batch();
        const Holdings before = CurrentHoldings();
        EXPECT_TRUE(LeavesNoMemory(kBatches, kOpenings * selections * BytesLostWithTabStops(), batch));
        EXPECT_EQ(CurrentHoldings(), before);
    }

    /// Each variant twice: the second time it shows what the first has stored.
    static constexpr ESpd1Variant VariantOf(int i) { return i / 2 % 2 == 0 ? kTrapezoidal : kHomeReturn; }
};

TEST_F(COpeningsTest, ConfirmedLeaveNothingBehind)
{
    ExpectNothingLeft(1, [this](int i) {
        Confirm(VariantOf(i), [](CDialogRobot& dialog) {
            if (dialog.Text(IDC_SPD1_START).IsEmpty())
                FillIn(dialog, {});
        });
        EXPECT_EQ(m_wizard.CreateInstCode(), 1);
    });
}

TEST_F(COpeningsTest, LeftByBackLeaveNothingBehind)
{
    ExpectNothingLeft(2, [this](int i) { Leave(VariantOf(i)); });
}

TEST_F(COpeningsTest, RefusedLeaveNothingBehind)
{
    ExpectNothingLeft(2, [this](int i) {
        Leave(VariantOf(i), [](CDialogRobot& dialog) { ExpectRefusal(dialog, 20001, IDC_CONTACT_NUMBER); });
    });
}

} // namespace
