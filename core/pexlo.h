/*
 * The C interface of the instruction-input wizard library, for hosts that cannot use the C++ class CFunWizard: those of
 * another compiler, of another language, of 64 bits, and those that want the wizards' checks without their windows.
 *
 * A handle stands for one wizard object. Pexlo_<Name> does what CFunWizard::<Name> does for hosts in C++. New here are
 * the wizards without windows, below.
 *
 * RESULTS. What the operation returns (1 success, 0 failure, unless its documentation says otherwise; operations
 * without a result return 1), or one of the negative numbers PEXLO_E_..., which say that it was called wrongly and did
 * nothing.
 *
 * HANDLES. A handle that is null, was destroyed, or never was one, gives PEXLO_E_HANDLE. A handle belongs to the thread
 * that created it; calls from another one give PEXLO_E_THREAD until that thread has taken it over (Pexlo_TakeOver).
 * Handles of different threads work side by side. Handles that are not destroyed are freed with the process.
 *
 * NUMBERS are passed as int. One that the class's narrower type cannot hold gives PEXLO_E_ARGUMENT.
 *
 * STRUCTURES have their size as first member; set it before the call. Smaller than the structures of this version:
 * PEXLO_E_SIZE. Larger, as those of a later version of this header: of what is passed, the rest must be 0 (else
 * PEXLO_E_SIZE); of what is returned, the rest is left alone, and the size is set to that which was filled in. None is
 * larger than 4096 bytes.
 *
 * TEXTS are copied. An operation that returns a text writes as much as fits into the caller's buffer, whole characters
 * and always a terminator, and returns the number of bytes that the whole text needs with its terminator: a result
 * larger than the buffer's size says that the text was cut. A null buffer or the size 0 only asks for that number. A
 * negative size gives PEXLO_E_ARGUMENT. A null text that is passed counts as an empty one. Operations named after the
 * class use the system's ANSI code page, for comments that of the language (Pexlo_GetTextCodePage); their variants that
 * end in Utf8, and everything that is new here, use UTF-8.
 *
 * MEMORY is never allocated on one side and freed on the other. No exception leaves the library.
 *
 * DESKTOP. The operations that open dialogs need one; where there is none, on Linux, they return PEXLO_E_DESKTOP.
 *
 * WHAT WILL NOT CHANGE. Within a major version: the names, arguments and results of these operations; every number that
 * is defined here; the members of the structures and their places (members may be added at the end); the names of
 * instructions, fields and items' codes; ids of controls and messages. Texts and their languages, and ranges that
 * depend on the PLC, may be corrected at any time. New operations may be added, and new reasons of refusals.
 *
 * This header is C90 and C++98.
 */
/* clang-format off */
#ifndef PEXLO_H
#define PEXLO_H

/* Hosts have this header alone, so it asks itself how their system calls and exports functions. */
#if defined(_WIN32)
#define PEXLO_CALL __stdcall /* of no meaning in 64 bits */
#if defined(PEXLO_BUILD) && defined(_WIN64)
#define PEXLO_API __declspec(dllexport)
#elif defined(PEXLO_BUILD) || defined(PEXLO_STATIC)
#define PEXLO_API /* in 32 bits the linker's .def file exports them, without the decoration of __stdcall */
#else
#define PEXLO_API __declspec(dllimport)
#endif
#else
#define PEXLO_CALL
#define PEXLO_API __attribute__((visibility("default")))
#endif

