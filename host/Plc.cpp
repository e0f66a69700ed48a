#include "host/Plc.h"

#include <algorithm>

namespace
{
// Bit devices are numbered word x 16 + bit.
constexpr int LastBit(int word) { return word * 16 + 15; }

std::vector<SDeviceRange> Devices(int lastInputWord, int lastRelayWord, int lastTimer, int lastRegister)
{
    return {
        {"X", 0, LastBit(lastInputWord)},
        {"Y", 0, LastBit(lastInputWord)},
        {"R", 0, LastBit(lastRelayWord)},
        {"Sp.R", 14400, LastBit(911)},
        {"T", 0, lastTimer},
        {"C", lastTimer + 1, lastTimer + 16},
        {"L", 0, LastBit(127)},
        {"WX", 0, lastInputWord},
        {"WY", 0, lastInputWord},
        {"WR", 0, lastRelayWord},
        {"Sp.WR", 900, 911},
        {"WL", 0, 127},
        {"DT", 0, lastRegister},
        {"Sp.DT", 90000, 90511},
        {"SV", 0, lastTimer + 16},
        {"EV", 0, lastTimer + 16},
        {"LD", 0, 255},
    };
}

// The same channels for every instruction that takes a channel.
std::vector<SOfferedChannel> Channels(const std::vector<int>& channels)
{
    std::vector<SOfferedChannel> offered;
    for (int instruction = 171; instruction <= 175; ++instruction)
    {
        for (int channel : channels)
            offered.push_back({channel, instruction});
    }
    return offered;
}

const std::vector<int> kFamilyA = {168, 169, 170, 171, 172, 173, 174, 175, 176};
const std::vector<int> kFamilyB = {171, 172, 173, 174, 175, 177};
const std::vector<int> kFamilyC = {171, 172, 173, 174, 175};
} // namespace

const std::vector<SPlc>& PlcPresets()
{
    // clang-format off
    static const std::vector<SPlc> presets = {
        // name             title                                 type slots axes F175  devices                        channels                instructions
        {"compact",         "Compact (family A)",                  1,   8,   2,   0, Devices(12, 62, 99, 1659),      Channels({0, 2}),       kFamilyA},
        {"large",           "Large, four-axis units (family A)",   50,  32,  4,   0, Devices(109, 255, 1007, 32764), Channels({0, 1, 2, 3}), kFamilyA},
        {"large-two-axis",  "Large, two-axis units (family A)",    50,  32,  2,   0, Devices(109, 255, 1007, 32764), Channels({0, 1, 2, 3}), kFamilyA},
        {"small-table",     "Eight data registers (family A)",     1,   8,   2,   0, Devices(12, 62, 99, 7),         Channels({0, 2}),       kFamilyA},
        {"family-b",        "Numbered channels (family B)",        70,  16,  4,   0, Devices(109, 255, 1007, 12314), Channels({0, 1, 2, 3}), kFamilyB},
        {"family-b-114",    "Numbered channels (family B, 114)",   114, 16,  4,   0, Devices(109, 255, 1007, 12314), Channels({0, 1}),       kFamilyB},
        {"family-b-117",    "Numbered channels (family B, 117)",   117, 16,  4,   0, Devices(109, 255, 1007, 32764), Channels({0, 1, 2, 3}), kFamilyB},
        {"family-c",        "Numbered channels (family C)",        160, 16,  4,   0, Devices(109, 511, 1007, 65532), Channels({0, 1, 2, 3}), kFamilyC},
    };
    // clang-format on
    return presets;
}

const SPlc* FindPlcPreset(const std::string& name)
{
    const std::vector<SPlc>& presets = PlcPresets();
    const auto preset = std::find_if(presets.begin(), presets.end(), [&](const SPlc& plc) { return plc.name == name; });
    return preset == presets.end() ? nullptr : &*preset;
}
