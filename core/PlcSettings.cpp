// The wizard object's picture of the PLC: type, device ranges, slots and channels.
#include "core/Devices.h"
#include "core/FunWizard.h"
#include "core/Memory.h"

#include <bit>

namespace
{

constexpr BYTE kDefaultMaxSlot = 32;
constexpr int kFirstChannelInstruction = kInstructionSpdh;
constexpr int kChannelInstructions = kInstructionSpsh - kInstructionSpdh + 1;
constexpr int kMaskBits = 16;
constexpr int kDispTypeShift = 12;
constexpr WORD kDispTypeMask = 0xF000;

DWORD RangeKey(short kind, short code) { return static_cast<DWORD>(MAKELONG(code, kind)); }

} // namespace

void CFunWizard::SetPlcType(unsigned char type) { m_plcType = type; }
unsigned char CFunWizard::GetPlcType() const { return m_plcType; }

void CFunWizard::SetMaxSlot(unsigned char count) { m_maxSlot = count; }
unsigned char CFunWizard::GetMaxSlot() const { return m_maxSlot; }
void CFunWizard::SetDefaultMaxSlot() { m_maxSlot = kDefaultMaxSlot; }

void CFunWizard::SetDevRange(short kind, short code, int low, int high)
{
    // Without memory the device stays absent, and the dialogs say so.
    (void)WithMemory([&] { m_deviceRanges.SetAt(RangeKey(kind, code), SDevRange{low, high}); });
}

int CFunWizard::GetDevRange(short kind, short code, int& low, int& high) const
{
    SDevRange range;
    if (!m_deviceRanges.Lookup(RangeKey(kind, code), range))
        return 0;
    low = range.low;
    high = range.high;
    return 1;
}

int CFunWizard::GetSeqDevInfo(int index, short& kind, short& code, unsigned char& bitKind, unsigned char options) const
{
    kind = -1;
    code = -1;
    const SDeviceKind* device = DeviceAt(index);
    if (device == nullptr || (options & device->options) != device->options)
        return -1;
    code = device->code;
    bitKind = device->bitKind;
    if (device->options != 0)
        return 0; // Constants need no range.
    int low, high;
    return GetDevRange(kind, code, low, high) ? 0 : 1;
}

int CFunWizard::GetChannelTypeIndex(int instruction) const
{
    if (instruction < kFirstChannelInstruction || instruction >= kFirstChannelInstruction + kChannelInstructions)
        return -1;
    return instruction - kFirstChannelInstruction;
}

const WORD* CFunWizard::ChannelMask(int instruction) const
{
    const int index = GetChannelTypeIndex(instruction);
    return index >= 0 ? &m_channels[index] : nullptr;
}

void CFunWizard::SetChannelNo(int channel, int instruction)
{
    const int index = GetChannelTypeIndex(instruction);
    if (index >= 0)
        m_channels[index] |= static_cast<WORD>(1u << (channel & 31));
}

void CFunWizard::ResetChannelNo()
{
    for (WORD& mask : m_channels)
        mask = 0;
}

int CFunWizard::GetNumOfChannel(int instruction) const
{
    const WORD* mask = ChannelMask(instruction);
    return mask != nullptr ? std::popcount(*mask) : 0;
}

int CFunWizard::GetChannelNo(int n, int instruction) const
{
    const WORD* mask = ChannelMask(instruction);
    if (mask == nullptr || n < 0)
        return -1;
    for (int channel = 0; channel < kMaskBits; channel++)
        if ((*mask >> channel & 1) != 0 && n-- == 0)
            return channel;
    return -1;
}

void CFunWizard::SetF175DispType(unsigned short type)
{
    if (type != 1 && type != 2)
        return;
    WORD& mask = m_channels[GetChannelTypeIndex(kInstructionSpsh)];
    mask = static_cast<WORD>((mask & ~kDispTypeMask) | type << kDispTypeShift);
}

unsigned short CFunWizard::GetF175DispType() const
{
    return static_cast<unsigned short>(*ChannelMask(kInstructionSpsh) >> kDispTypeShift);
}
