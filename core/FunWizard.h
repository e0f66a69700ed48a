// CFunWizard: the one class of the instruction-input wizard library that a host tool works with.
//
// A host creates one object and keeps it as long as it likes. It tells the object which PLC is being programmed, opens
// one of the modal dialogs and, when the user has confirmed it, reads five lists back: contacts, operands, data-table
// values, comments and, after CreateInstCode, the complete instruction sequence.
//
// Unless stated otherwise an operation returns 1 for success and 0 for failure, an index counts from 0, a read with a
// bad index returns 0 and leaves its outputs alone. Everything is called on the thread that runs the host's windows.
// The object owns its records and what SetDlgDataPtr hands it; texts are copied.
//
// No exception leaves an operation. Without memory, or when the system refuses a resource, an operation fails as it
// says and keeps what was there; a setting without a result stays as it was, and a dialog counts as cancelled.
//
// Dialogs are modal, but the host's timers and messages go on, and every operation may be called from them. While a
// dialog of an object is open:
//   - an operation that opens a dialog of the same object returns 2 at once; dialogs of other objects open as ever.
//   - SetLanguageInfo and CreateDlgFont return null, ResetContents and DeleteDlgFont do nothing: the language library
//     and the font are in use. Nothing else changes then, either.
//   - every other operation works as ever. A dialog reads the lists when it opens and replaces them on OK; ranges,
//     channels, slots and flags it asks for whenever it needs them.
//   - destroying the object is permitted: its dialogs end as by Cancel, and the operation that opened them returns 2. A
//     message box of theirs stays until it is answered.
#pragma once

#include "afx/afx.h"

#include "core/Records.h"

/// Stores the name that captions every message box of the library. A null pointer empties it.
extern "C" AFX_API void PexloDll_SetAppName(const char* name);

struct SFunWizardTest;

// Hosts are compiled against the size of the object.
#include "afx/PackBegin.h"

class AFX_API CFunWizard : public CObject
{
    DECLARE_DYNAMIC(CFunWizard)

public:
    /// Needs no memory of its own, and cannot fail.
    CFunWizard();
    /// Frees everything: the lists, the dialog data, the font and the language library.
    ~CFunWizard() override;

    using CObject::operator new;
    using CObject::operator delete;
    /// Null without memory, and so is the pointer that `new CFunWizard` gives.
    static void* operator new(size_t size) noexcept;
    static void operator delete(void* object);

    CFunWizard(const CFunWizard&) = delete;
    CFunWizard& operator=(const CFunWizard&) = delete;

    /// Frees the dialog data and the language library, forgets the last wizard, the device ranges and the supported
    /// instructions, and empties the operand, data, instruction and comment lists. The contact list, the PLC type, the
    /// maximum slot, the names and the flags stay.
    void ResetContents();

    // ---- Opening a wizard -------------------------------------------------------------------------------------------
    // Each operation creates the dialog font and opens a modal dialog above `parent`, or above the thread's active
    // window when `parent` is null. The wizards other than the control code empty the contact, operand, data and
    // instruction lists and free the dialog data when another instruction than the last one is entered.

    /// Lets the user pick an instruction and fill it in. `mode` 0 lists the pulse-output instructions that were
    /// registered with EntrySupportFunInfo, any other mode the positioning-unit operations; `axisFlag` 0 means a
    /// two-axis unit. Returns 1 when an instruction dialog was confirmed, 2 when the user cancelled.
    int DoOpenPosDlg(unsigned char mode, unsigned char axisFlag, CWnd* parent);

    /// Lets the user check and compose the control code of a positioning unit's axis. `code` is replaced on OK (result
    /// 1) and left alone otherwise. No list is touched.
    int DoInputPosCtrlDlg(ULONG& code, CWnd* parent);

    /// Opens the PID wizard (F355). `workArea` tells how many registers the work area reaches beyond its first one.
    /// Returns 1 on OK, else 2. F355 becomes the last wizard in either case.
    int DoOpenPIDDlg(int workArea, CWnd* parent);

    /// Opens the screen display wizard. `permitted` points to four masks of permitted devices, one for each operand:
    /// the screen (not read), the control data, the upside and the downside display data; null permits all. Of a mask
    /// the low 32 bits count, those of IsDevicePermitted. Returns 1 on OK, else 2.
    int DoOpenSCRDlg(ULONGLONG* permitted, CWnd* parent);

