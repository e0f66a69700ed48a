// A thousand dialogs of F168, confirmed or left, leave nothing behind: no window, no object, no memory.
#include "tests/dialogs/pulse/Spd1Test.h"
#include "tests/robust/Holdings.h"

namespace
{

constexpr int kBatches = 5;
constexpr int kOpenings = 200; // in each of them

class COpeningsTest : public CSpd1Test
{
protected:
    template <typename TOpen>
    void ExpectNothingLeft(TOpen open)
    {
        const auto batch = [&] {
            for (int i = 0; i < kOpenings && !HasFailure(); ++i)
                open(i);
        };
        batch();
        const Holdings before = CurrentHoldings();
        EXPECT_TRUE(LeavesNoMemory(kBatches, batch));
        EXPECT_EQ(CurrentHoldings(), before);
    }

    static constexpr ESpd1Variant VariantOf(int i) { return i % 2 == 0 ? kTrapezoidal : kHomeReturn; }
};

TEST_F(COpeningsTest, ConfirmedLeaveNothingBehind)
{
    ExpectNothingLeft([this](int i) {
        Confirm(VariantOf(i), [](CDialogRobot& dialog) {
            if (dialog.Text(IDC_SPD1_START).IsEmpty())
                FillIn(dialog, {});
        });
        EXPECT_EQ(m_wizard.CreateInstCode(), 1);
    });
}

TEST_F(COpeningsTest, LeftByBackLeaveNothingBehind)
{
    ExpectNothingLeft([this](int i) { Leave(VariantOf(i)); });
}

TEST_F(COpeningsTest, RefusedLeaveNothingBehind)
{
    ExpectNothingLeft([this](int i) {
        Leave(VariantOf(i), [](CDialogRobot& dialog) { ExpectRefusal(dialog, 20001, IDC_CONTACT_NUMBER); });
    });
}

} // namespace
