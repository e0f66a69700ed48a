// Random calls into the C interface: whatever a host does, nothing crashes, and what was refused changes nothing.
//
//     PEXLO_FUZZ=200000 pexlo_tests --gtest_filter=CapiFuzz*    so many sequences
//     PEXLO_FUZZ_SEED=123                                       other ones
#include "tests/capi/Capi.h"
#include "tests/robust/TextGenerator.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <climits>
#include <cstdlib>
#include <iterator>
#include <random>

namespace
{

constexpr unsigned kSequences = 600;
constexpr int kMostCalls = 10;
constexpr size_t kHandles = 4;

using Random = std::mt19937;

int Below(Random& random, size_t count) { return static_cast<int>(random() % count); }
bool OneIn(Random& random, int count) { return Below(random, static_cast<size_t>(count)) == 0; }

unsigned Setting(const char* name, unsigned value)
{
    const char* text = std::getenv(name);
    return text != nullptr ? static_cast<unsigned>(std::strtoul(text, nullptr, 10)) : value;
}

/// What the fields of all dialogs are called, and what their lists offer.
struct SKnown
{
    std::vector<std::vector<std::string>> names; ///< of each row of FormRows
    std::vector<CTextEntries> accepted;
    std::vector<std::string> texts;
};

const SKnown& Known()
{
    static const SKnown known = [] {
        SKnown all;
        const CCapiHandle handle;
        for (const SFormRow& row : FormRows())
        {
            Prepare(handle, row);
            all.accepted.push_back(AcceptedEntries(handle, FormOf(row)));
            const SDescribed described = Describe(handle, FormOf(row));
            auto& names = all.names.emplace_back();
            for (int i = 0; i < described.result; ++i)
            {
                names.emplace_back(described.fields[static_cast<size_t>(i)].name);
                for (const PexloItem& item : FieldItems(handle, i))
                    all.texts.emplace_back(item.text);
            }
        }
        return all;
    }();
    return known;
}

class CapiFuzzTest : public testing::Test
{
protected:
    CapiFuzzTest() : m_handles(kHandles) {}
    ~CapiFuzzTest() override
    {
        for (const PexloHandle handle : m_handles)
            Pexlo_Destroy(handle);
    }

    void RunSequence(unsigned seed)
    {
        m_random.seed(seed);
        for (int calls = 1 + Below(kMostCalls); calls > 0 && !HasFailure(); --calls)
            Call();
    }

    unsigned m_accepted = 0;
    unsigned m_refused = 0;

private:
    int Below(size_t count) { return ::Below(m_random, count); }
    bool OneIn(int count) { return ::OneIn(m_random, count); }

    int Number()
    {
        constexpr int kNumbers[] = {0,     1,     2,       3,       9,   15,  16,    64,    151,   168,
                                    171,   177,   180,     255,     256, 355, 10010, 32764, 32767, 32768,
                                    65535, 65536, INT_MAX, INT_MIN, -1,  -2,  -3,    -1001};
        return OneIn(4) ? static_cast<int>(m_random()) : kNumbers[Below(std::size(kNumbers))];
    }

    std::string Text()
    {
        if (OneIn(3))
            return std::to_string(Below(2000));
        if (OneIn(3))
            return Known().texts[static_cast<size_t>(Below(Known().texts.size()))];
        if (OneIn(4))
            return "#" + std::to_string(Below(30));
        if (OneIn(4))
            return OneIn(2) ? "1" : "0";
        return GeneratedText(static_cast<unsigned>(m_random()));
    }

    const char* Out(const std::string& text) { return OneIn(20) ? nullptr : text.c_str(); }
    int* Out(int& number) { return OneIn(30) ? nullptr : &number; }

    template <typename TStructure>
    TStructure* Out(TStructure& structure)
    {
        structure = Sized<TStructure>();
        if (OneIn(20))
            structure.size = OneIn(2) ? 0 : static_cast<unsigned>(m_random()) | 0x80000000u;
        return OneIn(30) ? nullptr : &structure;
    }

    /// Alive, dead, or none at all.
    PexloHandle Garbage()
    {
        switch (Below(4))
        {
        case 0:
            return nullptr;
        case 1:
            return reinterpret_cast<PexloHandle>(static_cast<size_t>(m_random()));
        case 2:
            return m_dead;
        default:
            return reinterpret_cast<PexloHandle>(&m_random);
        }
    }