    /// Opens the scaling wizard: `kind` 0 = F282, 1 = F283, any other = F354. `permitted` points to three such masks:
    /// for the input X, the table and the output Y; null permits all. Returns 1 on OK, else 2.
    int DoOpenSCALDlg(ULONGLONG* permitted, int kind, CWnd* parent);

    // ---- The PLC ----------------------------------------------------------------------------------------------------

    /// The PLC type code, 0 until it is set. It selects the controller family and with it the dialogs.
    void SetPlcType(unsigned char type);
    unsigned char GetPlcType() const;

    /// Declares a device present and gives its lowest and highest number. The dialogs look ranges up with `kind` -1
    /// and the device code. A second call for the same pair replaces the range.
    void SetDevRange(short kind, short code, int low, int high);
    /// Reads a range back; 0 when none was set for the pair.
    int GetDevRange(short kind, short code, int& low, int& high) const;

    /// Walks the device table: `index` 0..23, `options` bit 0 to include the constants K and H, bits 0 and 1 together
    /// for the real constant f. Note the inverted results: 0 = present on this PLC, 1 = to be skipped, -1 = end of the
    /// table. `kind` becomes -1, `code` the device code or -1, `bitKind` an EBitKind unless there is no code.
    int GetSeqDevInfo(int index, short& kind, short& code, unsigned char& bitKind, unsigned char options) const;

    /// The number of slots, 32 until it is set.
    void SetMaxSlot(unsigned char count);
    unsigned char GetMaxSlot() const;
    void SetDefaultMaxSlot();

    /// Offers a pulse-output channel (0..15) to an instruction 171..175. Other instructions are ignored, and so are
    /// channels whose number modulo 32 is above 15.
    void SetChannelNo(int channel, int instruction);
    /// Withdraws every channel of every instruction, the F175 display type included.
    void ResetChannelNo();
    /// The number of channels offered to an instruction; 0 for an unknown instruction.
    int GetNumOfChannel(int instruction) const;
    /// The n-th channel offered to an instruction, n from 0; -1 when there is none.
    int GetChannelNo(int n, int instruction) const;
    /// 0..4 for the instructions 171..175, else -1.
    int GetChannelTypeIndex(int instruction) const;

    /// How the F175 dialog shows its channel. 1 and 2 are stored, anything else is ignored.
    void SetF175DispType(unsigned short type);
    unsigned short GetF175DispType() const;

    // ---- Settings ---------------------------------------------------------------------------------------------------

    /// Frees the current language library and loads the one of `language` (0..6 and 9) from this library's own folder,
    /// else from the host program's. Returns its handle, which the object owns, or null: then the texts are the
    /// module's own English ones.
    HINSTANCE SetLanguageInfo(int language);
    /// The current language library, or null.
    HINSTANCE GetLoadInstance() const;
    /// The code page that comments are in, such as 932: that of the current library's language, whatever the system's
    /// is; the system's with the module's own texts and with English, which fits every page. Texts that the host passes
    /// are in the system's.
    UINT GetTextCodePage() const;

    /// Creates the font of the dialogs in the size that suits the system's, replacing the font of an earlier call.
    /// Returns the font, which the object owns, or null. `window` may be null; one that is gone counts as null.
    CFont* CreateDlgFont(CWnd* window);
    /// Gives the font to all child windows of `dialog` and, unless `skipDialog` is non-zero, to the dialog itself.
    /// `excludedIds`, a list ended by 0 or null, names the controls that keep theirs.
    void SetDlgFont(CWnd* dialog, unsigned char skipDialog, int* excludedIds);
    void DeleteDlgFont();

    /// The HTML Help file behind the Help buttons. Null or an empty path: the dialogs hide the button.
    void SetHelpPath(const char* path);
    /// A copy; empty also when there is no memory for it.
    CString GetHelpPath() const;

    /// The host's own name for itself, kept for it. Message boxes are captioned by PexloDll_SetAppName.
    void SetAppName(const char* name);

    /// Registers one of the instructions 168..177 for the selection list. Note the inverted result: 0 = added or
    /// already there, 1 = not an instruction of the list, or no memory for it.
    int EntrySupportFunInfo(int instruction);
    int FindSupportFun(int instruction) const;
    /// The instruction at index 0..9 of those that can be registered; -1 for any other index.
    int GetSupportFunNum(int index) const;
    void ClearSuppportFunInfo();

    /// Whether comments are registered for the data table; 1 until it is set. Kept as passed.
    void SetCmtRec(int on);
    int IsCmtRec() const;
    /// Whether only the data table is generated, not the instruction; 0 until it is set. Kept as passed.
    void SetOnlyDataTable(int on);
    int IsOnlyDataTable() const;
    /// What starts a positioning-unit operation, 0..2; a value above 2 is stored as 0.
    void SetStartType(unsigned char type);
    unsigned char GetStartType() const;

