// The C interface of the instruction-input wizard library (core/pexlo.h) for C++17 and later, whatever the compiler:
// objects that free themselves, std::string in UTF-8, std::vector. There is nothing to compile or to link beside the
// library.
//
// An operation is named as in the C interface, which documents it. What is different:
//
//   - A wrong call, one of PEXLO_E_..., is thrown as pexlo::Error. Everything else is a result: what could not be read
//     is an empty std::optional, and a form that was not accepted comes with a pexlo::Refusal.
//   - All texts are UTF-8; names lack the ending.
//   - Lists can be read whole.
//
//     pexlo::Wizard wizard;
//     wizard.SetPlcType(1);
//     ...
//     pexlo::Form form(168);
//     if (const auto refusal = wizard.Fill(form, {{"start", "100"}, {"maximum-speed", "9500"}}))
//         std::cerr << refusal->name << ": " << refusal->message << '\n';
//     else
//         for (const PexloData& data : wizard.DataTable())
//             std::cout << data.number << ' ' << data.value << '\n';
#ifndef PEXLO_HPP
#define PEXLO_HPP

#include "pexlo.h"

#include <array>
#include <cstddef>
#include <optional>
#include <stdexcept>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

namespace pexlo
{
/// A wrong call: Code() is one of PEXLO_E_....
class Error : public std::runtime_error
{
public:
    explicit Error(int code) : std::runtime_error(Text(code)), m_code(code) {}
    int Code() const noexcept { return m_code; }

    static const char* Text(int code) noexcept
    {
        switch (code)
        {
        case PEXLO_E_HANDLE:
            return "the wizard object does not exist";
        case PEXLO_E_THREAD:
            return "the wizard object belongs to another thread";
        case PEXLO_E_ARGUMENT:
            return "an argument is missing or out of its range";
        case PEXLO_E_SIZE:
            return "a structure has a size that the library does not know";
        case PEXLO_E_BUSY:
            return "a dialog of the wizard object is open";
        case PEXLO_E_DESKTOP:
            return "there is no desktop to open a dialog on";
        case PEXLO_E_MEMORY:
            return "there is not enough memory";
        case PEXLO_E_INSTRUCTION:
            return "there is no such instruction, or this PLC does not have it";
        default:
            return "a wrong call of the wizard library";
        }
    }

private:
    int m_code;
};

struct DeviceRange
{
    int low;
    int high;
};

struct Contact
{
    int kind;
    int code;
    int number;
};

struct Operand
{
    int code;
    int value;
};

/// A place in the device table: what Pexlo_GetSeqDevInfo tells.
struct SeqDevice
{
    int result; ///< 0 present, 1 to be skipped, -1 end of the table
    int kind;
    int code;
    int bitKind;
};

/// Which dialog; nothing is restricted.
struct Form : PexloForm
{
    explicit Form(int whichInstruction = PEXLO_FORM_CONTROL_CODE, int whichVariant = 0) : PexloForm()
    {
        size = sizeof(PexloForm);
        instruction = whichInstruction;
        variant = whichVariant;
        axisFlag = 1;
    }
};

struct Offer
{
    int instruction;
    int variant;
    std::string text; ///< columns separated by tabs
};

/// What to enter into a field.
struct Entry
{
    std::string name;
    std::string text;
    int control = 0; ///< counts in place of the name unless it is 0
};

/// Why a form was not accepted; the members are those of PexloRefusal.
struct Refusal
{
    int reason;
    int messageId;
    int control;
    int entry;
    int row;
    int column;
    std::string name;
    std::string message;
};

/// An item of a list, or a column of a table.
struct Item
{
    unsigned int code;
    std::string text;
    PexloItem info; ///< everything about it: of a column also what its cells accept
};

/// A field as it stands after the entries.
struct Field
{
    PexloField info; ///< everything about it, texts cut to their places in the structure
    std::string name;
    std::string label;
    std::string text; ///< whole
    std::vector<Item> items;
};

struct Description
{
    std::string caption;
    std::vector<Field> fields;      ///< in tab order; none when the dialog cannot be opened
    std::optional<Refusal> refusal; ///< of the first entry that could not be made
};

/// The version of the library: major x 0x10000 + minor x 0x100 + patch.
inline int Version() { return Pexlo_GetVersion(); }

inline int Checked(int result)
{
    // No operation has results as low as these.
    if (result <= PEXLO_E_HANDLE)
        throw Error(result);
    return result;
}

inline void SetMessageCaption(const std::string& name) { Checked(Pexlo_SetMessageCaptionUtf8(name.c_str())); }

/// One wizard object. It belongs to the thread that made it.
class Wizard
{
public:
    Wizard() : m_handle(Pexlo_Create())
    {
        if (m_handle == nullptr)
            throw Error(PEXLO_E_MEMORY);
    }
    /// Takes over a handle and destroys it in the end.
    explicit Wizard(PexloHandle handle) noexcept : m_handle(handle) {}
    ~Wizard() { Pexlo_Destroy(m_handle); }

