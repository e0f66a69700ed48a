// What the selection dialog lists for which PLC, how it explains an item, and where a choice leads.
#include "dialogs/base/Catalogue.h"

#include <gtest/gtest.h>

#include <ostream>
#include <vector>

namespace
{

struct SItem
{
    unsigned text;
    int instruction;
    int variant;

    bool operator==(const SItem&) const = default;
};

std::ostream& operator<<(std::ostream& out, const SItem& item)
{
    return out << item.text << "/" << item.instruction << "/" << item.variant;
}

using Items = std::vector<SItem>;

const Items kTableA = {
    {10000, 168, 0}, {10002, 168, 1}, {10004, 169, 0}, {10006, 170, 0}, {10008, 171, 0}, {10010, 171, 1},
    {10012, 172, 0}, {10014, 173, 0}, {10016, 174, 0}, {10018, 175, 0}, {10020, 176, 0}, {10022, 355, 0},
};
const Items kTableB1 = {
    {10024, 171, 0}, {10026, 171, 1}, {10028, 172, 0}, {10030, 173, 0},
    {10032, 174, 0}, {10034, 175, 0}, {10036, 177, 0},
};
const Items kTableB2 = {{10024, 171, 0}, {10028, 172, 0}, {10030, 173, 0}, {10032, 174, 0}, {10036, 177, 0}};
const Items kTableB3 = {
    {10024, 171, 0}, {10028, 172, 0}, {10030, 173, 0}, {10032, 174, 0}, {10034, 175, 0}, {10036, 177, 0},
};
const Items kTableOfOperations = {
    {10500, 151, 10010}, {10502, 151, 10020}, {10504, 151, 10030}, {10506, 151, 10040},
    {10508, 151, 10050}, {10514, 151, 10060}, {10510, 151, 10070}, {10512, 151, 10080},
};

const Items& TableOf(int plcType)
{
    switch (plcType)
    {
    case 70:
    case 71:
    case 72:
    case 73:
    case 74:
        return kTableB1;
    case 114:
        return kTableB2;
    case 117:
        return kTableB3;
    default:
        return kTableA;
    }
}

Items Listed(EWizardMode mode, int plcType)
{
    Items items;
    for (const SCatalogueItem& item : CatalogueItems(mode, static_cast<BYTE>(plcType)))
        items.push_back({item.text, item.choice.instruction, item.choice.variant});
    return items;
}

enum EFamily
{
    A,
    B,
    C
};

EFamily FamilyOf(int plcType)
{
    switch (plcType)
    {
    case 70:
    case 71:
    case 72:
    case 73:
    case 74:
    case 114:
    case 117:
        return B;
    case 160:
    case 161:
    case 164:
    case 165:
    case 168:
        return C;
    default:
        return A;
    }
}

/// What an instruction leads to: for each family the id of variant 0 and that of every other variant, 0 for nothing.
struct SRow
{
    int instruction;
    unsigned ids[3][2];
};

const std::vector<SRow> kExplanations = {
    {168, {{10001, 10003}, {0, 0}, {0, 0}}},
    {169, {{10005, 10005}, {0, 0}, {0, 0}}},
    {170, {{10007, 10007}, {0, 0}, {0, 0}}},
    {171, {{10009, 10011}, {10025, 10027}, {10039, 22005}}},
    {172, {{10013, 10013}, {10029, 10029}, {22006, 22006}}},
    {173, {{10015, 10015}, {10031, 10031}, {22007, 22007}}},
    {174, {{10017, 10017}, {10033, 10033}, {22008, 22008}}},
    {175, {{10019, 10019}, {10035, 10035}, {22009, 22009}}},
    {176, {{10021, 10021}, {0, 0}, {0, 0}}},
    {177, {{0, 0}, {10037, 10037}, {0, 0}}},
    {355, {{10023, 10023}, {10023, 10023}, {0, 0}}},
};

const std::vector<SRow> kTemplates = {
    {168, {{1011, 1012}, {0, 0}, {0, 0}}},
    {169, {{1013, 1013}, {0, 0}, {0, 0}}},
    {170, {{1014, 1014}, {0, 0}, {0, 0}}},
    {171, {{1015, 1016}, {1059, 1060}, {1061, 1069}}},
    {172, {{1017, 1017}, {1062, 1062}, {1070, 1070}}},
    {173, {{1018, 1018}, {1063, 1063}, {1071, 1071}}},
    {174, {{1019, 1019}, {1064, 1064}, {1072, 1072}}},
    {175, {{1020, 1020}, {1065, 1065}, {1073, 1073}}},
    {176, {{1021, 1021}, {0, 0}, {0, 0}}},
    {177, {{0, 0}, {1067, 1067}, {0, 0}}},
};

unsigned IdIn(const std::vector<SRow>& rows, int plcType, int instruction, bool first)
{
    for (const SRow& row : rows)
        if (row.instruction == instruction)
            return row.ids[FamilyOf(plcType)][first ? 0 : 1];
    return 0;
}

// Every instruction of a table, their neighbours, and those of the wizards that open without a selection.
const std::vector<int> kInstructions = {-1,  0,   151, 167, 168, 169, 170, 171, 172, 173, 174,
                                        175, 176, 177, 178, 180, 282, 283, 354, 355, 356};
const std::vector<int> kVariants = {-10010, -1, 0, 1, 2, 10010, 10040};

constexpr EWizardMode kOtherMode = static_cast<EWizardMode>(255);

} // namespace

