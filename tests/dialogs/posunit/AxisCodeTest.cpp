// The control code of an axis: its combos and the reading of its fields from the stored word.
#include "dialogs/posunit/AxisCode.h"
#include "resources/resource.h"
#include "tests/dialogs/base/ProbeDlg.h"

namespace
{

struct SField
{
    EAxisCode field;
    int shift;
    int width;
    std::vector<const char*> items;
};

const std::vector<SField>& Fields()
{
    static const std::vector<SField> fields = {
        {EAxisCode::PositionCommand, 0, 1, {"Incremental", "Absolute"}},
        {EAxisCode::Acceleration, 1, 1, {"Linear accel./decel.", "\"S\" accel./decel."}},
        {EAxisCode::HomeReturnDirection, 2, 1, {"Elapsed value (-) direction", "Elapsed value (+) direction"}},
        {EAxisCode::StartupSpeed, 3, 1, {"0.02ms", "0.005ms"}},
        {EAxisCode::HomeLogic, 4, 1, {"Non-electric conduction ON", "Electric conduction ON"}},
        {EAxisCode::NearHomeLogic, 5, 1, {"Electric conduction ON", "Non-electric conduction ON"}},
        {EAxisCode::HomeSearch, 6, 1, {"Disable", "Enable"}},
        {EAxisCode::LimitLogic, 7, 1, {"Non-electric conduction ON", "Electric conduction ON"}},
        {EAxisCode::PulsarMultiple, 8, 3, {"x 1", "x 2", "x 5", "x 10", "x 50", "x 100", "x 500", "x 1000"}},
        {EAxisCode::AccelerationCurve, 12, 2, {"Sin curve", "Secondary curve", "Cycloid curve", "The 3rd curve"}},
        {EAxisCode::InputRotation, 16, 1, {"Forward rotation", "Reverse rotation"}},
        {EAxisCode::InputCount, 17, 1, {"Available", "Masked"}},
        {EAxisCode::InputMode, 18, 2, {"2-phase input", "Direction distinction input", "Individual input"}},
        {EAxisCode::InputMultiple, 20, 2, {"x 1", "x 2", "x 4"}},
        {EAxisCode::OutputRotation, 24, 1, {"Forward rotation", "Reverse rotation"}},
        {EAxisCode::OutputMode, 25, 1, {"Pulse + Sign", "CW + CCW"}},
        {EAxisCode::DividedMode,
         28,
         3,
         {"1 devided", "2 devided", "4 devided", "8 devided", "16 devided", "32 devided", "64 devided", "128 devided"}},
        {EAxisCode::ClearTime, 31, 1, {"1ms", "10ms"}},
    };
    return fields;
}

DWORD FieldOf(DWORD word, const SField& field)
{
    DWORD value = 0;
    for (int bit = 0; bit < field.width; ++bit)
        value += (word / (1u << (field.shift + bit)) % 2) << bit;
    return value;
}

/// The item that stands for a word: its field, and the first one for a value without an item.
int ItemFor(DWORD word, const SField& field)
{
    const DWORD value = FieldOf(word, field);
    return value < field.items.size() ? static_cast<int>(value) : 0;
}

constexpr UINT Combo(size_t index) { return IDC_PROBE_CODE + static_cast<UINT>(index); }

void DeclareAll(CWzdExchange* wx)
{
    WDX_ControlCode(wx, kTwoRegisters);
    for (size_t i = 0; i < Fields().size(); ++i)
        WDX_AxisCode(wx, Combo(i), Fields()[i].field);
}

const std::vector<DWORD>& Words()
{
    static const std::vector<DWORD> words = [] {
        std::vector<DWORD> all = {0, 0xFFFFFFFF, 0x12345678, 0xA5A5A5A5, 0x5A5A5A5A, 0xF30337FF, 0x80000000};
        for (int bit = 0; bit < 32; ++bit)
            all.push_back(1u << bit);
        return all;
    }();
    return words;
}

class CAxisCodeTest : public CProbeTest
{
protected:
    void Store(DWORD word, int code = kDT)
    {
        m_wizard.RemoveAllDataInfo();
        m_wizard.AddDataInfo(static_cast<short>(code), 10, 1, 1, static_cast<LONG>(word));
    }

