// What is told of the fields of every dialog: names, labels, items, limits, ranges, and what is wrong with an entry.
#include "dialogs/base/Catalogue.h"
#include "dialogs/unseen/FormFiller.h"
#include "resources/resource.h"
#include "tests/capi/Capi.h"
#include "tests/core/FunWizardTest.h"
#include "tests/dialogs/InstructionDialogs.h"
#include "tests/support/DesktopTest.h"
#include "tests/support/Sampled.h"

#include <cctype>
#include <map>
#include <set>

namespace
{

constexpr int kLanguages[] = {0, 1, 2, 3, 4, 5, 6, 9};

class CapiFieldsTest : public CDesktopTest, public testing::WithParamInterface<SFormRow>
{
protected:
    CapiFieldsTest() : m_form(FormOf(GetParam())) { Prepare(m_handle, GetParam()); }

    /// `entries` with one of them replaced, or one more.
    static CTextEntries With(CTextEntries entries, const std::string& name, const std::string& text)
    {
        std::erase_if(entries, [&](const STextEntry& entry) { return entry.name == name; });
        entries.emplace_back(name, text);
        return entries;
    }

    CCapiHandle m_handle;
    PexloForm m_form;
};

bool IsName(const std::string& name)
{
    return !name.empty() && std::islower(static_cast<unsigned char>(name[0])) != 0 &&
           std::all_of(name.begin(), name.end(),
                       [](unsigned char c) { return std::islower(c) != 0 || std::isdigit(c) != 0 || c == '-'; });
}

TEST_P(CapiFieldsTest, HaveNamesOfTheirOwn)
{
    std::set<std::string> names;
    std::set<int> controls;
    const SDescribed described = Describe(m_handle, m_form);
    ASSERT_GT(described.result, 3);
    EXPECT_EQ(described.refusal.reason, 0);
    EXPECT_FALSE(FieldText(m_handle, -1).empty());
    for (const PexloField& field : described.fields)
    {
        SCOPED_TRACE(testing::Message() << field.control << ' ' << field.name);
        EXPECT_EQ(field.size, sizeof field);
        EXPECT_TRUE(IsName(field.name));
        EXPECT_LT(std::string(field.name).size(), sizeof field.name - 1);
        EXPECT_TRUE(names.insert(field.name).second);
        EXPECT_TRUE(controls.insert(field.control).second);
        EXPECT_GE(field.kind, PEXLO_FIELD_EDIT);
        EXPECT_LE(field.kind, PEXLO_FIELD_TABLE);
        EXPECT_STRNE(field.label, "");
    }
}

TEST_P(CapiFieldsTest, AreTheSameInEveryLanguage)
{
    const SDescribed english = Describe(m_handle, m_form);
    std::set<std::string> captions;
    for (const int language : Sampled(kLanguages, 3))
    {
        SCOPED_TRACE(language);
        Prepare(m_handle, GetParam(), language);
        const SDescribed other = Describe(m_handle, m_form);
        ASSERT_EQ(other.result, english.result);
        int different = 0;
        for (size_t i = 0; i < other.fields.size(); ++i)
        {
            const PexloField& field = other.fields[i];
            const PexloField& known = english.fields[i];
            EXPECT_STREQ(field.name, known.name);
            EXPECT_EQ(field.control, known.control);
            EXPECT_EQ(field.kind, known.kind);
            EXPECT_EQ(field.enabled, known.enabled);
            EXPECT_EQ(field.itemCount, known.itemCount);
            EXPECT_EQ(field.low, known.low);
            EXPECT_EQ(field.high, known.high);
            EXPECT_EQ(field.problem, known.problem);
            EXPECT_EQ(field.messageId, known.messageId);
            different += std::string(field.label) != known.label;
            EXPECT_EQ(FieldItems(m_handle, static_cast<int>(i)).size(), static_cast<size_t>(field.itemCount));
        }
        if (language != 0)
        {
            EXPECT_GT(different, 1);
        }
    }
}

// A host that knows nothing of the dialog but this can fill it.
TEST_P(CapiFieldsTest, SayWhatIsAccepted)
{
    for (const bool highest : {false, true})
    {
        const CTextEntries entries = AcceptedEntries(m_handle, m_form, highest);
        const SKeptState before = StateOf(m_handle);
        const SOutcome checked = Check(m_handle, m_form, entries);
        EXPECT_EQ(checked.result, 1) << checked << testing::PrintToString(entries);
        EXPECT_EQ(StateOf(m_handle), before);
    }
    auto form = m_form;
    EXPECT_EQ(Fill(m_handle, form, AcceptedEntries(m_handle, m_form)).result, 1);
    if (form.instruction == PEXLO_FORM_CONTROL_CODE)
        return;
    EXPECT_EQ(Pexlo_CreateInstCode(m_handle), 1);
    EXPECT_GT(Pexlo_GetInstCodeCount(m_handle), 0);
}

/// A number in units of its last decimal, as one types it.
std::string Typed(long long number, int decimals)
{
    std::string digits = std::to_string(number < 0 ? -number : number);
    if (decimals > 0)
    {
        const auto places = static_cast<size_t>(decimals);
        if (digits.size() <= places)
            digits.insert(0, places + 1 - digits.size(), '0');
        digits.insert(digits.size() - places, ".");
    }
    return (number < 0 ? "-" : "") + digits;
}

TEST_P(CapiFieldsTest, EndWhereTheirRangesEnd)
{
    const CTextEntries base = AcceptedEntries(m_handle, m_form);
    const SDescribed described = Describe(m_handle, m_form, base);
    std::vector<PexloField> ranged;
    for (const PexloField& field : described.fields)
        if (field.hasRange != 0 && field.enabled != 0)
            ranged.push_back(field);
    for (const PexloField& field : Sampled(ranged, 6))
    {
        SCOPED_TRACE(testing::Message() << field.name << ' ' << field.lowest << ".." << field.highest);
        EXPECT_LE(field.low, field.high);
        EXPECT_NE(field.messageId, 0);
        const auto described1 = [&](const std::string& text) {
            const SDescribed with = Describe(m_handle, m_form, With(base, field.name, text));
            return with.refusal.reason != 0 ? -with.refusal.reason : with.Field(field.name).problem;
        };
        EXPECT_EQ(described1(field.lowest), 0);
        EXPECT_EQ(described1(field.highest), 0);
        // Device numbers of bits are not written in decimal, nor are hexadecimal entries.
        if (Typed(field.low, field.decimals) != field.lowest || Typed(field.high, field.decimals) != field.highest)
            continue;
        for (const long long number : {field.low - 1LL, field.high + 1LL})
        {
            const std::string text = Typed(number, field.decimals);
            const int problem = described1(text);
            // Where no sign can be, it is no number at all.
            EXPECT_TRUE(problem == field.messageId || problem == -PEXLO_REFUSED_TYPING ||
                        (number < 0 && field.low >= 0 && problem == IDS_ERR_NOT_A_NUMBER))
                << text << ": " << problem;
            const SOutcome outcome = Check(m_handle, m_form, With(base, field.name, text));
            EXPECT_EQ(outcome.result, 2) << text;
            EXPECT_EQ(outcome.refusal.control, field.control) << text;
            EXPECT_STREQ(outcome.refusal.name, field.name);
            EXPECT_EQ(outcome.refusal.entry, static_cast<int>(With(base, field.name, text).size()) - 1);
            if (problem > 0)
            {
                EXPECT_EQ(outcome.refusal.messageId, problem);
                EXPECT_STRNE(outcome.refusal.message, "");
            }
        }
    }
}

TEST_P(CapiFieldsTest, TakeTheirItemsByTextAndCode)
{
    const CTextEntries base = AcceptedEntries(m_handle, m_form);
    const SDescribed described = Describe(m_handle, m_form, base);
    int lists = 0;
    for (size_t i = 0; i < described.fields.size(); ++i)
    {
        const PexloField& field = described.fields[i];
        if (field.kind != PEXLO_FIELD_LIST || field.enabled == 0 || (!IsThorough() && ++lists > 1))
            continue;
        SCOPED_TRACE(field.name);
        ASSERT_GE(Describe(m_handle, m_form, base).result, 1);
        const std::vector<PexloItem> items = FieldItems(m_handle, static_cast<int>(i));
        ASSERT_EQ(items.size(), static_cast<size_t>(field.itemCount));
        std::map<unsigned, int> codes;
        for (const PexloItem& item : items)
            ++codes[item.code];
        for (int item = 0; item < field.itemCount; ++item)
        {
            const PexloItem& one = items[static_cast<size_t>(item)];
            char hexadecimal[16];
            std::snprintf(hexadecimal, sizeof hexadecimal, "#0x%X", one.code);
            const std::string code = item % 2 == 0 ? hexadecimal : '#' + std::to_string(one.code);
            for (const std::string& text : {std::string(one.text), code})
            {
                if (text[0] == '#' && codes[one.code] > 1)
                    ADD_FAILURE() << "the code " << one.code << " means several items";
                const SDescribed with = Describe(m_handle, m_form, {{field.name, text}});
                EXPECT_EQ(with.refusal.reason, 0) << text << ": " << with.refusal.message;
                EXPECT_EQ(with.Field(field.name).selected, item) << text;
                EXPECT_STREQ(with.Field(field.name).text, one.text);
            }
        }
        for (const char* const none :
             {"no such item", "", "#", "#x", "#4000000000", "#99999999999999999999", "#-1", "# 1"})
        {
            const SOutcome outcome = Check(m_handle, m_form, {{field.name, none}});
            EXPECT_EQ(outcome.result, 2);
            EXPECT_EQ(outcome.refusal.reason, PEXLO_REFUSED_NO_ITEM) << none;
            EXPECT_EQ(outcome.refusal.entry, 0);
            EXPECT_EQ(outcome.refusal.control, field.control);
        }
    }
}

TEST_P(CapiFieldsTest, TakeWhatCanBeTyped)
{
    const CTextEntries base = AcceptedEntries(m_handle, m_form);
    const SDescribed described = Describe(m_handle, m_form, base);
    for (const PexloField& field : Sampled(described.fields, 5))
    {
        if (field.kind != PEXLO_FIELD_EDIT || field.enabled == 0)
            continue;
        SCOPED_TRACE(field.name);
        const auto reason = [&](const std::string& text) {
            return Describe(m_handle, m_form, With(base, field.name, text)).refusal.reason;
        };
        if (field.limit > 0)
        {
            const auto limit = static_cast<size_t>(field.limit);
            EXPECT_EQ(reason(std::string(limit, '1')), 0);
            EXPECT_EQ(reason(std::string(limit + 1, '1')), PEXLO_REFUSED_TYPING);
        }
        EXPECT_EQ(reason("x"), field.digitsOnly != 0 ? PEXLO_REFUSED_TYPING : 0);
        EXPECT_EQ(reason("1\n"), PEXLO_REFUSED_TYPING);
        EXPECT_EQ(reason(""), 0);
    }
}

TEST_P(CapiFieldsTest, HaveControlsByIdToo)
{
    const CTextEntries named = AcceptedEntries(m_handle, m_form);
    const SDescribed described = Describe(m_handle, m_form);
    CTextEntries numbered;
    for (const STextEntry& entry : named)
        numbered.emplace_back(described.Field(entry.name).control, entry.text);
    auto form = m_form;
    EXPECT_EQ(Fill(m_handle, form, numbered).result, 1);
    const SResults results = ReadResults(m_handle);
    Prepare(m_handle, GetParam());
    form = m_form;
    EXPECT_EQ(Fill(m_handle, form, named).result, 1);
    EXPECT_EQ(ReadResults(m_handle), results);
}

INSTANTIATE_TEST_SUITE_P(Forms, CapiFieldsTest, testing::ValuesIn(Sampled(FormRows(), 9)),
                         [](const auto& test) { return test.param.name; });

// ---- That nothing is left out ---------------------------------------------------------------------------------------

/// Tells which dialog comes up.
class CTemplateSeer : public CFormFiller
{
public:
    explicit CTemplateSeer(const SWizardChoice& choice) : CFormFiller(choice, {}, false) {}

