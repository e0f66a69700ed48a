// The controllers that the ladder tool knows: everything the wizard library wants to be told before a dialog opens.
#pragma once

#include "host/DeviceText.h"

#include <string>
#include <vector>

struct SDeviceRange
{
    std::string device; ///< its name: "X", "DT", "Sp.R"
    int low;
    int high;
};

struct SOfferedChannel
{
    int channel;     ///< 0..15
    int instruction; ///< 171..175
};

struct SPlc
{
    std::string name;  ///< for sessions and command lines
    std::string title; ///< for people
    int type = 0;
    int slots = 32;
    int axes = 4;       ///< of the positioning units: 2 or 4
    int display175 = 0; ///< how the F175 dialog shows its channel: 0 the usual way, 1, 2
    std::vector<SDeviceRange> ranges;
    std::vector<SOfferedChannel> channels;
    std::vector<int> instructions; ///< of the pulse-output list: 168..177
    int startType = 2; ///< what starts a positioning unit: 0 the user's program, 1 the relay of the axis, 2 any output

    /// Hands everything to the wizard, in place of what another controller left there: a CFunWizard, or any other
    /// class with its operations.
    template <typename TWizard>
    void Configure(TWizard& wizard) const;
};

const std::vector<SPlc>& PlcPresets();
/// Null when there is no preset of that name.
const SPlc* FindPlcPreset(const std::string& name);

template <typename TWizard>
void SPlc::Configure(TWizard& wizard) const
{
    // Device ranges can be replaced but not withdrawn one by one. This forgets them all, and the results with them;
    // the contacts have to be told separately, and the language is set again by the caller.
    wizard.ResetContents();
    wizard.RemoveAllContInfo();

    wizard.SetPlcType(static_cast<unsigned char>(type));
    wizard.SetMaxSlot(static_cast<unsigned char>(slots));
    wizard.SetStartType(static_cast<unsigned char>(startType));
    for (const SDeviceRange& range : ranges)
        wizard.SetDevRange(-1, static_cast<short>(DeviceCode(range.device)), range.low, range.high);

    wizard.ResetChannelNo();
    for (const SOfferedChannel& offered : channels)
        wizard.SetChannelNo(offered.channel, offered.instruction);
    wizard.SetF175DispType(static_cast<unsigned short>(display175));

    wizard.ClearSuppportFunInfo();
    for (int instruction : instructions)
        wizard.EntrySupportFunInfo(instruction);
}