    Wizard(Wizard&& other) noexcept : m_handle(std::exchange(other.m_handle, nullptr)) {}
    Wizard& operator=(Wizard&& other) noexcept
    {
        std::swap(m_handle, other.m_handle);
        return *this;
    }
    Wizard(const Wizard&) = delete;
    Wizard& operator=(const Wizard&) = delete;

    /// For calls of the C interface itself.
    PexloHandle Handle() const noexcept { return m_handle; }
    /// Gives the handle away, to one who destroys it.
    PexloHandle Release() noexcept { return std::exchange(m_handle, nullptr); }
    void TakeOver() { Checked(Pexlo_TakeOver(m_handle)); }

    // ---- Dialogs ----------------------------------------------------------------------------------------------------
    // True on OK.

    bool DoOpenPosDlg(int mode, int axisFlag, void* parent = nullptr)
    {
        return IsOk(Pexlo_DoOpenPosDlg(m_handle, mode, axisFlag, parent));
    }
    bool DoInputPosCtrlDlg(unsigned int& code, void* parent = nullptr)
    {
        return IsOk(Pexlo_DoInputPosCtrlDlg(m_handle, &code, parent));
    }
    bool DoOpenPIDDlg(int workArea, void* parent = nullptr)
    {
        return IsOk(Pexlo_DoOpenPIDDlg(m_handle, workArea, parent));
    }
    bool DoOpenSCRDlg(void* parent = nullptr) { return IsOk(Pexlo_DoOpenSCRDlg(m_handle, nullptr, parent)); }
    bool DoOpenSCRDlg(const std::array<unsigned int, 4>& permitted, void* parent = nullptr)
    {
        return IsOk(Pexlo_DoOpenSCRDlg(m_handle, permitted.data(), parent));
    }
    bool DoOpenSCALDlg(int kind, void* parent = nullptr)
    {
        return IsOk(Pexlo_DoOpenSCALDlg(m_handle, nullptr, kind, parent));
    }
    bool DoOpenSCALDlg(const std::array<unsigned int, 3>& permitted, int kind, void* parent = nullptr)
    {
        return IsOk(Pexlo_DoOpenSCALDlg(m_handle, permitted.data(), kind, parent));
    }

    // ---- The PLC ----------------------------------------------------------------------------------------------------

    void SetPlcType(int type) { Checked(Pexlo_SetPlcType(m_handle, type)); }
    int GetPlcType() const { return Checked(Pexlo_GetPlcType(m_handle)); }
    void SetDevRange(int kind, int code, int low, int high)
    {
        Checked(Pexlo_SetDevRange(m_handle, kind, code, low, high));
    }
    std::optional<DeviceRange> GetDevRange(int kind, int code) const
    {
        DeviceRange range = {};
        return If(Pexlo_GetDevRange(m_handle, kind, code, &range.low, &range.high), range);
    }
    SeqDevice GetSeqDevInfo(int index, int options) const
    {
        SeqDevice device = {};
        device.result =
            Checked(Pexlo_GetSeqDevInfo(m_handle, index, &device.kind, &device.code, &device.bitKind, options));
        return device;
    }
    void SetMaxSlot(int count) { Checked(Pexlo_SetMaxSlot(m_handle, count)); }
    int GetMaxSlot() const { return Checked(Pexlo_GetMaxSlot(m_handle)); }
    void SetDefaultMaxSlot() { Checked(Pexlo_SetDefaultMaxSlot(m_handle)); }
    void SetChannelNo(int channel, int instruction) { Checked(Pexlo_SetChannelNo(m_handle, channel, instruction)); }
    void ResetChannelNo() { Checked(Pexlo_ResetChannelNo(m_handle)); }
    int GetNumOfChannel(int instruction) const { return Checked(Pexlo_GetNumOfChannel(m_handle, instruction)); }
    int GetChannelNo(int n, int instruction) const { return Checked(Pexlo_GetChannelNo(m_handle, n, instruction)); }
    int GetChannelTypeIndex(int instruction) const { return Checked(Pexlo_GetChannelTypeIndex(m_handle, instruction)); }
    void SetF175DispType(int type) { Checked(Pexlo_SetF175DispType(m_handle, type)); }
    int GetF175DispType() const { return Checked(Pexlo_GetF175DispType(m_handle)); }

