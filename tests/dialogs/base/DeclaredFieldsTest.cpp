// What every dialog declares of its fields holds together. A new dialog is one more row of the table of dialogs.
#include "core/Values.h"
#include "resources/resource.h"
#include "tests/dialogs/FillDialog.h"
#include "tests/dialogs/InstructionDialogs.h"
#include "tests/dialogs/base/FieldRecorder.h"
#include "tests/resources/LanguageLibrary.h"
#include "tests/support/Controller.h"
#include "tests/support/DesktopTest.h"
#include "tests/support/PrintTo.h"
#include "tests/support/Results.h"
#include "tests/support/Sampled.h"

#include <algorithm>
#include <map>
#include <set>

namespace
{

class CDeclaredFieldsTest : public CDesktopTest, public testing::WithParamInterface<SInstructionDialog>
{
protected:
    /// Opens the dialog in a language.
    template <typename TLook>
    int InDialog(int language, TLook look)
    {
        SCOPED_TRACE(testing::Message() << "language " << language);
        CFunWizard wizard;
        SetUpController(wizard);
        if (language != kModule)
            wizard.SetLanguageInfo(language);
        return InDialog(wizard, look);
    }
    template <typename TLook>
    int InDialog(CFunWizard& wizard, TLook look)
    {
        const auto dialog = GetParam().make(&wizard);
        return Play([&] { return static_cast<int>(dialog->DoModal()); }, {[&](CDialogRobot& robot) {
                        look(*dialog, robot);
                        if (robot.IsOpen())
                            robot.Click(IDCANCEL);
                    }});
    }

    /// Looks at the fields in every state that the items of one combo lead to.
    template <typename TLook>
    void ForEachState(TLook look)
    {
        InDialog(kEnglish, [&](CWzdDlgBase& dialog, CDialogRobot&) {
            look(dialog, RecordFields(dialog));
            for (const SDeclaredField& field : RecordFields(dialog))
            {
                for (size_t item = 0; item < field.items.size(); ++item)
                {
                    SCOPED_TRACE(testing::Message() << "combo " << field.combo << ", item " << item);
                    dialog.Select(field.combo, static_cast<int>(item));
                    look(dialog, RecordFields(dialog));
                }
                if (!field.items.empty())
                    dialog.Select(field.combo, 0);
            }
        });
    }

    std::vector<int> Languages() const
    {
        std::vector<int> languages = BuiltLanguages();
        if (GetParam().sources == kLibrariesOnly)
            languages.erase(std::find(languages.begin(), languages.end(), kModule));
        return languages;
    }
};

int Length(LONGLONG number) { return FormatDecimal64(number).GetLength(); }

bool IsNumber(const SDeclaredField& field) { return field.edit != 0 && field.IsEntry(); }

} // namespace

TEST_P(CDeclaredFieldsTest, StandInTheTemplate)
{
    for (const int language : Languages())
    {
        InDialog(language, [&](CWzdDlgBase& dialog, CDialogRobot& robot) {
            const auto fields = RecordFields(dialog);
            EXPECT_FALSE(fields.empty());
            std::map<UINT, CString> classes;
            for (const SRobotControl& control : robot.Controls())
                classes[control.id] = control.className;
            for (const SDeclaredField& field : fields)
            {
                if (field.combo != 0)
                {
                    EXPECT_EQ(classes[field.combo], "ComboBox") << field.combo;
                }
                if (field.edit != 0)
                {
                    EXPECT_EQ(classes[field.edit], "Edit") << field.edit;
                }
                if (field.rangeLabel != 0)
                {
                    EXPECT_EQ(classes[field.rangeLabel], "Static") << field.rangeLabel;
                }
            }
        });
    }
}

TEST_P(CDeclaredFieldsTest, HaveTheirTextsInEveryLanguage)
{
    ForEachState([&](CWzdDlgBase&, const std::vector<SDeclaredField>& fields) {
        for (const int language : Languages())
        {
            SCOPED_TRACE(testing::Message() << "language " << language);
            const CLanguage scope(language);
            for (const SDeclaredField& field : fields)
            {
                EXPECT_EQ(field.message != 0, field.edit != 0) << "an edit has a message";
                if (field.message != 0)
                {
                    EXPECT_TRUE(LoadText(field.message)) << "message " << field.message;
                }
                for (const SWzdChoice& choice : field.items)
                {
                    const auto text = LoadText(choice.text);
                    ASSERT_TRUE(text) << "item " << choice.text;
                    EXPECT_FALSE(text->empty());
                    if (choice.argument != SWzdChoice::kPlainText)
                    {
                        EXPECT_NE(text->find('%'), std::string::npos) << *text;
                    }
                }
            }
        }
    });
}

