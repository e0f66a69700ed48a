#include "host/PlcJson.h"

#include "host/DeviceText.h"
#include "host/JsonNode.h"

#include <algorithm>
#include <cstdint>

namespace
{
SPlc Preset(const CJsonNode& node)
{
    std::map<std::string, SPlc> presets;
    for (const SPlc& plc : PlcPresets())
        presets[plc.name] = plc;
    return node.Choose(presets);
}

std::vector<SDeviceRange> Ranges(const CJsonNode& node)
{
    std::vector<SDeviceRange> ranges;
    for (const auto& [device, bounds] : node.Members())
    {
        if (DeviceCode(device) < 0)
            bounds.Refuse("there is no device \"" + device + "\"");
        const std::vector<CJsonNode> pair = bounds.Elements();
        if (pair.size() != 2)
            bounds.Refuse("two numbers, [lowest, highest], are expected");
        ranges.push_back({device, pair[0].Int(INT32_MIN, INT32_MAX), pair[1].Int(INT32_MIN, INT32_MAX)});
    }
    return ranges;
}

std::vector<SOfferedChannel> Channels(const CJsonNode& node)
{
    std::vector<SOfferedChannel> channels;
    for (const auto& [instruction, list] : node.Members())
    {
        const std::vector<std::string> known = {"171", "172", "173", "174", "175"};
        if (std::find(known.begin(), known.end(), instruction) == known.end())
            list.Refuse("only the instructions 171 to 175 take channels");
        for (const CJsonNode& channel : list.Elements())
            channels.push_back({channel.Int(0, 15), std::stoi(instruction)});
    }
    return channels;
}
} // namespace

SPlc ReadPlc(const CJsonNode& node)
{
    if (node.IsText())
        return Preset(node);

    node.ExpectKeys(
        {"preset", "type", "slots", "axes", "startType", "display175", "ranges", "channels", "instructions"});
    SPlc plc = node.Has("preset") ? Preset(node["preset"]) : SPlc();
    if (!node.Has("preset"))
        plc.name = "custom";
    if (node.Has("type"))
        plc.type = node["type"].Int(0, 255);
    if (node.Has("slots"))
        plc.slots = node["slots"].Int(0, 255);
    if (node.Has("axes"))
        plc.axes = node["axes"].Int(2, 4);
    if (node.Has("startType"))
        plc.startType = node["startType"].Int(0, 2);
    if (node.Has("display175"))
        plc.display175 = node["display175"].Int(0, 2);
    if (node.Has("ranges"))
        plc.ranges = Ranges(node["ranges"]);
    if (node.Has("channels"))
        plc.channels = Channels(node["channels"]);
    if (node.Has("instructions"))
    {
        plc.instructions.clear();
        for (const CJsonNode& instruction : node["instructions"].Elements())
            plc.instructions.push_back(instruction.Int(168, 177));
    }
    return plc;
}