    /// A field of the stored word; 0 without a word.
    DWORD Stored(SWzdBits bits) const { return bits.Extract(m_probe.StoredControlCode().value_or(0)); }

    /// Selects an item in each of the combos, presses OK and returns the control code.
    DWORD Compose(const CProbeDlg::Fields& fields, const std::vector<std::pair<UINT, int>>& items)
    {
        EXPECT_EQ(InProbe(fields,
                          [&](CDialogRobot& robot) {
                              for (const auto& [combo, item] : items)
                                  m_probe.Select(combo, item);
                              robot.Click(IDOK);
                          }),
                  1);
        SFunSetData data = {};
        EXPECT_EQ(m_wizard.GetDataInfo(0, &data), 1);
        return static_cast<DWORD>(data.value);
    }
};

} // namespace

TEST_F(CAxisCodeTest, FieldsStandWhereTheUnitReadsThem)
{
    for (const SField& field : Fields())
    {
        EXPECT_EQ(AxisCodeField(field.field).bits.shift, field.shift);
        EXPECT_EQ(AxisCodeField(field.field).bits.width, field.width);
    }
}

TEST_F(CAxisCodeTest, CombosListTheirItemsInOrder)
{
    InProbe(DeclareAll, [](CDialogRobot& robot) {
        for (size_t i = 0; i < Fields().size(); ++i)
        {
            const std::vector<CString> expected(Fields()[i].items.begin(), Fields()[i].items.end());
            EXPECT_EQ(robot.Items(Combo(i)), expected);
        }
    });
}

TEST_F(CAxisCodeTest, CombosSelectWhatTheStoredWordSays)
{
    for (const DWORD word : Words())
    {
        Store(word);
        InProbe(DeclareAll, [&](CDialogRobot& robot) {
            for (size_t i = 0; i < Fields().size(); ++i)
                EXPECT_EQ(robot.Selection(Combo(i)), ItemFor(word, Fields()[i]))
                    << std::hex << word << ", field at bit " << std::dec << Fields()[i].shift;
        });
    }
}

TEST_F(CAxisCodeTest, CombosSelectTheFirstItemWithoutAStoredWord)
{
    const auto expectFirst = [](CDialogRobot& robot) {
        for (size_t i = 0; i < Fields().size(); ++i)
            EXPECT_EQ(robot.Selection(Combo(i)), 0) << "field at bit " << Fields()[i].shift;
    };
    InProbe(DeclareAll, expectFirst);
    for (const int code : {kK, kH, kWR, kSpecialDT, -1})
    {
        Store(0xFFFFFFFF, code);
        InProbe(DeclareAll, expectFirst);
    }
}

TEST_F(CAxisCodeTest, FieldsOfTheStoredWordAreRead)
{
    struct
    {
        int shift, width;
    } const accessors[] = {{0, 1}, {1, 1},  {2, 1},  {3, 1},  {4, 1},  {5, 1},  {6, 1},  {7, 1},
                           {8, 3}, {12, 2}, {18, 2}, {20, 2}, {24, 1}, {25, 1}, {28, 3}, {31, 1}};
    EXPECT_EQ(m_probe.StoredControlCode(), std::nullopt);
    for (const DWORD word : Words())
    {
        Store(word);
        EXPECT_EQ(m_probe.StoredControlCode(), word);
        for (const auto& field : accessors)
            EXPECT_EQ(Stored({field.shift, field.width}), FieldOf(word, {{}, field.shift, field.width, {}}))
                << std::hex << word << ", field at bit " << std::dec << field.shift;
    }
    for (const int code : {kK, kH, kWR, kSpecialDT, 0, -1})
    {
        Store(0xFFFFFFFF, code);
        EXPECT_EQ(m_probe.StoredControlCode(), std::nullopt) << code;
        for (const auto& field : accessors)
            EXPECT_EQ(Stored({field.shift, field.width}), 0u) << code;
    }
}

