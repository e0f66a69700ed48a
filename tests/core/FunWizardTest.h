// What the tests of the wizard object share: access to the settings that no operation sets, and readable lists.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "core/FunWizard.h"

/// The way around the missing setters of the last confirmed wizard and the option fields.
struct SFunWizardTest
{
    static void SetLastWizard(CFunWizard& wizard, BYTE unitMode, int instruction, int variant)
    {
        wizard.m_unitMode = unitMode;
        wizard.m_lastInstruction = instruction;
        wizard.m_lastVariant = variant;
    }
    static int UnitMode(const CFunWizard& wizard) { return wizard.m_unitMode; }
    static int LastInstruction(const CFunWizard& wizard) { return wizard.m_lastInstruction; }
    static int LastVariant(const CFunWizard& wizard) { return wizard.m_lastVariant; }

    /// The wizard frees the library with itself.
    static void SetLibrary(CFunWizard& wizard, HINSTANCE library) { wizard.m_library = library; }

    static void SetAxisFlag(CFunWizard& wizard, BYTE flag) { wizard.m_axisType = flag; }
    static int AxisFlag(const CFunWizard& wizard) { return wizard.m_axisType; }

    static void SetOption(CFunWizard& wizard, int index, int value) { wizard.m_options[index] = value; }
    static int Option(const CFunWizard& wizard, int index) { return wizard.m_options[index]; }

    static WORD ChannelWord(const CFunWizard& wizard, int index) { return wizard.m_channels[index]; }
    static CString AppName(const CFunWizard& wizard) { return wizard.m_appName; }
    static CFont* DialogFont(const CFunWizard& wizard) { return wizard.m_dialogFont; }
    static int RangeCount(const CFunWizard& wizard) { return static_cast<int>(wizard.m_deviceRanges.GetCount()); }

    struct SField
    {
        size_t offset;
        size_t size;
    };

    /// Where the fields stand, in the order in which hosts expect them.
    static std::vector<SField> Fields(const CFunWizard& wizard)
    {
        const auto at = [&wizard](const auto& field) {
            const char* start = reinterpret_cast<const char*>(&wizard);
            // NOLINTNEXTLINE(bugprone-sizeof-expression): of a pointer, too, it is the field's own size that counts
            return SField{static_cast<size_t>(reinterpret_cast<const char*>(&field) - start), sizeof field};
        };
        return {at(wizard.m_library),       at(wizard.m_appName),       at(wizard.m_helpPath),
                at(wizard.m_dialogFont),    at(wizard.m_dialogData),    at(wizard.m_deviceRanges),
                at(wizard.m_unitMode),      at(wizard.m_axisType),      at(wizard.m_lastInstruction),
                at(wizard.m_lastVariant),   at(wizard.m_channels),      at(wizard.m_maxSlot),
                at(wizard.m_supported),     at(wizard.m_contacts),      at(wizard.m_operands),
                at(wizard.m_data),          at(wizard.m_instructions),  at(wizard.m_comments),
                at(wizard.m_onlyDataTable), at(wizard.m_commentRecord), at(wizard.m_startType),
                at(wizard.m_plcType),       at(wizard.m_options)};
    }

    static UINT BucketCount(const CFunWizard& wizard) { return wizard.m_deviceRanges.GetHashTableSize(); }

    static int SupportedCount(const CFunWizard& wizard) { return static_cast<int>(wizard.m_supported.GetSize()); }
};

/// An instruction record as the tests write it: kind, device code, value and, unless both are 0, the two flags.
inline std::string RecordText(const SFWzdInstCode& record)
{
    std::string text =
        std::to_string(record.kind) + " " + std::to_string(record.code) + " " + std::to_string(record.value);
    if (record.flag1 != 0 || record.flag2 != 0)
        text += " /" + std::to_string(record.flag1) + " " + std::to_string(record.flag2);
    return text;
}

/// The whole instruction list, one line a record.
inline std::string ProgramText(const CFunWizard& wizard)
{
    std::string text;
    for (int i = 0; i < wizard.GetInstCodeCount(); ++i)
    {
        SFWzdInstCode record;
        if (wizard.GetInstCodeInfo(i, &record) != 1)
            return text + "unreadable record\n";
        text += RecordText(record) + "\n";
    }
    return text;
}

/// Joins lines, so that expected programs can be put together from named pieces.
inline std::string Lines(std::initializer_list<std::string> lines)
{
    std::string text;
    for (const std::string& line : lines)
        text += line + "\n";
    return text;
}