    // ---- Settings ---------------------------------------------------------------------------------------------------

    void ResetContents() { Checked(Pexlo_ResetContents(m_handle)); }
    /// False when the texts are the library's own English ones.
    bool SetLanguageInfo(int language) { return Checked(Pexlo_SetLanguageInfo(m_handle, language)) != 0; }
    void* GetLoadInstance() const { return Pexlo_GetLoadInstance(m_handle); }
    int GetTextCodePage() const { return Checked(Pexlo_GetTextCodePage(m_handle)); }
    void* CreateDlgFont(void* window = nullptr) { return Pexlo_CreateDlgFont(m_handle, window); }
    void SetDlgFont(void* dialog, bool skipDialog = false, std::vector<int> excludedIds = {})
    {
        excludedIds.push_back(0);
        Checked(Pexlo_SetDlgFont(m_handle, dialog, skipDialog ? 1 : 0, excludedIds.data()));
    }
    void DeleteDlgFont() { Checked(Pexlo_DeleteDlgFont(m_handle)); }
    void SetHelpPath(const std::string& path) { Checked(Pexlo_SetHelpPathUtf8(m_handle, path.c_str())); }
    std::string GetHelpPath() const
    {
        return Text([this](char* buffer, int size) { return Pexlo_GetHelpPathUtf8(m_handle, buffer, size); });
    }
    void SetAppName(const std::string& name) { Checked(Pexlo_SetAppNameUtf8(m_handle, name.c_str())); }
    /// Note the inverted result: 0 = added or already there.
    int EntrySupportFunInfo(int instruction) { return Checked(Pexlo_EntrySupportFunInfo(m_handle, instruction)); }
    bool FindSupportFun(int instruction) const { return Checked(Pexlo_FindSupportFun(m_handle, instruction)) != 0; }
    int GetSupportFunNum(int index) const { return Checked(Pexlo_GetSupportFunNum(m_handle, index)); }
    void ClearSuppportFunInfo() { Checked(Pexlo_ClearSuppportFunInfo(m_handle)); }
    void SetCmtRec(int on) { Checked(Pexlo_SetCmtRec(m_handle, on)); }
    int IsCmtRec() const { return Checked(Pexlo_IsCmtRec(m_handle)); }
    void SetOnlyDataTable(int on) { Checked(Pexlo_SetOnlyDataTable(m_handle, on)); }
    int IsOnlyDataTable() const { return Checked(Pexlo_IsOnlyDataTable(m_handle)); }
    void SetStartType(int type) { Checked(Pexlo_SetStartType(m_handle, type)); }
    int GetStartType() const { return Checked(Pexlo_GetStartType(m_handle)); }
    bool IsAxisType() const { return Checked(Pexlo_IsAxisType(m_handle)) != 0; }
    bool IsStartCondition() const { return Checked(Pexlo_IsStartCondition(m_handle)) != 0; }
    bool IsSameCondition() const { return Checked(Pexlo_IsSameCondition(m_handle)) != 0; }
    void SetDlgDataPtr(const void* data, int size) { Checked(Pexlo_SetDlgDataPtr(m_handle, data, size)); }
    const void* GetDlgDataPtr() const { return Pexlo_GetDlgDataPtr(m_handle); }
    void RemoveDlgData() { Checked(Pexlo_RemoveDlgData(m_handle)); }

    // ---- Result lists -----------------------------------------------------------------------------------------------
    // Adding is false without memory, reading empty with a bad index.

    bool AddContInfo(int kind, int code, int number)
    {
        return Checked(Pexlo_AddContInfo(m_handle, kind, code, number)) != 0;
    }
    int GetContInfoCount() const { return Checked(Pexlo_GetContInfoCount(m_handle)); }
    std::optional<Contact> GetContInfo(int index) const
    {
        Contact contact = {};
        return If(Pexlo_GetContInfo(m_handle, index, &contact.kind, &contact.code, &contact.number), contact);
    }
    void RemoveAllContInfo() { Checked(Pexlo_RemoveAllContInfo(m_handle)); }
    std::vector<Contact> Contacts() const
    {
        return All([this](int index) { return GetContInfo(index); });
    }