    void Work(CWzdDialog& dialog) override { m_seen = dialog.TemplateId(); }

    UINT m_seen = 0;
};

TEST(CapiFormsTest, AreAllDialogs)
{
    std::set<UINT> seen;
    CFunWizard wizard;
    for (const SFormRow& row : FormRows())
    {
        FindPlcPreset(row.plc)->Configure(wizard);
        wizard.SetLanguageInfo(0);
        CTemplateSeer seer({row.instruction, row.variant});
        const CUnseenScope scope(seer);
        ULONG code = 0;
        switch (row.instruction)
        {
        case 355:
            wizard.DoOpenPIDDlg(30, nullptr);
            break;
        case 180:
            wizard.DoOpenSCRDlg(nullptr, nullptr);
            break;
        case 282:
        case 283:
        case 354:
            wizard.DoOpenSCALDlg(nullptr, row.instruction == 282 ? 0 : row.instruction == 283 ? 1 : 2, nullptr);
            break;
        case PEXLO_FORM_CONTROL_CODE:
            wizard.DoInputPosCtrlDlg(code, nullptr);
            break;
        default:
            wizard.DoOpenPosDlg(row.instruction == 151 ? 1 : 0, 1, nullptr);
        }
        EXPECT_NE(seer.m_seen, 0u) << row.name;
        seen.insert(seer.m_seen);
    }
    for (const SInstructionDialog& row : kInstructionDialogs)
        EXPECT_TRUE(seen.contains(row.make(&wizard)->TemplateId())) << row.name;
}

TEST(CapiFormsTest, AreOffered)
{
    constexpr const char* kPresets[] = {"compact", "large", "family-b", "family-b-114", "family-b-117", "family-c"};
    for (const char* const plc : Sampled(kPresets, 3))
    {
        const CCapiHandle handle;
        Prepare(handle, {"", plc, 0});
        std::set<std::pair<int, int>> offers;
        auto offer = Sized<PexloOffer>();
        for (int i = 0; Pexlo_GetOffer(handle, i, &offer) == 1; ++i)
        {
            EXPECT_TRUE(offers.emplace(offer.instruction, offer.variant).second);
            const bool isListed = offer.instruction >= 151 && offer.instruction <= 177;
            EXPECT_EQ(isListed, offer.text[0] != '\0');
            EXPECT_GT(Describe(handle, FormOf(offer.instruction, offer.variant)).result, 0)
                << plc << ' ' << offer.instruction << ' ' << offer.variant;
        }
        EXPECT_EQ(Pexlo_GetOffer(handle, -1, &offer), 0);
        for (const SFormRow& row : FormRows())
            if (std::string(row.plc) == plc)
            {
                EXPECT_TRUE(offers.contains({row.instruction, row.variant})) << row.name;
            }
        // What is not offered cannot be opened.
        for (int instruction = 150; instruction < 180; ++instruction)
            for (const int variant : {0, 1, 2, 10010, 10020, 10080, 10090, -1})
            {
                const auto form = FormOf(instruction, variant);
                const int result = Pexlo_Check(handle, &form, nullptr, 0, nullptr);
                if (offers.contains({instruction, variant}))
                    EXPECT_GT(result, 0) << instruction << ' ' << variant;
                else
                    EXPECT_EQ(result, PEXLO_E_INSTRUCTION) << plc << ' ' << instruction << ' ' << variant;
            }
    }
}

} // namespace