TEST_P(CDeclaredFieldsTest, HaveControlsOfTheirOwn)
{
    ForEachState([](CWzdDlgBase&, const std::vector<SDeclaredField>& fields) {
        std::set<UINT> ids;
        for (const SDeclaredField& field : fields)
            for (const UINT id : {field.combo, field.edit, field.rangeLabel})
                if (id != 0)
                {
                    EXPECT_TRUE(ids.insert(id).second) << "control " << id << " belongs to two fields";
                }
    });
}

TEST_P(CDeclaredFieldsTest, HaveBitsOfTheirOwnThatHoldTheirCodes)
{
    ForEachState([](CWzdDlgBase&, const std::vector<SDeclaredField>& fields) {
        DWORD taken = 0;
        for (const SDeclaredField& field : fields)
        {
            std::set<DWORD> codes;
            for (const SWzdChoice& choice : field.items)
                EXPECT_TRUE(codes.insert(choice.code).second) << "two items of " << field.combo << " share a code";
            if (field.bits.width == 0)
                continue;
            EXPECT_FALSE(field.items.empty());
            ASSERT_GT(field.bits.width, 0);
            ASSERT_GE(field.bits.shift, 0);
            ASSERT_LE(field.bits.shift + field.bits.width, 32);
            for (int bit = field.bits.shift; bit < field.bits.shift + field.bits.width; ++bit)
            {
                EXPECT_EQ(taken & 1u << bit, 0u) << "combo " << field.combo << " shares bit " << bit;
                taken |= 1u << bit;
            }
            for (const SWzdChoice& choice : field.items)
                EXPECT_LT(static_cast<ULONGLONG>(choice.code), 1ull << field.bits.width) << "combo " << field.combo;
        }
    });
}

TEST_P(CDeclaredFieldsTest, CanBeEnteredToBothEndsOfTheirRanges)
{
    ForEachState([](CWzdDlgBase&, const std::vector<SDeclaredField>& fields) {
        for (const SDeclaredField& field : fields)
        {
            if (!IsNumber(field))
                continue;
            EXPECT_LE(field.range.low, field.range.high) << "edit " << field.edit;
            if (field.limit != 0)
            {
                EXPECT_LE(std::max(Length(field.range.low), Length(field.range.high)), field.limit)
                    << "edit " << field.edit;
            }
        }
    });
}

TEST_P(CDeclaredFieldsTest, HaveRegistersOfTheirOwnWithinTheTable)
{
    ForEachState([](CWzdDlgBase& dialog, const std::vector<SDeclaredField>& fields) {
        int lowest, highest, lowestStart, highestStart;
        ASSERT_TRUE(dialog.Wizard().GetDevRange(-1, kDT, lowest, highest));
        ASSERT_TRUE(dialog.GetDataTableRange(lowestStart, highestStart));
        EXPECT_EQ(lowestStart, lowest);
        const int words = highest - highestStart + 1;

        std::map<LONGLONG, int> fieldsOf;
        for (const SDeclaredField& field : fields)
        {
            if (!field.IsEntry())
                continue;
            for (LONGLONG word = field.entry.offset; word < field.entry.End(); ++word)
            {
                EXPECT_LT(word, words);
                ++fieldsOf[word];
            }
        }
        for (int word = 0; word < words; ++word)
            EXPECT_EQ(fieldsOf[word], GetParam().unusual.FieldsOf(word)) << "fields that share word " << word;
    });
}

// Fills every edit and selects an item in every combo, and sees the same again after OK.
TEST_P(CDeclaredFieldsTest, RestoreWhatTheyStored)
{
    CFunWizard wizard;
    SetUpController(wizard);
    wizard.SetLanguageInfo(kEnglish);
    wizard.SetStartType(2);
    const auto picture = [](CDialogRobot& robot) {
        std::vector<CString> texts;
        for (const SRobotControl& control : robot.Controls())
            if (control.visible) // What is hidden is not stored.
                texts.push_back(control.text);
        return texts;
    };
    for (int round = 0; round < SampledRounds(12, 12); ++round)
    {
        SCOPED_TRACE(testing::Message() << "round " << round);
        std::vector<CString> entered;
        const int result = InDialog(wizard, [&](CWzdDlgBase& dialog, CDialogRobot& robot) {
            FillDialog(dialog, robot, round);
            entered = picture(robot);
            robot.Click(IDOK);
        });
        ASSERT_EQ(result, 1);
        const SResults results = GetParam().Comparable(ReadResults(wizard));
        InDialog(wizard, [&](CWzdDlgBase&, CDialogRobot& robot) {
            EXPECT_EQ(picture(robot), entered);
            robot.Click(IDOK);
        });
        EXPECT_EQ(GetParam().Comparable(ReadResults(wizard)), results);
    }
}

INSTANTIATE_TEST_SUITE_P(Dialogs, CDeclaredFieldsTest, testing::ValuesIn(kInstructionDialogs),
                         [](const auto& test) { return std::string(test.param.name); });