    bool AddOprdInfo(int code, int value) { return Checked(Pexlo_AddOprdInfo(m_handle, code, value)) != 0; }
    int GetOprdInfoCount() const { return Checked(Pexlo_GetOprdInfoCount(m_handle)); }
    std::optional<Operand> GetOprdInfo(int index) const
    {
        Operand operand = {};
        return If(Pexlo_GetOprdInfo(m_handle, index, &operand.code, &operand.value), operand);
    }
    void RemoveAllOprdInfo() { Checked(Pexlo_RemoveAllOprdInfo(m_handle)); }
    std::vector<Operand> Operands() const
    {
        return All([this](int index) { return GetOprdInfo(index); });
    }

    bool AddDataInfo(int code, int number, int type, int format, int value)
    {
        return Checked(Pexlo_AddDataInfo(m_handle, code, number, type, format, value)) != 0;
    }
    int GetDataInfoCount() const { return Checked(Pexlo_GetDataInfoCount(m_handle)); }
    std::optional<PexloData> GetDataInfo(int index) const
    {
        auto data = Sized<PexloData>();
        return If(Pexlo_GetDataInfo(m_handle, index, &data), data);
    }
    void RemoveAllDataInfo() { Checked(Pexlo_RemoveAllDataInfo(m_handle)); }
    std::vector<PexloData> DataTable() const
    {
        return All([this](int index) { return GetDataInfo(index); });
    }

    bool AddCmtInfo(const std::string& text) { return Checked(Pexlo_AddCmtInfoUtf8(m_handle, text.c_str())) != 0; }
    int GetCmtInfoCount() const { return Checked(Pexlo_GetCmtInfoCount(m_handle)); }
    std::optional<std::string> GetCmtInfo(int index) const
    {
        return OptionalText(
            [&](char* buffer, int size) { return Pexlo_GetCmtInfoUtf8(m_handle, index, buffer, size); });
    }
    void RemoveAllCmtInfo() { Checked(Pexlo_RemoveAllCmtInfo(m_handle)); }
    std::vector<std::string> Comments() const
    {
        return All([this](int index) { return GetCmtInfo(index); });
    }

    bool AddInstCodeInfo(int kind, int code, int value, int flag1, int flag2)
    {
        return Checked(Pexlo_AddInstCodeInfo(m_handle, kind, code, value, flag1, flag2)) != 0;
    }
    int GetInstCodeCount() const { return Checked(Pexlo_GetInstCodeCount(m_handle)); }
    std::optional<PexloInstCode> GetInstCodeInfo(int index) const
    {
        auto record = Sized<PexloInstCode>();
        return If(Pexlo_GetInstCodeInfo(m_handle, index, &record), record);
    }
    void RemoveAllInstCodeInfo() { Checked(Pexlo_RemoveAllInstCodeInfo(m_handle)); }
    std::vector<PexloInstCode> InstCodes() const
    {
        return All([this](int index) { return GetInstCodeInfo(index); });
    }

    bool CreateInstCode() { return Checked(Pexlo_CreateInstCode(m_handle)) != 0; }
    bool CreateInstCode_1() { return Checked(Pexlo_CreateInstCode_1(m_handle)) != 0; }
    bool CreateInstCode_11() { return Checked(Pexlo_CreateInstCode_11(m_handle)) != 0; }
    bool CreateInstCode_2() { return Checked(Pexlo_CreateInstCode_2(m_handle)) != 0; }
    bool CreateInstCode_3() { return Checked(Pexlo_CreateInstCode_3(m_handle)) != 0; }
    bool CreateInstCode_4() { return Checked(Pexlo_CreateInstCode_4(m_handle)) != 0; }

    // ---- The wizards without windows --------------------------------------------------------------------------------

    std::optional<Offer> GetOffer(int index) const
    {
        auto offer = Sized<PexloOffer>();
        if (Checked(Pexlo_GetOffer(m_handle, index, &offer)) == 0)
            return std::nullopt;
        return Offer{offer.instruction, offer.variant, offer.text};
    }
    std::vector<Offer> Offers() const
    {
        return All([this](int index) { return GetOffer(index); });
    }