    void Call()
    {
        const auto which = static_cast<size_t>(Below(kHandles));
        if (!m_alive[which])
        {
            m_handles[which] = Pexlo_Create();
            ASSERT_NE(m_handles[which], nullptr);
            m_alive[which] = true;
            m_row[which] = static_cast<size_t>(Below(FormRows().size()));
            Prepare(m_handles[which], FormRows()[m_row[which]], OneIn(3) ? Below(12) - 1 : 0);
        }
        if (OneIn(12))
        {
            // Nearly always none; a random number may be one that is alive, which is left alone then.
            const PexloHandle none = Garbage();
            if (std::find(m_handles.begin(), m_handles.end(), none) == m_handles.end())
            {
                EXPECT_EQ(CallOperation(none), PEXLO_E_HANDLE);
            }
            return;
        }
        const PexloHandle handle = m_handles[which];
        if (OneIn(25))
        {
            EXPECT_EQ(Pexlo_Destroy(handle), 1);
            m_alive[which] = false;
            m_dead = handle;
            m_handles[which] = nullptr;
            return;
        }
        if (OneIn(4))
            return CallForm(handle, which);
        const int result = CallOperation(handle);
        EXPECT_NE(result, PEXLO_E_HANDLE);
        EXPECT_NE(result, PEXLO_E_THREAD);
        EXPECT_NE(result, PEXLO_E_MEMORY);
        EXPECT_NE(result, PEXLO_E_BUSY);
    }

    void CallForm(PexloHandle handle, size_t which)
    {
        auto form = FormOf(FormRows()[OneIn(5) ? static_cast<size_t>(Below(FormRows().size())) : m_row[which]]);
        form.axisFlag = Below(2);
        form.workArea = OneIn(4) ? Number() : 30;
        form.controlCode = static_cast<unsigned>(m_random());
        form.restricted = OneIn(3);
        for (unsigned& mask : form.permitted)
            mask = static_cast<unsigned>(m_random());
        if (OneIn(20))
            form.instruction = Number();
        if (OneIn(20))
            form.variant = Number();

        CTextEntries entries;
        if (OneIn(2))
            entries = Known().accepted[m_row[which]];
        const auto& names = Known().names[m_row[which]];
        for (int i = Below(6); i > 0; --i)
        {
            if (OneIn(15))
                entries.emplace_back(OneIn(2) ? Number() : 2000 + Below(400), Text());
            else
                entries.emplace_back(OneIn(30) ? Text() : names[static_cast<size_t>(Below(names.size()))], Text());
        }
        const SKeptState before = StateOf(handle);
        const SOutcome checked = Check(handle, form, entries);
        EXPECT_EQ(StateOf(handle), before);
        const SDescribed described = Describe(handle, form, entries);
        EXPECT_EQ(StateOf(handle), before);
        const SOutcome filled = Fill(handle, form, entries);
        EXPECT_EQ(filled.result, checked.result) << checked << '\n' << filled;
        EXPECT_EQ(filled.refusal.reason, checked.refusal.reason);
        EXPECT_EQ(filled.refusal.messageId, checked.refusal.messageId);
        EXPECT_EQ(filled.refusal.control, checked.refusal.control);
        if (filled.result == 1)
        {
            ++m_accepted;
            EXPECT_EQ(described.refusal.reason, 0);
            for (const PexloField& field : described.fields)
                EXPECT_EQ(field.problem, 0) << field.name;
        }
        else
        {
            m_refused += filled.result == 2;
            EXPECT_EQ(StateOf(handle), before);
        }
        for (int i = 0; i < described.result; ++i)
            if (OneIn(20))
            {
                EXPECT_EQ(Pexlo_GetFieldText(handle, i, nullptr, 0), static_cast<int>(FieldText(handle, i).size()) + 1);
            }
    }

