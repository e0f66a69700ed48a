// The wizard object: construction, settings and result lists.
#include "core/FunWizard.h"

#include "core/AppName.h"
#include "core/Devices.h"
#include "core/Memory.h"
#include "core/OpenWizard.h"
#include "core/Values.h"

#include <cstring>

namespace
{

constexpr int kFirstSelectable = kInstructionSpd1;
constexpr int kSelectableCount = kInstructionF177 - kInstructionSpd1 + 1;
constexpr int kDeviceBuckets = 101;
constexpr int kDeviceBlock = 10;
constexpr WORD kDefaultChannels = 5;
constexpr BYTE kHighestStartType = 2;

template <typename TArray>
bool Holds(const TArray& list, int index)
{
    return index >= 0 && index < list.GetSize();
}

CString& AppName()
{
    static CString name;
    return name;
}

} // namespace

LPCSTR GetAppName() { return AppName(); }

extern "C" void PexloDll_SetAppName(const char* name)
{
    (void)WithMemory([name] { AppName() = name; });
}

IMPLEMENT_DYNAMIC(CFunWizard, CObject)

CFunWizard::CFunWizard()
    : m_library(nullptr), m_dialogFont(nullptr), m_dialogData(nullptr), m_deviceRanges(kDeviceBlock), m_unitMode(0),
      m_axisType(1), m_lastInstruction(kNoInstruction),
      m_lastVariant(0), m_channels{kDefaultChannels, kDefaultChannels, kDefaultChannels, kDefaultChannels,
                                   kDefaultChannels},
      m_onlyDataTable(0), m_commentRecord(1), m_startType(0), m_plcType(0), m_options{1, 0, 1, 0}
{
    SetDefaultMaxSlot();
    m_deviceRanges.InitHashTable(kDeviceBuckets, FALSE); // a constructor cannot report that there is no memory
}

void* CFunWizard::operator new(size_t size) noexcept
{
    void* object = nullptr;
    (void)WithMemory([&] { object = CObject::operator new(size); });
    return object;
}

void CFunWizard::operator delete(void* object) { CObject::operator delete(object); }

CFunWizard::~CFunWizard()
{
    COpenWizard::Orphan(this);
    ResetContents();
    FreeFont();
}

void CFunWizard::ResetContents()
{
    if (COpenWizard::IsOpen(this))
        return;
    RemoveDlgData();
    ClearSuppportFunInfo();
    m_deviceRanges.RemoveAll();
    m_axisType = 1;
    RecordWizard(0, kNoInstruction, 0);
    RemoveAllOprdInfo();
    RemoveAllDataInfo();
    RemoveAllInstCodeInfo();
    RemoveAllCmtInfo();
    AfxFreeLibrary(m_library);
    m_library = nullptr;
}

void CFunWizard::RecordWizard(unsigned char mode, int instruction, int variant)
{
    m_unitMode = mode;
    m_lastInstruction = instruction;
    m_lastVariant = variant;
}

void CFunWizard::ForgetResults()
{
    RemoveDlgData();
    RemoveAllContInfo();
    RemoveAllOprdInfo();
    RemoveAllDataInfo();
    RemoveAllInstCodeInfo();
}

// ---- Settings -------------------------------------------------------------------------------------------------------

void CFunWizard::SetAppName(const char* name)
{
    (void)WithMemory([=, this] { m_appName = name; });
}

int CFunWizard::EntrySupportFunInfo(int instruction)
{
    int index = 0;
    while (GetSupportFunNum(index) >= 0 && GetSupportFunNum(index) != instruction)
        index++;
    if (GetSupportFunNum(index) < 0)
        return 1;
    if (FindSupportFun(instruction))
        return 0;
    return !WithMemory([=, this] { m_supported.Add(instruction); });
}

int CFunWizard::FindSupportFun(int instruction) const
{
    for (int i = 0; i < m_supported.GetSize(); i++)
        if (m_supported.GetAt(i) == static_cast<DWORD>(instruction))
            return 1;
    return 0;
}

int CFunWizard::GetSupportFunNum(int index) const
{
    return index >= 0 && index < kSelectableCount ? kFirstSelectable + index : -1;
}

void CFunWizard::ClearSuppportFunInfo() { m_supported.RemoveAll(); }

void CFunWizard::SetCmtRec(int on) { m_commentRecord = on; }
int CFunWizard::IsCmtRec() const { return m_commentRecord; }

void CFunWizard::SetOnlyDataTable(int on) { m_onlyDataTable = on; }
int CFunWizard::IsOnlyDataTable() const { return m_onlyDataTable; }

void CFunWizard::SetStartType(unsigned char type) { m_startType = type <= kHighestStartType ? type : 0; }
unsigned char CFunWizard::GetStartType() const { return m_startType; }

int CFunWizard::IsAxisType() const { return m_axisType == 0; }