#ifdef __cplusplus
extern "C" {
#endif

/* ---- Results of wrong calls -------------------------------------------------------------------------------------- */

#define PEXLO_E_HANDLE (-1001)      /* the handle is null, was destroyed, or never was one */
#define PEXLO_E_THREAD (-1002)      /* the handle belongs to another thread */
#define PEXLO_E_ARGUMENT (-1003)    /* a pointer is null that must not be, or a number is out of its range */
#define PEXLO_E_SIZE (-1004)        /* a structure's size is not set, or it says what this version does not know */
#define PEXLO_E_BUSY (-1005)        /* a dialog of the handle is open */
#define PEXLO_E_DESKTOP (-1006)     /* there is no desktop to open a dialog on */
#define PEXLO_E_MEMORY (-1007)      /* there is not enough memory, or the system refused a resource */
#define PEXLO_E_INSTRUCTION (-1008) /* there is no such instruction or variant, or this PLC does not have it */

/* ---- Versions and handles ---------------------------------------------------------------------------------------- */

typedef struct PexloWizard* PexloHandle;

/* Of this header; compare it with what Pexlo_GetVersion says of the library. */
#define PEXLO_INTERFACE_VERSION 0x010000

/* The version of the library: major x 0x10000 + minor x 0x100 + patch. */
PEXLO_API int PEXLO_CALL Pexlo_GetVersion(void);

/* A new object, as `new CFunWizard` makes it; null without memory, or with 65535 handles alive. */
PEXLO_API PexloHandle PEXLO_CALL Pexlo_Create(void);
/* Frees the object. Permitted while its dialogs are open, from the handle's thread: they end as by Cancel. */
PEXLO_API int PEXLO_CALL Pexlo_Destroy(PexloHandle handle);
/* The calling thread becomes the owner; PEXLO_E_BUSY while the present one is inside of an operation. */
PEXLO_API int PEXLO_CALL Pexlo_TakeOver(PexloHandle handle);

/* ---- Dialogs ----------------------------------------------------------------------------------------------------- */
/* Each opens a modal dialog above `parent`, an HWND, or above the thread's active window when it is null. 1 on OK: the
 * lists are those of the dialog. 2 on Cancel, and at once for an object with an open dialog. */

/* The user picks an instruction and fills it in. `mode` 0 lists the registered pulse-output instructions, any other
 * one the operations of the positioning unit; `axisFlag` 0 means a two-axis unit. Both 0..255. */
PEXLO_API int PEXLO_CALL Pexlo_DoOpenPosDlg(PexloHandle handle, int mode, int axisFlag, void* parent);
/* The control code of a positioning unit's axis: `code` is replaced on OK. No list is touched. */
PEXLO_API int PEXLO_CALL Pexlo_DoInputPosCtrlDlg(PexloHandle handle, unsigned int* code, void* parent);
/* F355. `workArea`: how many registers the work area reaches beyond its first one. */
PEXLO_API int PEXLO_CALL Pexlo_DoOpenPIDDlg(PexloHandle handle, int workArea, void* parent);
/* The screen display. `permitted`: four masks of permitted devices, for the screen (not read), the control data, the
 * upside and the downside display data; null permits all. The bits of a mask:
 *
 *     0x10 X    0x20 Y     0x40 R     0x80 L     0x100 P      0x200 T        0x400 C      0x800 E
 *     0x20000 WY           0x40000 WR            0x80000 WL   0x200000 SV    0x400000 EV
 *     0x800000 DT          0x1000000 LD          0x2000000 FL 0x10000000 index registers
 *     0x1 K    0x2 H    0x4 real constant
 *
 * With a mask WX and the special DT are never permitted; the other special devices, which have no bit, always are. */
PEXLO_API int PEXLO_CALL Pexlo_DoOpenSCRDlg(PexloHandle handle, const unsigned int* permitted, void* parent);
/* `kind` 0 = F282, 1 = F283, any other = F354. `permitted`: three such masks, for the input, the table and the
 * output. */
PEXLO_API int PEXLO_CALL Pexlo_DoOpenSCALDlg(PexloHandle handle, const unsigned int* permitted, int kind,
                                             void* parent);

/* ---- Devices ----------------------------------------------------------------------------------------------------- */
/* Their codes. Bits of X, Y, R, L, P and the special relays are numbered word x 16 + bit: X10A is 10 x 16 + 10 = 170.
 * All other numbers are those that one writes. */

#define PEXLO_DEVICE_L 0
#define PEXLO_DEVICE_R 1
#define PEXLO_DEVICE_Y 2
#define PEXLO_DEVICE_X 3
#define PEXLO_DEVICE_T 4
#define PEXLO_DEVICE_C 5
#define PEXLO_DEVICE_SV 6
#define PEXLO_DEVICE_EV 7
#define PEXLO_DEVICE_LD 8
#define PEXLO_DEVICE_DT 9
#define PEXLO_DEVICE_FL 10
#define PEXLO_DEVICE_K 11 /* a decimal constant */
#define PEXLO_DEVICE_H 12 /* a hexadecimal constant */
#define PEXLO_DEVICE_INDEX 15
#define PEXLO_DEVICE_P 17
#define PEXLO_DEVICE_E 18
#define PEXLO_DEVICE_REAL 20 /* a real constant */
#define PEXLO_DEVICE_WL 64
#define PEXLO_DEVICE_WR 65
#define PEXLO_DEVICE_WY 66
#define PEXLO_DEVICE_WX 67
#define PEXLO_DEVICE_SPECIAL_R 20001
#define PEXLO_DEVICE_SPECIAL_DT 20009
#define PEXLO_DEVICE_SPECIAL_WR 20065

/* ---- The PLC ----------------------------------------------------------------------------------------------------- */

/* The PLC type code, 0..255; 0 until it is set. It selects the controller family and with it the dialogs. */
PEXLO_API int PEXLO_CALL Pexlo_SetPlcType(PexloHandle handle, int type);
PEXLO_API int PEXLO_CALL Pexlo_GetPlcType(PexloHandle handle);
/* Declares a device present and gives its lowest and highest number. The dialogs look ranges up with `kind` -1. */
PEXLO_API int PEXLO_CALL Pexlo_SetDevRange(PexloHandle handle, int kind, int code, int low, int high);
PEXLO_API int PEXLO_CALL Pexlo_GetDevRange(PexloHandle handle, int kind, int code, int* low, int* high);
/* Walks the device table: `index` 0..23, `options` bit 0 to include the constants K and H, bits 0 and 1 for the real
 * constant too. Note the inverted results: 0 = present on this PLC, 1 = to be skipped, -1 = end of the table. `kind`
 * becomes -1, `code` the device code or -1, `bitKind` 0 for words and constants, 1 for bits numbered word x 16 +
 * bit, 2 for bits numbered in decimal. */
PEXLO_API int PEXLO_CALL Pexlo_GetSeqDevInfo(PexloHandle handle, int index, int* kind, int* code, int* bitKind,
                                             int options);
/* The number of slots, 0..255; 32 until it is set. */
PEXLO_API int PEXLO_CALL Pexlo_SetMaxSlot(PexloHandle handle, int count);
PEXLO_API int PEXLO_CALL Pexlo_GetMaxSlot(PexloHandle handle);
PEXLO_API int PEXLO_CALL Pexlo_SetDefaultMaxSlot(PexloHandle handle);
/* Offers a pulse-output channel, 0..15, to an instruction 171..175; others are ignored, but of a channel only the
 * remainder by 32 counts. ResetChannelNo withdraws all of all, and the display type of F175. */
PEXLO_API int PEXLO_CALL Pexlo_SetChannelNo(PexloHandle handle, int channel, int instruction);
PEXLO_API int PEXLO_CALL Pexlo_ResetChannelNo(PexloHandle handle);
PEXLO_API int PEXLO_CALL Pexlo_GetNumOfChannel(PexloHandle handle, int instruction);
/* The n-th channel offered to an instruction, n from 0; -1 when there is none. */
PEXLO_API int PEXLO_CALL Pexlo_GetChannelNo(PexloHandle handle, int n, int instruction);
/* 0..4 for the instructions 171..175, else -1. */
PEXLO_API int PEXLO_CALL Pexlo_GetChannelTypeIndex(PexloHandle handle, int instruction);
/* How the dialog of F175 shows its channel: 1 or 2; anything else is ignored. */
PEXLO_API int PEXLO_CALL Pexlo_SetF175DispType(PexloHandle handle, int type);
PEXLO_API int PEXLO_CALL Pexlo_GetF175DispType(PexloHandle handle);

/* ---- Settings ---------------------------------------------------------------------------------------------------- */

/* Empties the operand, data, instruction and comment lists, frees the dialog data and forgets ranges, instructions,
 * the language and the last wizard. The other settings and the contact list stay. Does nothing while a dialog of the
 * object is open. */
PEXLO_API int PEXLO_CALL Pexlo_ResetContents(PexloHandle handle);
/* 0 English, 1 Japanese, 2 simplified and 3 traditional Chinese, 4 Korean, 5 Spanish, 6 Italian, 9 Thai: loads the
 * PlxRc*.DLL beside the library, or beside the program. 1 when it is loaded; 0, and the texts are the library's own
 * English ones, when it is not there or a dialog of the object is open. */
PEXLO_API int PEXLO_CALL Pexlo_SetLanguageInfo(PexloHandle handle, int language);
/* An HINSTANCE, which the object owns, or null; also null for a bad handle. */
PEXLO_API void* PEXLO_CALL Pexlo_GetLoadInstance(PexloHandle handle);
/* The code page of comments, such as 932: that of the language, the system's for English. */
PEXLO_API int PEXLO_CALL Pexlo_GetTextCodePage(PexloHandle handle);
/* An HFONT, which the object owns, or null; also null for a bad handle. `window` is an HWND or null. */
PEXLO_API void* PEXLO_CALL Pexlo_CreateDlgFont(PexloHandle handle, void* window);
/* Gives that font to the controls of a dialog, an HWND, and unless `skipDialog` to itself; not to those in
 * `excludedIds`, a list ended by 0 or null. */
PEXLO_API int PEXLO_CALL Pexlo_SetDlgFont(PexloHandle handle, void* dialog, int skipDialog, const int* excludedIds);
PEXLO_API int PEXLO_CALL Pexlo_DeleteDlgFont(PexloHandle handle);
/* The HTML Help file behind the Help buttons; an empty path hides them. It is kept in the system's code page. */
PEXLO_API int PEXLO_CALL Pexlo_SetHelpPath(PexloHandle handle, const char* path);
PEXLO_API int PEXLO_CALL Pexlo_SetHelpPathUtf8(PexloHandle handle, const char* path);
PEXLO_API int PEXLO_CALL Pexlo_GetHelpPath(PexloHandle handle, char* buffer, int size);
PEXLO_API int PEXLO_CALL Pexlo_GetHelpPathUtf8(PexloHandle handle, char* buffer, int size);
/* The host's own name for itself, kept for it. */
PEXLO_API int PEXLO_CALL Pexlo_SetAppName(PexloHandle handle, const char* name);
PEXLO_API int PEXLO_CALL Pexlo_SetAppNameUtf8(PexloHandle handle, const char* name);
/* The name that captions every message box of the library, of all handles: PexloDll_SetAppName. To be set before
 * dialogs are opened on other threads. */
PEXLO_API int PEXLO_CALL Pexlo_SetMessageCaption(const char* name);
PEXLO_API int PEXLO_CALL Pexlo_SetMessageCaptionUtf8(const char* name);
/* Registers one of the instructions 168..177 for the selection list. Note the inverted result: 0 = added or already
 * there, 1 = not one of them, or no memory for it. */
PEXLO_API int PEXLO_CALL Pexlo_EntrySupportFunInfo(PexloHandle handle, int instruction);
PEXLO_API int PEXLO_CALL Pexlo_FindSupportFun(PexloHandle handle, int instruction);
/* The instruction at index 0..9 of those that can be registered; -1 for any other index. */
PEXLO_API int PEXLO_CALL Pexlo_GetSupportFunNum(PexloHandle handle, int index);
PEXLO_API int PEXLO_CALL Pexlo_ClearSuppportFunInfo(PexloHandle handle);
/* Whether comments are registered for the data table; 1 until it is set. Kept as passed. */
PEXLO_API int PEXLO_CALL Pexlo_SetCmtRec(PexloHandle handle, int on);
PEXLO_API int PEXLO_CALL Pexlo_IsCmtRec(PexloHandle handle);
/* Whether only the data table is generated, not the instruction; 0 until it is set. Kept as passed. */
PEXLO_API int PEXLO_CALL Pexlo_SetOnlyDataTable(PexloHandle handle, int on);
PEXLO_API int PEXLO_CALL Pexlo_IsOnlyDataTable(PexloHandle handle);
/* What starts an operation of the positioning unit, 0..2; a value above 2 is stored as 0. */
PEXLO_API int PEXLO_CALL Pexlo_SetStartType(PexloHandle handle, int type);
PEXLO_API int PEXLO_CALL Pexlo_GetStartType(PexloHandle handle);
/* 1 when the last selection was opened for a two-axis unit. */
PEXLO_API int PEXLO_CALL Pexlo_IsAxisType(PexloHandle handle);
/* Whether the contact list is a complete starting condition: empty, or three and more whose last is on Y. */
PEXLO_API int PEXLO_CALL Pexlo_IsStartCondition(PexloHandle handle);
/* Whether the first and the next-to-last contact name the same device; 1 with fewer than three contacts. */
PEXLO_API int PEXLO_CALL Pexlo_IsSameCondition(PexloHandle handle);
/* Inputs that a dialog keeps for its next opening. Copies `size` bytes, 0 or more; the block before is freed. Null,
 * or the size 0, only frees it. */
PEXLO_API int PEXLO_CALL Pexlo_SetDlgDataPtr(PexloHandle handle, const void* data, int size);
/* The object's own block, good until the next call with the handle; null also for a bad handle. */
PEXLO_API const void* PEXLO_CALL Pexlo_GetDlgDataPtr(PexloHandle handle);
PEXLO_API int PEXLO_CALL Pexlo_RemoveDlgData(PexloHandle handle);

/* ---- Result lists ------------------------------------------------------------------------------------------------ */
/* The add operations append one record; 0 without memory. A bad index: 0, and nothing is written. */

/* Contacts of the starting condition. `kind`: see PexloInstCode. */
PEXLO_API int PEXLO_CALL Pexlo_AddContInfo(PexloHandle handle, int kind, int code, int number);
PEXLO_API int PEXLO_CALL Pexlo_GetContInfoCount(PexloHandle handle);
PEXLO_API int PEXLO_CALL Pexlo_GetContInfo(PexloHandle handle, int index, int* kind, int* code, int* number);
PEXLO_API int PEXLO_CALL Pexlo_RemoveAllContInfo(PexloHandle handle);

/* Operands of the instruction: device code and number, or the value of a constant. */
PEXLO_API int PEXLO_CALL Pexlo_AddOprdInfo(PexloHandle handle, int code, int value);
PEXLO_API int PEXLO_CALL Pexlo_GetOprdInfoCount(PexloHandle handle);
PEXLO_API int PEXLO_CALL Pexlo_GetOprdInfo(PexloHandle handle, int index, int* code, int* value);
PEXLO_API int PEXLO_CALL Pexlo_RemoveAllOprdInfo(PexloHandle handle);

/* One entry of the data table. */
typedef struct PexloData
{
    unsigned int size;
    int code;   /* device code of the register */
    int number; /* register number */
    int type;   /* 0 one register, 1 two registers, 2 real number */
    int format; /* notation: 0 decimal, 1 hexadecimal, 2 real */
    int value;  /* for a real number the bits of its single-precision form */
} PexloData;

PEXLO_API int PEXLO_CALL Pexlo_AddDataInfo(PexloHandle handle, int code, int number, int type, int format,
                                           int value);
PEXLO_API int PEXLO_CALL Pexlo_GetDataInfoCount(PexloHandle handle);
PEXLO_API int PEXLO_CALL Pexlo_GetDataInfo(PexloHandle handle, int index, PexloData* data);
PEXLO_API int PEXLO_CALL Pexlo_RemoveAllDataInfo(PexloHandle handle);

/* Comments of the data table, one for each entry that has one. */
PEXLO_API int PEXLO_CALL Pexlo_AddCmtInfo(PexloHandle handle, const char* text);
PEXLO_API int PEXLO_CALL Pexlo_AddCmtInfoUtf8(PexloHandle handle, const char* text);
PEXLO_API int PEXLO_CALL Pexlo_GetCmtInfoCount(PexloHandle handle);
PEXLO_API int PEXLO_CALL Pexlo_GetCmtInfo(PexloHandle handle, int index, char* buffer, int size);
PEXLO_API int PEXLO_CALL Pexlo_GetCmtInfoUtf8(PexloHandle handle, int index, char* buffer, int size);
PEXLO_API int PEXLO_CALL Pexlo_RemoveAllCmtInfo(PexloHandle handle);

/* One record of the instruction sequence. */
typedef struct PexloInstCode
{
    unsigned int size;
    int kind;  /* -1 operand of the instruction before it, 1 second contact, 2 contact, 3 start output, 8 function
                  instruction, 17 differential instruction */
    int code;  /* device code; -1 for instructions */
    int value; /* device number, constant, or function number */
    int flag1;
    int flag2;
} PexloInstCode;

PEXLO_API int PEXLO_CALL Pexlo_AddInstCodeInfo(PexloHandle handle, int kind, int code, int value, int flag1,
                                               int flag2);
PEXLO_API int PEXLO_CALL Pexlo_GetInstCodeCount(PexloHandle handle);
PEXLO_API int PEXLO_CALL Pexlo_GetInstCodeInfo(PexloHandle handle, int index, PexloInstCode* record);
PEXLO_API int PEXLO_CALL Pexlo_GetInstCode(PexloHandle handle, int index, int* kind, int* code, int* value,
                                           int* flag1, int* flag2);
PEXLO_API int PEXLO_CALL Pexlo_RemoveAllInstCodeInfo(PexloHandle handle);

/* Empties the instruction list and fills it with the sequence that the other lists describe, by the generator of the
 * last wizard. On failure the records generated so far stay. The others append by a generator that the host chooses:
 * _1 built-in instructions, _11 scaling, _2 operations of the positioning unit, _3 JOG with speed change, _4 pulsar
 * input. */
PEXLO_API int PEXLO_CALL Pexlo_CreateInstCode(PexloHandle handle);
PEXLO_API int PEXLO_CALL Pexlo_CreateInstCode_1(PexloHandle handle);
PEXLO_API int PEXLO_CALL Pexlo_CreateInstCode_11(PexloHandle handle);
PEXLO_API int PEXLO_CALL Pexlo_CreateInstCode_2(PexloHandle handle);
PEXLO_API int PEXLO_CALL Pexlo_CreateInstCode_3(PexloHandle handle);
PEXLO_API int PEXLO_CALL Pexlo_CreateInstCode_4(PexloHandle handle);

/* ---- The wizards without windows --------------------------------------------------------------------------------- */
/* The same dialogs run and check the same, and nothing is shown: texts and items that a user would enter are passed,
 * and the message that he would see comes back. Any thread can do it with a handle of its own; no desktop is needed. */

/* Which dialog. */
#define PEXLO_FORM_CONTROL_CODE 0 /* the control code of a positioning unit's axis, in place of an instruction */
#define PEXLO_FORM_UNIT 151       /* an operation of the positioning unit: the variant tells which */

typedef struct PexloForm
{
    unsigned int size;
    int instruction;           /* 168..177, 151, 180 screen display, 282, 283, 354, 355, or 0 */
    int variant;               /* form 0 or 1 of F168 and F171; 10010..10080; else 0 */
    int axisFlag;              /* 151: 0 for a two-axis unit, else 1 */
    int workArea;              /* 355: as Pexlo_DoOpenPIDDlg takes it */
    unsigned int controlCode;  /* 0: what is shown at first; replaced by what was confirmed */
    int restricted;            /* 180, 282, 283, 354: whether the masks that follow count; 0 permits all */
    unsigned int permitted[4]; /* as Pexlo_DoOpenSCRDlg and Pexlo_DoOpenSCALDlg take them */
} PexloForm;

/* Which dialogs the PLC has: 168..177 as far as they are registered, 151 with each operation, 355, 180, 282, 283,
 * 354, 0. Index from 0; 0 behind the last one. */
typedef struct PexloOffer
{
    unsigned int size;
    int instruction;
    int variant;
    char text[256]; /* as the selection list shows it, columns separated by tabs; empty where there is no such list */
} PexloOffer;

PEXLO_API int PEXLO_CALL Pexlo_GetOffer(PexloHandle handle, int index, PexloOffer* offer);

/* What to enter, and where: a control by its id, or by its name when the id is 0; one of them is needed. Up to 65536
 * entries are taken.
 *
 * An edit takes the text that a user would type; nothing is cut. A list takes the text of an item, or "#" and the
 * item's code, decimal or with 0x hexadecimal. A check box or button that stays pressed takes 1 or 0, on or off,
 * true or false. A table takes its rows: cells separated by tabs, or by commas when there is no tab, rows by line
 * breaks.
 *
 * Entries are made one after the other. One whose field is not enabled yet, or whose item is not listed yet, waits for
 * those behind it, and one that a later entry has changed again is made again: when all have been made each field holds
 * what was asked for, counts, and has not been disabled by another one, or the call is refused. In the screen display
 * dialog each of the entries "upside-line" and "downside-line" turns to the settings of that line, for those behind. */
typedef struct PexloEntry
{
    unsigned int size;
    int control;
    const char* name;
    const char* text;
} PexloEntry;

/* Why a form was not accepted. */
#define PEXLO_REFUSED_BY_MESSAGE 1   /* by the dialog: messageId and message say what a user would have seen */
#define PEXLO_REFUSED_NO_FIELD 2     /* the dialog has no such field */
#define PEXLO_REFUSED_NO_ITEM 3      /* the list has no such item, or a check box got neither on nor off */
#define PEXLO_REFUSED_TYPING 4       /* the field does not take such a text: too long, or characters not accepted */
#define PEXLO_REFUSED_NOT_ENABLED 5  /* the field is not enabled with the other entries as they are */
#define PEXLO_REFUSED_CHANGED 6      /* another entry has changed the field again */
#define PEXLO_REFUSED_NOT_POSSIBLE 7 /* the PLC lacks what the dialog needs */
#define PEXLO_REFUSED_CANNOT_OPEN 8  /* the PLC has no such dialog, or a device, channels or a language are missing */

typedef struct PexloRefusal
{
    unsigned int size;
    int reason;        /* PEXLO_REFUSED_...; 0 when nothing was refused */
    int messageId;     /* of the message; 0 unless the dialog has refused */
    int control;       /* the control that was refused; 0 when it is none */
    int entry;         /* index of the entry that was refused; -1 when it is none */
    int row, column;   /* of the cell that was refused, from 1; 0 when it is no table */
    char name[32];     /* the name of the control */
    char message[512]; /* the dialog's in its language; else an English sentence */
} PexloRefusal;

/* Opens the dialog unseen, makes the entries and presses OK. Fields that are not named keep what the dialog shows
 * when it opens: defaults, or what the lists hold from the same instruction, confirmed before. 1: the lists are
 * those of the dialog. 2: refused, and everything is as it was; `refusal`, which may be null, says why. */
PEXLO_API int PEXLO_CALL Pexlo_Fill(PexloHandle handle, PexloForm* form, const PexloEntry* entries, int count,
                                    PexloRefusal* refusal);
/* The same, and stores nothing. */
PEXLO_API int PEXLO_CALL Pexlo_Check(PexloHandle handle, const PexloForm* form, const PexloEntry* entries,
                                     int count, PexloRefusal* refusal);

/* Kinds of fields. */
#define PEXLO_FIELD_EDIT 1
#define PEXLO_FIELD_LIST 2
#define PEXLO_FIELD_CHECK 3 /* on or off by itself */
#define PEXLO_FIELD_RADIO 4 /* on: the others of its group go off */
#define PEXLO_FIELD_TABLE 5 /* its items are the headings of its columns */

/* A field as it stands after the entries. */
typedef struct PexloField
{
    unsigned int size;
    int control;     /* its id */
    int kind;        /* PEXLO_FIELD_... */
    int enabled;     /* 0: it does not count as things stand */
    int limit;       /* characters that an edit takes; 0 = any number */
    int digitsOnly;  /* 1: an edit takes digits only */
    int itemCount;   /* of a list; columns of a table */
    int selected;    /* the item of a list, -1 for none; 0 or 1 of a check box; the rows used of a table */
    int mostRows;    /* of a table */
    int hasRange;    /* 1: an edit accepts low to high, both included, in units of its last decimal */
    int low;
    int high;
    int decimals;    /* digits behind the point */
    int messageId;   /* of the message when an entry is outside the range; 0 when there is none */
    int problem;     /* of the message with which the present entry would be refused; 0 when it is accepted */
    int inTable;     /* 1: the entry stands in the data table */
    int offset;      /* registers from the start of the data table */
    int registers;   /* how many it takes */
    int bitShift;    /* a list whose code is a part of the control code: its lowest bit ... */
    int bitWidth;    /* ... and how many; 0: it is none */
    char name[32];   /* the same in every language and version */
    char lowest[24]; /* the range as one types it */
    char highest[24];
    char label[256]; /* in the language of the dialog */
    char text[256];  /* what it holds, cut when it is longer: Pexlo_GetFieldText has all of it */
} PexloField;

/* Opens the dialog unseen, makes the entries, as far as that is possible, and tells its fields in tab order: writes up
 * to `capacity` of them, each with its size set by the caller, and returns how many there are; 0 when the dialog cannot
 * be opened. `refusal`, which may be null, tells of the first entry that could not be made. Nothing else changes. */
PEXLO_API int PEXLO_CALL Pexlo_DescribeFields(PexloHandle handle, const PexloForm* form, const PexloEntry* entries,
                                              int count, PexloField* fields, int capacity, PexloRefusal* refusal);

/* An item of a list, or a column of a table. */
typedef struct PexloItem
{
    unsigned int size;
    unsigned int code; /* of an item; in a list of devices the device code */
    int limit;         /* of a column, as of a field: characters, range, decimals */
    int hasRange;
    int low;
    int high;
    int decimals;
    char lowest[24];
    char highest[24];
    char text[256];    /* the item, or the heading of the column */
} PexloItem;

/* Of what the last Pexlo_DescribeFields has told; fields and items count from 0. The text of all fields together is
 * the caption of the dialog: field -1. A bad index: 0. */
PEXLO_API int PEXLO_CALL Pexlo_GetFieldItem(PexloHandle handle, int field, int item, PexloItem* info);
PEXLO_API int PEXLO_CALL Pexlo_GetFieldText(PexloHandle handle, int field, char* buffer, int size);

#ifdef __cplusplus
}
#endif

#endif