    int CallOperation(PexloHandle handle)
    {
        int a = 0, b = 0, c = 0, d = 0, e = 0;
        const int x = Number(), y = Number(), z = Number(), u = Number(), v = Number();
        const std::string text = Text();
        PexloData data;
        PexloInstCode record;
        PexloItem item;
        PexloOffer offer;
        // Of a random size, watched on both ends.
        std::vector<char> buffer(static_cast<size_t>(Below(40)));
        char* const out = OneIn(10) ? nullptr : buffer.data();
        const int size = OneIn(20) ? -1 : static_cast<int>(buffer.size());
        switch (Below(46))
        {
        case 0:
            return Pexlo_SetPlcType(handle, OneIn(2) ? x : Below(200));
        case 1:
            return Pexlo_SetDevRange(handle, OneIn(3) ? x : -1, Below(70), Below(100), OneIn(3) ? y : Below(40000));
        case 2:
            return Pexlo_GetDevRange(handle, x, y, Out(a), Out(b));
        case 3:
            return Pexlo_GetSeqDevInfo(handle, Below(30) - 2, Out(a), Out(b), Out(c), Below(5));
        case 4:
            return Pexlo_SetMaxSlot(handle, x);
        case 5:
            return Pexlo_SetChannelNo(handle, x, y);
        case 6:
            return OneIn(5) ? Pexlo_ResetChannelNo(handle) : Pexlo_GetMaxSlot(handle);
        case 7:
            return Pexlo_GetChannelNo(handle, x, y);
        case 8:
            return Pexlo_SetF175DispType(handle, OneIn(2) ? x : Below(3));
        case 9:
            return OneIn(6) ? Pexlo_ResetContents(handle) : Pexlo_GetPlcType(handle);
        case 10:
            return Pexlo_SetLanguageInfo(handle, Below(14) - 2);
        case 11:
            return Pexlo_GetTextCodePage(handle);
        case 12:
            return Pexlo_SetHelpPath(handle, Out(text));
        case 13:
            return Pexlo_SetHelpPathUtf8(handle, Out(text));
        case 14:
            return Pexlo_GetHelpPath(handle, out, size);
        case 15:
            return Pexlo_GetHelpPathUtf8(handle, out, size);
        case 16:
            return OneIn(2) ? Pexlo_SetAppName(handle, Out(text)) : Pexlo_SetAppNameUtf8(handle, Out(text));
        case 17:
            return Pexlo_EntrySupportFunInfo(handle, OneIn(2) ? x : 168 + Below(10));
        case 18:
            return OneIn(8) ? Pexlo_ClearSuppportFunInfo(handle) : Pexlo_FindSupportFun(handle, x);
        case 19:
            return Pexlo_SetCmtRec(handle, x);
        case 20:
            return Pexlo_SetOnlyDataTable(handle, x);
        case 21:
            return Pexlo_SetStartType(handle, OneIn(2) ? x : Below(3));
        case 22:
            return Pexlo_IsStartCondition(handle);
        case 23:
            return Pexlo_IsSameCondition(handle);
        case 24:
            return Pexlo_SetDlgDataPtr(handle, Out(text), static_cast<int>(text.size()));
        case 25:
            return Pexlo_AddContInfo(handle, x, y, z);
        case 26:
            return Pexlo_GetContInfo(handle, OneIn(2) ? x : Below(5), Out(a), Out(b), Out(c));
        case 27:
            return Pexlo_AddOprdInfo(handle, x, y);
        case 28:
            return Pexlo_GetOprdInfo(handle, OneIn(2) ? x : Below(5), Out(a), Out(b));
        case 29:
            return Pexlo_AddDataInfo(handle, x, y, z, u, v);
        case 30:
            return Pexlo_GetDataInfo(handle, OneIn(2) ? x : Below(5), Out(data));
        case 31:
            return Pexlo_AddCmtInfo(handle, Out(text));
        case 32:
            return Pexlo_AddCmtInfoUtf8(handle, Out(text));
        case 33:
            return Pexlo_GetCmtInfo(handle, OneIn(2) ? x : Below(5), out, size);
        case 34:
            return Pexlo_GetCmtInfoUtf8(handle, OneIn(2) ? x : Below(5), out, size);
        case 35:
            return Pexlo_AddInstCodeInfo(handle, x, y, z, u, v);
        case 36:
            return Pexlo_GetInstCodeInfo(handle, OneIn(2) ? x : Below(9), Out(record));
        case 37:
            return Pexlo_GetInstCode(handle, OneIn(2) ? x : Below(9), Out(a), Out(b), Out(c), Out(d), Out(e));
        case 38:
            return Pexlo_CreateInstCode(handle);
        case 39: {
            using Generate = int(PEXLO_CALL*)(PexloHandle);
            constexpr Generate kGenerators[] = {Pexlo_CreateInstCode_1, Pexlo_CreateInstCode_11, Pexlo_CreateInstCode_2,
                                                Pexlo_CreateInstCode_3, Pexlo_CreateInstCode_4};
            return kGenerators[Below(std::size(kGenerators))](handle);
        }
        case 40: {
            using Empty = int(PEXLO_CALL*)(PexloHandle);
            constexpr Empty kEmptied[] = {Pexlo_RemoveAllContInfo, Pexlo_RemoveAllOprdInfo,     Pexlo_RemoveAllDataInfo,
                                          Pexlo_RemoveAllCmtInfo,  Pexlo_RemoveAllInstCodeInfo, Pexlo_RemoveDlgData};
            return kEmptied[Below(std::size(kEmptied))](handle);
        }
        case 41:
            return Pexlo_GetOffer(handle, OneIn(2) ? x : Below(20), Out(offer));
        case 42:
            return Pexlo_GetFieldItem(handle, OneIn(2) ? x : Below(20), OneIn(2) ? y : Below(6), Out(item));
        case 43:
            return Pexlo_GetFieldText(handle, OneIn(2) ? x : Below(20), out, size);
        case 44:
            return Pexlo_TakeOver(handle);
        default: {
            PexloForm form;
            return Pexlo_Check(handle, Out(form), nullptr, Below(3) - 1, nullptr);
        }
        }
    }

    Random m_random;
    std::vector<PexloHandle> m_handles;
    bool m_alive[kHandles] = {};
    size_t m_row[kHandles] = {};
    PexloHandle m_dead = nullptr;
};

TEST_F(CapiFuzzTest, SurvivesRandomCalls)
{
    const unsigned sequences = Setting("PEXLO_FUZZ", kSequences);
    const unsigned firstSeed = Setting("PEXLO_FUZZ_SEED", 1);
    for (unsigned i = 0; i < sequences && !HasFailure(); ++i)
    {
        SCOPED_TRACE(testing::Message() << "sequence " << i << " of PEXLO_FUZZ_SEED=" << firstSeed);
        RunSequence(firstSeed * 1000003u + i);
    }
    EXPECT_GT(m_accepted, sequences / 20);
    EXPECT_GT(m_refused, sequences / 20);
}

} // namespace