    /// Empty when the form was accepted: the lists are filled, and the form's control code is the one that was
    /// confirmed.
    std::optional<Refusal> Fill(PexloForm& form, const std::vector<Entry>& entries)
    {
        const std::vector<PexloEntry> made = Made(entries);
        auto refusal = Sized<PexloRefusal>();
        return Result(Pexlo_Fill(m_handle, &form, made.data(), static_cast<int>(made.size()), &refusal), refusal);
    }
    std::optional<Refusal> Check(const PexloForm& form, const std::vector<Entry>& entries)
    {
        const std::vector<PexloEntry> made = Made(entries);
        auto refusal = Sized<PexloRefusal>();
        return Result(Pexlo_Check(m_handle, &form, made.data(), static_cast<int>(made.size()), &refusal), refusal);
    }

    Description DescribeFields(const PexloForm& form, const std::vector<Entry>& entries = {})
    {
        const std::vector<PexloEntry> made = Made(entries);
        auto refusal = Sized<PexloRefusal>();
        std::vector<PexloField> infos(64, Sized<PexloField>());
        const auto describe = [&] {
            const int count = Pexlo_DescribeFields(m_handle, &form, made.data(), static_cast<int>(made.size()),
                                                   infos.data(), static_cast<int>(infos.size()), &refusal);
            return static_cast<std::size_t>(Checked(count));
        };
        const std::size_t count = describe();
        const bool fits = count <= infos.size();
        infos.resize(count, Sized<PexloField>());
        if (!fits)
            describe();

        Description description;
        description.caption = FieldText(-1);
        for (std::size_t i = 0; i < infos.size(); ++i)
            description.fields.push_back(FieldAt(static_cast<int>(i), infos[i]));
        if (refusal.reason != 0)
            description.refusal = ToRefusal(refusal);
        return description;
    }

private:
    static bool IsOk(int result) { return Checked(result) == 1; }

    template <typename T>
    static T Sized()
    {
        T structure = {};
        structure.size = sizeof(T);
        return structure;
    }

    template <typename T>
    static std::optional<T> If(int result, const T& value)
    {
        return Checked(result) != 0 ? std::optional<T>(value) : std::nullopt;
    }

    // What can be read with the indices from 0 on.
    template <typename TRead>
    static std::vector<typename std::invoke_result_t<TRead, int>::value_type> All(TRead read)
    {
        std::vector<typename std::invoke_result_t<TRead, int>::value_type> all;
        while (auto next = read(static_cast<int>(all.size())))
            all.push_back(std::move(*next));
        return all;
    }

    // Most texts fit at once.
    template <typename TRead>
    static std::optional<std::string> OptionalText(TRead read)
    {
        std::array<char, 256> first;
        const int needed = Checked(read(first.data(), static_cast<int>(first.size())));
        if (needed <= 0)
            return std::nullopt;
        if (static_cast<std::size_t>(needed) <= first.size())
            return std::string(first.data(), static_cast<std::size_t>(needed) - 1);
        std::string text(static_cast<std::size_t>(needed), '\0');
        Checked(read(text.data(), needed));
        text.pop_back();
        return text;
    }

    template <typename TRead>
    static std::string Text(TRead read)
    {
        return OptionalText(read).value_or(std::string());
    }

    static std::vector<PexloEntry> Made(const std::vector<Entry>& entries)
    {
        std::vector<PexloEntry> made;
        made.reserve(entries.size());
        for (const Entry& entry : entries)
        {
            made.push_back(Sized<PexloEntry>());
            made.back().control = entry.control;
            made.back().name = entry.name.c_str();
            made.back().text = entry.text.c_str();
        }
        return made;
    }

    static Refusal ToRefusal(const PexloRefusal& refusal)
    {
        return {refusal.reason, refusal.messageId, refusal.control, refusal.entry,
                refusal.row,    refusal.column,    refusal.name,    refusal.message};
    }

    static std::optional<Refusal> Result(int result, const PexloRefusal& refusal)
    {
        if (IsOk(result))
            return std::nullopt;
        return ToRefusal(refusal);
    }

    std::string FieldText(int field) const
    {
        return Text([&](char* buffer, int size) { return Pexlo_GetFieldText(m_handle, field, buffer, size); });
    }

    Field FieldAt(int index, const PexloField& info) const
    {
        Field field = {info, info.name, info.label, FieldText(index), {}};
        for (int i = 0; i < info.itemCount; ++i)
        {
            auto item = Sized<PexloItem>();
            if (Checked(Pexlo_GetFieldItem(m_handle, index, i, &item)) != 0)
                field.items.push_back({item.code, item.text, item});
        }
        return field;
    }

    PexloHandle m_handle;
};
} // namespace pexlo

#endif