TEST(Catalogue, ListsTheTableOfThePlcType)
{
    for (int plcType = 0; plcType < 256; ++plcType)
        EXPECT_EQ(Listed(kPulseInstructions, plcType), TableOf(plcType)) << "PLC type " << plcType;
}

TEST(Catalogue, ListsTheUnitOperationsForEveryPlc)
{
    for (int plcType = 0; plcType < 256; ++plcType)
    {
        EXPECT_EQ(Listed(kUnitOperations, plcType), kTableOfOperations) << "PLC type " << plcType;
        EXPECT_EQ(Listed(kOtherMode, plcType), kTableOfOperations) << "PLC type " << plcType;
    }
}

TEST(Catalogue, ExplainsAnInstructionByItsFamily)
{
    for (int plcType = 0; plcType < 256; ++plcType)
        for (const int instruction : kInstructions)
            for (const int variant : kVariants)
                EXPECT_EQ(ExplanationText(kPulseInstructions, static_cast<BYTE>(plcType), {instruction, variant}),
                          IdIn(kExplanations, plcType, instruction, variant == 0))
                    << "PLC type " << plcType << ", instruction " << instruction << "/" << variant;
}

TEST(Catalogue, ExplainsAnOperationByTheTextAfterItsName)
{
    for (const int plcType : {0, 1, 70, 114, 160, 255})
    {
        for (const SItem& item : kTableOfOperations)
            EXPECT_EQ(ExplanationText(kUnitOperations, static_cast<BYTE>(plcType), {151, item.variant}), item.text + 1)
                << "PLC type " << plcType << ", operation " << item.variant;
        for (const int variant : {-1, 0, 1, 10000, 10015, 10090})
            EXPECT_EQ(ExplanationText(kUnitOperations, static_cast<BYTE>(plcType), {151, variant}), 0u) << variant;
    }
}

TEST(Catalogue, LeadsToTheDialogOfTheFamily)
{
    for (int plcType = 0; plcType < 256; ++plcType)
        for (const int instruction : kInstructions)
            for (const int variant : kVariants)
            {
                // Only in family C a negative variant is the first form too.
                const bool first = variant == 0 || (variant < 0 && FamilyOf(plcType) == C);
                EXPECT_EQ(DialogTemplate(kPulseInstructions, static_cast<BYTE>(plcType), {instruction, variant}),
                          IdIn(kTemplates, plcType, instruction, first))
                    << "PLC type " << plcType << ", instruction " << instruction << "/" << variant;
            }
}

TEST(Catalogue, LeadsToTheDialogOfTheOperation)
{
    struct
    {
        int variant;
        unsigned dialog;
    } const rows[] = {
        {10010, 1051}, {10020, 1051}, {10060, 1051}, {10030, 1052}, {10040, 1053}, {10050, 1054}, {10070, 1055},
        {10080, 1056}, {-1, 0},       {0, 0},        {1, 0},        {10000, 0},    {10011, 0},    {10090, 0},
    };
    for (const int plcType : {0, 1, 70, 114, 117, 160, 255})
        for (const auto& row : rows)
            EXPECT_EQ(DialogTemplate(kUnitOperations, static_cast<BYTE>(plcType), {151, row.variant}), row.dialog)
                << "PLC type " << plcType << ", operation " << row.variant;
}