    /// 1 when the last DoOpenPosDlg was called for a two-axis unit.
    int IsAxisType() const;
    /// Whether the contact list is a complete starting condition: empty, or three and more records whose last is on Y.
    int IsStartCondition() const;
    /// Whether the first and the next-to-last contact name the same device; 1 with fewer than three contacts.
    int IsSameCondition() const;

    /// Inputs that a dialog keeps for its next opening, allocated with `::operator new`; the object owns the block.
    /// Storing a pointer does not free the one before.
    void SetDlgDataPtr(void* data);
    void* GetDlgDataPtr() const;
    void RemoveDlgData();

    // ---- Result lists -----------------------------------------------------------------------------------------------
    // The add operations append one record and return 0, with the list as it was, when memory does not suffice.

    int AddContInfo(short kind, short code, int number);
    int GetContInfoCount() const;
    int GetContInfo(int index, short& kind, short& code, int& number) const;
    void RemoveAllContInfo();

    int AddOprdInfo(short code, int value);
    int GetOprdInfoCount() const;
    int GetOprdInfo(int index, short& code, int& value) const;
    void RemoveAllOprdInfo();

    int AddDataInfo(short code, int number, unsigned char type, unsigned char format, LONG value);
    int GetDataInfoCount() const;
    int GetDataInfo(int index, SFunSetData* data) const;
    void RemoveAllDataInfo();

    /// Appends a copy of the text; a null pointer counts as an empty text.
    int AddCmtInfo(const char* text);
    int GetCmtInfoCount() const;
    /// Copies a comment and its terminator. The dialogs add none longer than 255 bytes. 0 for a null buffer.
    int GetCmtInfo(int index, char* text) const;
    void RemoveAllCmtInfo();

    int AddInstCodeInfo(short kind, short code, int value, unsigned char flag1, unsigned char flag2);
    int GetInstCodeCount() const;
    int GetInstCodeInfo(int index, SFWzdInstCode* record) const;
    int GetInstCode(int index, short& kind, short& code, int& value, unsigned char& flag1, unsigned char& flag2) const;
    void RemoveAllInstCodeInfo();

    // ---- Instruction sequence ---------------------------------------------------------------------------------------

    /// Empties the instruction list and fills it with the sequence that the other lists describe, by the generator of
    /// the last wizard. On failure (0) the records generated so far stay.
    int CreateInstCode();

    // The generators append to the list. They are public for hosts that choose one themselves.
    int CreateInstCode_1();  ///< built-in instructions
    int CreateInstCode_11(); ///< scaling
    int CreateInstCode_2();  ///< positioning-unit operations
    int CreateInstCode_3();  ///< JOG operation with speed change
    int CreateInstCode_4();  ///< pulsar input operation

private:
    friend struct SFunWizardTest;

    friend class CInstCodeGenerator;
    friend class COpenWizard;
    friend class CKeptResults;
    friend class CComments;
    template <typename TGenerate>
    int Generate(TGenerate generate);

    void ForgetResults();
    void EnterWizard(int instruction, int variant);
    void RecordWizard(unsigned char mode, int instruction, int variant);
    void FreeFont();
    template <typename TRun>
    int OpenDialogs(CWnd* parent, TRun run);
    template <typename TRun>
    int OpenDirectly(int instruction, CWnd* parent, TRun run);
    const WORD* ChannelMask(int instruction) const;

    HINSTANCE m_library;
    CString m_appName;
    CString m_helpPath;
    CFont* m_dialogFont;
    void* m_dialogData;
    CMap<DWORD, DWORD, SDevRange, const SDevRange&> m_deviceRanges;
    BYTE m_unitMode;
    BYTE m_axisType;
    int m_lastInstruction;
    int m_lastVariant;
    WORD m_channels[5];
    BYTE m_maxSlot;
    CDWordArray m_supported;
    CArray<SContact, const SContact&> m_contacts;
    CArray<SOperand, const SOperand&> m_operands;
    CArray<SFunSetData, const SFunSetData&> m_data;
    CArray<SFWzdInstCode, const SFWzdInstCode&> m_instructions;
    CStringArray m_comments;
    int m_onlyDataTable;
    int m_commentRecord;
    BYTE m_startType;
    BYTE m_plcType;
    int m_options[4];
};

#include "afx/PackEnd.h"