int CFunWizard::IsStartCondition() const
{
    const int count = GetContInfoCount();
    if (count == 0)
        return 1;
    return count >= 3 && m_contacts[count - 1].Code() == kDeviceY;
}

int CFunWizard::IsSameCondition() const
{
    const int count = GetContInfoCount();
    if (count < 3)
        return 1;
    const SContact first = m_contacts[0];
    const SContact second = m_contacts[count - 2];
    if (first.Code() != second.Code())
        return 0;
    bool same = false;
    (void)WithMemory([&] {
        same = FormatDeviceNumber(first.Code(), first.number) == FormatDeviceNumber(second.Code(), second.number);
    });
    return same;
}

void CFunWizard::SetDlgDataPtr(void* data) { m_dialogData = data; }
void* CFunWizard::GetDlgDataPtr() const { return m_dialogData; }

void CFunWizard::RemoveDlgData()
{
    ::operator delete(m_dialogData);
    m_dialogData = nullptr;
}

// ---- Result lists ---------------------------------------------------------------------------------------------------

int CFunWizard::AddContInfo(short kind, short code, int number)
{
    const SContact contact = {number, static_cast<DWORD>(MAKELONG(code, kind))};
    return WithMemory([&] { m_contacts.Add(contact); });
}

int CFunWizard::GetContInfoCount() const { return static_cast<int>(m_contacts.GetSize()); }

int CFunWizard::GetContInfo(int index, short& kind, short& code, int& number) const
{
    if (!Holds(m_contacts, index))
        return 0;
    const SContact contact = m_contacts[index];
    kind = contact.Kind();
    code = contact.Code();
    number = contact.number;
    return 1;
}

void CFunWizard::RemoveAllContInfo() { m_contacts.RemoveAll(); }

int CFunWizard::AddOprdInfo(short code, int value)
{
    const SOperand operand = {value, static_cast<WORD>(code)};
    return WithMemory([&] { m_operands.Add(operand); });
}

int CFunWizard::GetOprdInfoCount() const { return static_cast<int>(m_operands.GetSize()); }

int CFunWizard::GetOprdInfo(int index, short& code, int& value) const
{
    if (!Holds(m_operands, index))
        return 0;
    const SOperand operand = m_operands[index];
    code = operand.Code();
    value = operand.value;
    return 1;
}

void CFunWizard::RemoveAllOprdInfo() { m_operands.RemoveAll(); }

int CFunWizard::AddDataInfo(short code, int number, unsigned char type, unsigned char format, LONG value)
{
    const SFunSetData data = {code, number, type, format, static_cast<int>(value)};
    return WithMemory([&] { m_data.Add(data); });
}

int CFunWizard::GetDataInfoCount() const { return static_cast<int>(m_data.GetSize()); }

int CFunWizard::GetDataInfo(int index, SFunSetData* data) const
{
    if (!Holds(m_data, index) || data == nullptr)
        return 0;
    *data = m_data[index];
    return 1;
}

void CFunWizard::RemoveAllDataInfo() { m_data.RemoveAll(); }

int CFunWizard::AddCmtInfo(const char* text)
{
    return WithMemory([=, this] { m_comments.Add(text); });
}

int CFunWizard::GetCmtInfoCount() const { return static_cast<int>(m_comments.GetSize()); }

int CFunWizard::GetCmtInfo(int index, char* text) const
{
    if (!Holds(m_comments, index) || text == nullptr)
        return 0;
    const CString& comment = m_comments.ElementAt(index);
    std::memcpy(text, static_cast<LPCSTR>(comment), comment.GetLength() + 1);
    return 1;
}

void CFunWizard::RemoveAllCmtInfo() { m_comments.RemoveAll(); }

int CFunWizard::AddInstCodeInfo(short kind, short code, int value, unsigned char flag1, unsigned char flag2)
{
    const SFWzdInstCode record = {kind, code, value, flag1, flag2};
    return WithMemory([&] { m_instructions.Add(record); });
}

int CFunWizard::GetInstCodeCount() const { return static_cast<int>(m_instructions.GetSize()); }

int CFunWizard::GetInstCodeInfo(int index, SFWzdInstCode* record) const
{
    if (!Holds(m_instructions, index) || record == nullptr)
        return 0;
    *record = m_instructions[index];
    return 1;
}

int CFunWizard::GetInstCode(int index, short& kind, short& code, int& value, unsigned char& flag1,
                            unsigned char& flag2) const
{
    SFWzdInstCode record;
    if (!GetInstCodeInfo(index, &record))
        return 0;
    kind = record.kind;
    code = record.code;
    value = record.value;
    flag1 = record.flag1;
    flag2 = record.flag2;
    return 1;
}

void CFunWizard::RemoveAllInstCodeInfo()
{
    m_instructions.RemoveAll();
    m_instructions.FreeExtra();
}