TEST_F(CAxisCodeTest, OnlyTheFirstRecordHoldsTheWord)
{
    m_wizard.AddDataInfo(kK, 0, 0, 0, 1);
    m_wizard.AddDataInfo(kDT, 0, 0, 0, 0x77);
    EXPECT_EQ(m_probe.StoredControlCode(), std::nullopt);
}

TEST_F(CAxisCodeTest, EachItemContributesItsBits)
{
    for (size_t i = 0; i < Fields().size(); ++i)
    {
        const SField& field = Fields()[i];
        for (int item = 0; item < static_cast<int>(field.items.size()); ++item)
        {
            m_wizard.RemoveAllDataInfo();
            EXPECT_EQ(Compose(DeclareAll, {{Combo(i), item}}), static_cast<DWORD>(item) << field.shift)
                << "field at bit " << field.shift << ", item " << item;
        }
    }
}

TEST_F(CAxisCodeTest, TheLogicFieldsAddUp)
{
    const CProbeDlg::Fields declare = [](CWzdExchange* wx) {
        WDX_ControlCode(wx, kTwoRegisters);
        WDX_AxisCode(wx, Combo(0), EAxisCode::HomeLogic);
        WDX_AxisCode(wx, Combo(1), EAxisCode::NearHomeLogic);
        WDX_AxisCode(wx, Combo(2), EAxisCode::LimitLogic);
    };
    struct
    {
        int home, nearHome, limit;
        DWORD code;
    } const rows[] = {{0, 0, 0, 0},   {1, 0, 0, 16},  {0, 1, 0, 32},  {1, 1, 0, 48},
                      {0, 0, 1, 128}, {1, 0, 1, 144}, {0, 1, 1, 160}, {1, 1, 1, 176}};
    for (const auto& row : rows)
    {
        const DWORD code = Compose(declare, {{Combo(0), row.home}, {Combo(1), row.nearHome}, {Combo(2), row.limit}});
        EXPECT_EQ(code, row.code);
        EXPECT_EQ(Stored({4, 1}), static_cast<DWORD>(row.home));
        EXPECT_EQ(Stored({5, 1}), static_cast<DWORD>(row.nearHome));
        EXPECT_EQ(Stored({7, 1}), static_cast<DWORD>(row.limit));
    }
}

TEST_F(CAxisCodeTest, CompositionReadsTheLastItemsBack)
{
    std::vector<std::pair<UINT, int>> last;
    for (size_t i = 0; i < Fields().size(); ++i)
        last.emplace_back(Combo(i), static_cast<int>(Fields()[i].items.size()) - 1);
    // All bits but the reserved ones; the two fields of three items end at 2.
    const DWORD expected = ~0x0CC0C800u & ~(1u << 18) & ~(1u << 20);
    EXPECT_EQ(Compose(DeclareAll, last), expected);
    EXPECT_EQ(ReadResults(m_wizard).data, (std::vector<SDataRow>{{kDT, 0, 1, 1, static_cast<int>(expected)}}));
    InProbe(DeclareAll, [&](CDialogRobot& robot) {
        for (const auto& [combo, item] : last)
            EXPECT_EQ(robot.Selection(combo), item);
    });
}

TEST_F(CAxisCodeTest, CompositionEndsAtAComboWithoutSelection)
{
    std::vector<std::pair<UINT, int>> items;
    for (size_t i = 0; i < Fields().size(); ++i)
        items.emplace_back(Combo(i), 1);
    for (size_t cleared = 0; cleared < items.size(); ++cleared)
    {
        DWORD expected = 0;
        for (size_t i = 0; i < cleared; ++i)
            expected |= 1u << Fields()[i].shift;
        auto selection = items;
        selection[cleared].second = -1;
        EXPECT_EQ(Compose(DeclareAll, selection), expected) << "without field at bit " << Fields()[cleared].shift;
    }
}
