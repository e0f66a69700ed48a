#pragma once

// The part of the Win32 API (ANSI and Unicode functions) that the MFC classes, the dialogs and their tests use, for
// systems that are not Windows. Names, values and signatures are those of <windows.h> compiled without UNICODE and with
// STRICT, so that the same sources compile against either. The functions work on windows that are kept in memory; what
// they do is described by the Windows documentation and not repeated here.

#include <cstddef>
#include <cstdint>

// NOLINTBEGIN(bugprone-reserved-identifier): the system's names

#define WINAPI
#define NTAPI
#define CALLBACK
#define PASCAL

#ifndef TRUE
#define TRUE 1
#define FALSE 0
#endif

#ifndef NULL
#define NULL 0
#endif

// ---------------------------------------------------------------------------------------------------------- types

typedef int BOOL;
typedef std::uint8_t BYTE;
typedef std::uint16_t WORD;
typedef std::uint32_t DWORD;
typedef char CHAR;
typedef std::int16_t SHORT;
typedef int INT;
typedef unsigned int UINT;
typedef std::int32_t LONG;
typedef std::uint32_t ULONG;
typedef long long LONGLONG;
typedef unsigned long long ULONGLONG;
typedef char16_t WCHAR;

typedef std::intptr_t INT_PTR;
typedef std::uintptr_t UINT_PTR;
typedef std::intptr_t LONG_PTR;
typedef std::uintptr_t ULONG_PTR;
typedef std::uintptr_t DWORD_PTR;
typedef std::size_t SIZE_T;

typedef UINT_PTR WPARAM;
typedef LONG_PTR LPARAM;
typedef LONG_PTR LRESULT;
typedef WORD ATOM;
typedef DWORD COLORREF;
typedef DWORD ACCESS_MASK;
typedef ACCESS_MASK REGSAM;
typedef LONG LSTATUS;
typedef WORD LANGID;
typedef DWORD LCID;
typedef DWORD LCTYPE;

typedef CHAR* LPSTR;
typedef const CHAR* LPCSTR;
typedef WCHAR* LPWSTR;
typedef const WCHAR* LPCWSTR;
typedef BOOL* LPBOOL;
typedef BYTE* LPBYTE;
typedef BYTE* PBYTE;
typedef DWORD* LPDWORD;
typedef INT* LPINT;
typedef void* LPVOID;

typedef void* HANDLE;
typedef void* HGDIOBJ;
typedef HANDLE HGLOBAL;

#define DECLARE_HANDLE(name)                                                                                           \
    struct name##__                                                                                                    \
    {                                                                                                                  \
        int unused;                                                                                                    \
    };                                                                                                                 \
    typedef struct name##__* name

DECLARE_HANDLE(HWND);
DECLARE_HANDLE(HINSTANCE);
DECLARE_HANDLE(HDC);
DECLARE_HANDLE(HFONT);
DECLARE_HANDLE(HBRUSH);
DECLARE_HANDLE(HPEN);
DECLARE_HANDLE(HRGN);
DECLARE_HANDLE(HMENU);
DECLARE_HANDLE(HICON);
DECLARE_HANDLE(HRSRC);
DECLARE_HANDLE(HKEY);
typedef HINSTANCE HMODULE;
typedef HICON HCURSOR;
typedef HKEY* PHKEY;

typedef INT_PTR(CALLBACK* FARPROC)();
typedef LRESULT(CALLBACK* WNDPROC)(HWND, UINT, WPARAM, LPARAM);
typedef INT_PTR(CALLBACK* DLGPROC)(HWND, UINT, WPARAM, LPARAM);
typedef void(CALLBACK* TIMERPROC)(HWND, UINT, UINT_PTR, DWORD);
typedef BOOL(CALLBACK* WNDENUMPROC)(HWND, LPARAM);
typedef BOOL(CALLBACK* ENUMRESLANGPROCW)(HMODULE, LPCWSTR, LPCWSTR, WORD, LONG_PTR);

struct RECT
{
    LONG left;
    LONG top;
    LONG right;
    LONG bottom;
};
typedef RECT* LPRECT;
typedef const RECT* LPCRECT;

struct POINT
{
    LONG x;
    LONG y;
};
typedef POINT* LPPOINT;

struct SIZE
{
    LONG cx;
    LONG cy;
};
typedef SIZE* LPSIZE;

struct MSG
{
    HWND hwnd;
    UINT message;
    WPARAM wParam;
    LPARAM lParam;
    DWORD time;
    POINT pt;
};
typedef MSG* LPMSG;

struct LOGFONTA
{
    LONG lfHeight;
    LONG lfWidth;
    LONG lfEscapement;
    LONG lfOrientation;
    LONG lfWeight;
    BYTE lfItalic;
    BYTE lfUnderline;
    BYTE lfStrikeOut;
    BYTE lfCharSet;
    BYTE lfOutPrecision;
    BYTE lfClipPrecision;
    BYTE lfQuality;
    BYTE lfPitchAndFamily;
    CHAR lfFaceName[32];
};

struct LOGFONTW
{
    LONG lfHeight;
    LONG lfWidth;
    LONG lfEscapement;
    LONG lfOrientation;
    LONG lfWeight;
    BYTE lfItalic;
    BYTE lfUnderline;
    BYTE lfStrikeOut;
    BYTE lfCharSet;
    BYTE lfOutPrecision;
    BYTE lfClipPrecision;
    BYTE lfQuality;
    BYTE lfPitchAndFamily;
    WCHAR lfFaceName[32];
};
typedef LOGFONTA LOGFONT;

struct TEXTMETRICA
{
    LONG tmHeight;
    LONG tmAscent;
    LONG tmDescent;
    LONG tmInternalLeading;
    LONG tmExternalLeading;
    LONG tmAveCharWidth;
    LONG tmMaxCharWidth;
    LONG tmWeight;
    LONG tmOverhang;
    LONG tmDigitizedAspectX;
    LONG tmDigitizedAspectY;
    BYTE tmFirstChar;
    BYTE tmLastChar;
    BYTE tmDefaultChar;
    BYTE tmBreakChar;
    BYTE tmItalic;
    BYTE tmUnderlined;
    BYTE tmStruckOut;
    BYTE tmPitchAndFamily;
    BYTE tmCharSet;
};
typedef TEXTMETRICA* LPTEXTMETRICA;

struct TEXTMETRICW
{
    LONG tmHeight;
    LONG tmAscent;
    LONG tmDescent;
    LONG tmInternalLeading;
    LONG tmExternalLeading;
    LONG tmAveCharWidth;
    LONG tmMaxCharWidth;
    LONG tmWeight;
    LONG tmOverhang;
    LONG tmDigitizedAspectX;
    LONG tmDigitizedAspectY;
    WCHAR tmFirstChar;
    WCHAR tmLastChar;
    WCHAR tmDefaultChar;
    WCHAR tmBreakChar;
    BYTE tmItalic;
    BYTE tmUnderlined;
    BYTE tmStruckOut;
    BYTE tmPitchAndFamily;
    BYTE tmCharSet;
};
typedef TEXTMETRICW* LPTEXTMETRICW;

struct LOGBRUSH
{
    UINT lbStyle;
    COLORREF lbColor;
    ULONG_PTR lbHatch;
};

struct PAINTSTRUCT
{
    HDC hdc;
    BOOL fErase;
    RECT rcPaint;
    BOOL fRestore;
    BOOL fIncUpdate;
    BYTE rgbReserved[32];
};
typedef PAINTSTRUCT* LPPAINTSTRUCT;

struct WNDCLASSA
{
    UINT style;
    WNDPROC lpfnWndProc;
    int cbClsExtra;
    int cbWndExtra;
    HINSTANCE hInstance;
    HICON hIcon;
    HCURSOR hCursor;
    HBRUSH hbrBackground;
    LPCSTR lpszMenuName;
    LPCSTR lpszClassName;
};

struct WNDCLASSW
{
    UINT style;
    WNDPROC lpfnWndProc;
    int cbClsExtra;
    int cbWndExtra;
    HINSTANCE hInstance;
    HICON hIcon;
    HCURSOR hCursor;
    HBRUSH hbrBackground;
    LPCWSTR lpszMenuName;
    LPCWSTR lpszClassName;
};

struct CREATESTRUCTA
{
    LPVOID lpCreateParams;
    HINSTANCE hInstance;
    HMENU hMenu;
    HWND hwndParent;
    int cy;
    int cx;
    int y;
    int x;
    LONG style;
    LPCSTR lpszName;
    LPCSTR lpszClass;
    DWORD dwExStyle;
};

struct CREATESTRUCTW
{
    LPVOID lpCreateParams;
    HINSTANCE hInstance;
    HMENU hMenu;
    HWND hwndParent;
    int cy;
    int cx;
    int y;
    int x;
    LONG style;
    LPCWSTR lpszName;
    LPCWSTR lpszClass;
    DWORD dwExStyle;
};

#pragma pack(push, 2)
struct DLGTEMPLATE
{
    DWORD style;
    DWORD dwExtendedStyle;
    WORD cdit;
    short x;
    short y;
    short cx;
    short cy;
};
#pragma pack(pop)
typedef const DLGTEMPLATE* LPCDLGTEMPLATE;

struct SCROLLINFO
{
    UINT cbSize;
    UINT fMask;
    int nMin;
    int nMax;
    UINT nPage;
    int nPos;
    int nTrackPos;
};
typedef SCROLLINFO* LPSCROLLINFO;
typedef const SCROLLINFO* LPCSCROLLINFO;

struct DRAWITEMSTRUCT
{
    UINT CtlType;
    UINT CtlID;
    UINT itemID;
    UINT itemAction;
    UINT itemState;
    HWND hwndItem;
    HDC hDC;
    RECT rcItem;
    ULONG_PTR itemData;
};
typedef DRAWITEMSTRUCT* LPDRAWITEMSTRUCT;

struct MEASUREITEMSTRUCT
{
    UINT CtlType;
    UINT CtlID;
    UINT itemID;
    UINT itemWidth;
    UINT itemHeight;
    ULONG_PTR itemData;
};
typedef MEASUREITEMSTRUCT* LPMEASUREITEMSTRUCT;

struct DELETEITEMSTRUCT
{
    UINT CtlType;
    UINT CtlID;
    UINT itemID;
    HWND hwndItem;
    ULONG_PTR itemData;
};

struct WINDOWPOS
{
    HWND hwnd;
    HWND hwndInsertAfter;
    int x;
    int y;
    int cx;
    int cy;
    UINT flags;
};

struct HELPINFO
{
    UINT cbSize;
    int iContextType;
    int iCtrlId;
    HANDLE hItemHandle;
    DWORD_PTR dwContextId;
    POINT MousePos;
};

// ------------------------------------------------------------------------------------------------------ small macros

#define MAKELONG(low, high)                                                                                            \
    ((LONG)(((WORD)((DWORD_PTR)(low)&0xffff)) | ((DWORD)((WORD)((DWORD_PTR)(high)&0xffff))) << 16))
#define MAKEWORD(low, high) ((WORD)((BYTE)(low) | (WORD)((BYTE)(high)) << 8))
#define LOBYTE(w) ((BYTE)((DWORD_PTR)(w)&0xff))
#define HIBYTE(w) ((BYTE)((DWORD_PTR)(w) >> 8 & 0xff))
#define LOWORD(l) ((WORD)((DWORD_PTR)(l)&0xffff))
#define HIWORD(l) ((WORD)((DWORD_PTR)(l) >> 16))
#define GET_X_LPARAM(lp) ((int)(short)LOWORD(lp))
#define GET_Y_LPARAM(lp) ((int)(short)HIWORD(lp))
#define MAKEWPARAM(l, h) ((WPARAM)(DWORD)MAKELONG(l, h))
#define MAKELPARAM(l, h) ((LPARAM)(DWORD)MAKELONG(l, h))
#define MAKEINTRESOURCEA(i) ((LPSTR)((ULONG_PTR)((WORD)(i))))
#define MAKEINTRESOURCEW(i) ((LPWSTR)((ULONG_PTR)((WORD)(i))))
#define MAKEINTRESOURCE MAKEINTRESOURCEA
#define IS_INTRESOURCE(r) ((((ULONG_PTR)(r)) >> 16) == 0)
#define RGB(r, g, b) ((COLORREF)(((BYTE)(r) | ((WORD)((BYTE)(g)) << 8)) | (((DWORD)(BYTE)(b)) << 16)))
#define MAX_PATH 260
#define LF_FACESIZE 32

// ------------------------------------------------------------------------------------------------ window messages

#define WM_NULL 0x0000
#define WM_CREATE 0x0001
#define WM_DESTROY 0x0002
#define WM_MOVE 0x0003
#define WM_SIZE 0x0005
#define WM_ACTIVATE 0x0006
#define WA_INACTIVE 0
#define WA_ACTIVE 1
#define WA_CLICKACTIVE 2
#define WM_SETFOCUS 0x0007
#define WM_KILLFOCUS 0x0008
#define WM_ENABLE 0x000A
#define WM_SETREDRAW 0x000B
#define WM_SETTEXT 0x000C
#define WM_GETTEXT 0x000D
#define WM_GETTEXTLENGTH 0x000E
#define WM_PAINT 0x000F
#define WM_CLOSE 0x0010
#define WM_QUERYENDSESSION 0x0011
#define WM_QUIT 0x0012
#define WM_ERASEBKGND 0x0014
#define WM_SHOWWINDOW 0x0018
#define WM_CANCELMODE 0x001F
#define WM_MOUSEACTIVATE 0x0021
#define WM_NEXTDLGCTL 0x0028
#define WM_DRAWITEM 0x002B
#define WM_MEASUREITEM 0x002C
#define WM_DELETEITEM 0x002D
#define WM_VKEYTOITEM 0x002E
#define WM_CHARTOITEM 0x002F
#define WM_SETFONT 0x0030
#define WM_GETFONT 0x0031
#define WM_COMPAREITEM 0x0039
#define WM_WINDOWPOSCHANGING 0x0046
#define WM_WINDOWPOSCHANGED 0x0047
#define WM_HELP 0x0053
#define WM_CONTEXTMENU 0x007B
#define WM_NCCREATE 0x0081
#define WM_NCDESTROY 0x0082
#define WM_NCHITTEST 0x0084
#define WM_NCACTIVATE 0x0086
#define WM_GETDLGCODE 0x0087
#define WM_KEYFIRST 0x0100
#define WM_KEYDOWN 0x0100
#define WM_KEYUP 0x0101
#define WM_CHAR 0x0102
#define WM_SYSKEYDOWN 0x0104
#define WM_SYSKEYUP 0x0105
#define WM_SYSCHAR 0x0106
#define WM_KEYLAST 0x0109
#define WM_INITDIALOG 0x0110
#define WM_COMMAND 0x0111
#define WM_SYSCOMMAND 0x0112
#define WM_TIMER 0x0113
#define WM_HSCROLL 0x0114
#define WM_VSCROLL 0x0115
#define WM_INITMENU 0x0116
#define WM_INITMENUPOPUP 0x0117
#define WM_MENUSELECT 0x011F
#define WM_ENTERIDLE 0x0121
#define WM_UNINITMENUPOPUP 0x0125
#define WM_CTLCOLORMSGBOX 0x0132
#define WM_CTLCOLOREDIT 0x0133
#define WM_CTLCOLORLISTBOX 0x0134
#define WM_CTLCOLORBTN 0x0135
#define WM_CTLCOLORDLG 0x0136
#define WM_CTLCOLORSCROLLBAR 0x0137
#define WM_CTLCOLORSTATIC 0x0138
#define WM_MOUSEFIRST 0x0200
#define WM_MOUSEMOVE 0x0200
#define WM_LBUTTONDOWN 0x0201
#define WM_LBUTTONUP 0x0202
#define WM_LBUTTONDBLCLK 0x0203
#define WM_RBUTTONDOWN 0x0204
#define WM_RBUTTONUP 0x0205
#define WM_MOUSEWHEEL 0x020A
#define WM_MOUSELAST 0x020E
#define WM_PARENTNOTIFY 0x0210
#define WM_ENTERMENULOOP 0x0211
#define WM_EXITMENULOOP 0x0212
#define WM_CAPTURECHANGED 0x0215
#define WM_CUT 0x0300
#define WM_COPY 0x0301
#define WM_PASTE 0x0302
#define WM_CLEAR 0x0303
#define WM_UNDO 0x0304
#define WM_PRINT 0x0317
#define WM_PRINTCLIENT 0x0318
#define WM_USER 0x0400
#define WM_APP 0x8000
#define WHEEL_DELTA 120
#define DM_GETDEFID (WM_USER + 0)
#define DM_SETDEFID (WM_USER + 1)
#define DC_HASDEFID 0x534B

#define SIZE_RESTORED 0
#define MSGF_DIALOGBOX 0
#define MSGF_MENU 2

// ------------------------------------------------------------------------------------------------ window styles

#define CS_DBLCLKS 0x0008

#define WS_OVERLAPPED 0x00000000U
#define WS_POPUP 0x80000000U
#define WS_CHILD 0x40000000U
#define WS_MINIMIZE 0x20000000U
#define WS_VISIBLE 0x10000000U
#define WS_DISABLED 0x08000000U
#define WS_CLIPSIBLINGS 0x04000000U
#define WS_CLIPCHILDREN 0x02000000U
#define WS_CAPTION 0x00C00000U
#define WS_BORDER 0x00800000U
#define WS_DLGFRAME 0x00400000U
#define WS_VSCROLL 0x00200000U
#define WS_HSCROLL 0x00100000U
#define WS_SYSMENU 0x00080000U
#define WS_THICKFRAME 0x00040000U
#define WS_GROUP 0x00020000U
#define WS_TABSTOP 0x00010000U
#define WS_MINIMIZEBOX 0x00020000U
#define WS_MAXIMIZEBOX 0x00010000U
#define WS_OVERLAPPEDWINDOW (WS_OVERLAPPED | WS_CAPTION | WS_SYSMENU | WS_THICKFRAME | WS_MINIMIZEBOX | WS_MAXIMIZEBOX)

#define WS_EX_DLGMODALFRAME 0x00000001U
#define WS_EX_NOPARENTNOTIFY 0x00000004U
#define WS_EX_TOOLWINDOW 0x00000080U
#define WS_EX_WINDOWEDGE 0x00000100U
#define WS_EX_CLIENTEDGE 0x00000200U
#define WS_EX_CONTROLPARENT 0x00010000U
#define WS_EX_STATICEDGE 0x00020000U
#define WS_EX_NOACTIVATE 0x08000000U

#define DS_ABSALIGN 0x0001
#define DS_SETFONT 0x0040
#define DS_MODALFRAME 0x0080
#define DS_NOIDLEMSG 0x0100
#define DS_3DLOOK 0x0004
#define DS_NOFAILCREATE 0x0010
#define DS_CONTROL 0x0400
#define DS_CENTER 0x0800
#define DS_CENTERMOUSE 0x1000

#define CW_USEDEFAULT ((int)0x80000000)
#define HWND_TOP ((HWND)0)
#define HWND_BOTTOM ((HWND)(LONG_PTR)1)
#define HWND_MESSAGE ((HWND)(LONG_PTR)-3)
#define HWND_BROADCAST ((HWND)(LONG_PTR)0xffff)

#define GW_HWNDNEXT 2
#define GW_HWNDPREV 3
#define GW_OWNER 4
#define GW_CHILD 5

#define GWL_STYLE (-16)
#define GWL_EXSTYLE (-20)
#define GWLP_WNDPROC (-4)
#define GWLP_HWNDPARENT (-8)
#define GWLP_USERDATA (-21)
#define GWLP_ID (-12)
#define DWLP_MSGRESULT 0
#define DWLP_DLGPROC (DWLP_MSGRESULT + sizeof(LRESULT))
#define DWLP_USER (DWLP_DLGPROC + sizeof(DLGPROC))
#define DLGWINDOWEXTRA 48

#define SW_HIDE 0
#define SW_SHOWNORMAL 1
#define SW_SHOWMINIMIZED 2
#define SW_SHOWMAXIMIZED 3
#define SW_SHOWNOACTIVATE 4
#define SW_SHOW 5
#define SW_MINIMIZE 6
#define SW_SHOWMINNOACTIVE 7
#define SW_SHOWNA 8

#define SWP_NOSIZE 0x0001
#define SWP_NOMOVE 0x0002
#define SWP_NOZORDER 0x0004
#define SWP_NOREDRAW 0x0008
#define SWP_NOACTIVATE 0x0010
#define SWP_FRAMECHANGED 0x0020
#define SWP_SHOWWINDOW 0x0040
#define SWP_HIDEWINDOW 0x0080
#define SWP_NOSENDCHANGING 0x0400

#define RDW_INVALIDATE 0x0001
#define RDW_ALLCHILDREN 0x0080
#define RDW_UPDATENOW 0x0100

#define DLGC_WANTARROWS 0x0001
#define DLGC_WANTTAB 0x0002
#define DLGC_WANTALLKEYS 0x0004
#define DLGC_WANTMESSAGE 0x0004
#define DLGC_HASSETSEL 0x0008
#define DLGC_DEFPUSHBUTTON 0x0010
#define DLGC_UNDEFPUSHBUTTON 0x0020
#define DLGC_RADIOBUTTON 0x0040
#define DLGC_WANTCHARS 0x0080
#define DLGC_STATIC 0x0100
#define DLGC_BUTTON 0x2000

#define HTTRANSPARENT (-1)
#define HTCLIENT 1

#define MA_ACTIVATE 1

#define PM_NOREMOVE 0x0000
#define PM_REMOVE 0x0001

#define MK_LBUTTON 0x0001
#define MK_SHIFT 0x0004
#define MK_CONTROL 0x0008

#define SC_CLOSE 0xF060
#define SC_KEYMENU 0xF100

// ------------------------------------------------------------------------------------------------------ controls

#define BS_PUSHBUTTON 0x00000000U
#define BS_DEFPUSHBUTTON 0x00000001U
#define BS_CHECKBOX 0x00000002U
#define BS_AUTOCHECKBOX 0x00000003U
#define BS_RADIOBUTTON 0x00000004U
#define BS_GROUPBOX 0x00000007U
#define BS_AUTORADIOBUTTON 0x00000009U
#define BS_OWNERDRAW 0x0000000BU
#define BS_TYPEMASK 0x0000000FU
#define BS_PUSHLIKE 0x00001000U
#define BS_NOTIFY 0x00004000U

#define BN_CLICKED 0
#define BN_DOUBLECLICKED 5
#define BN_SETFOCUS 6
#define BN_KILLFOCUS 7

#define BM_GETCHECK 0x00F0
#define BM_SETCHECK 0x00F1
#define BM_GETSTATE 0x00F2
#define BM_SETSTATE 0x00F3
#define BM_SETSTYLE 0x00F4
#define BM_CLICK 0x00F5
#define BM_SETIMAGE 0x00F7
#define BST_UNCHECKED 0x0000
#define BST_CHECKED 0x0001
#define BST_PUSHED 0x0004
#define BST_FOCUS 0x0008

#define SS_LEFT 0x00000000U
#define SS_ICON 0x00000003U
#define SS_OWNERDRAW 0x0000000DU
#define SS_ETCHEDFRAME 0x00000012
#define SS_BITMAP 0x0000000EU
#define SS_ENHMETAFILE 0x0000000FU
#define SS_TYPEMASK 0x0000001FU
#define SS_SUNKEN 0x00001000
#define SS_NOPREFIX 0x00000080U
#define SS_NOTIFY 0x00000100U

#define STM_SETICON 0x0170
#define STM_GETICON 0x0171
#define STM_SETIMAGE 0x0172
#define STM_GETIMAGE 0x0173
#define STN_CLICKED 0
#define STN_DBLCLK 1
#define STN_ENABLE 2
#define STN_DISABLE 3

#define ES_LEFT 0x0000U
#define ES_CENTER 0x0001U
#define ES_RIGHT 0x0002U
#define ES_MULTILINE 0x0004U
#define ES_UPPERCASE 0x0008U
#define ES_LOWERCASE 0x0010U
#define ES_PASSWORD 0x0020U
#define ES_AUTOVSCROLL 0x0040U
#define ES_AUTOHSCROLL 0x0080U
#define ES_READONLY 0x0800U
#define ES_WANTRETURN 0x1000U
#define ES_NUMBER 0x2000U

#define EN_SETFOCUS 0x0100
#define EN_KILLFOCUS 0x0200
#define EN_CHANGE 0x0300
#define EN_UPDATE 0x0400
#define EN_MAXTEXT 0x0501

#define EM_GETSEL 0x00B0
#define EM_SETSEL 0x00B1
#define EM_GETRECT 0x00B2
#define EM_SETRECT 0x00B3
#define EM_SCROLLCARET 0x00B7
#define EM_GETMODIFY 0x00B8
#define EM_SETMODIFY 0x00B9
#define EM_GETLINECOUNT 0x00BA
#define EM_LINEINDEX 0x00BB
#define EM_GETHANDLE 0x00BD
#define EM_REPLACESEL 0x00C2
#define EM_GETLINE 0x00C4
#define EM_LIMITTEXT 0x00C5
#define EM_GETFIRSTVISIBLELINE 0x00CE
#define EM_SETREADONLY 0x00CF
#define EM_GETLIMITTEXT 0x00D5
#define EM_CHARFROMPOS 0x00D7

#define LBS_NOTIFY 0x0001U
#define LBS_SORT 0x0002U
#define LBS_MULTIPLESEL 0x0008U
#define LBS_OWNERDRAWFIXED 0x0010U
#define LBS_OWNERDRAWVARIABLE 0x0020U
#define LBS_USETABSTOPS 0x0080U
#define LBS_NOINTEGRALHEIGHT 0x0100U
#define LBS_MULTICOLUMN 0x0200U
#define LBS_WANTKEYBOARDINPUT 0x0400U
#define LBS_EXTENDEDSEL 0x0800U
#define LBS_DISABLENOSCROLL 0x1000U
#define LBS_NODATA 0x2000U

#define LBN_ERRSPACE (-2)
#define LBN_SELCHANGE 1
#define LBN_DBLCLK 2
#define LBN_SETFOCUS 4
#define LBN_KILLFOCUS 5
#define LB_OKAY 0
#define LB_ERR (-1)
#define LB_ERRSPACE (-2)

#define LB_ADDSTRING 0x0180
#define LB_INSERTSTRING 0x0181
#define LB_DELETESTRING 0x0182
#define LB_RESETCONTENT 0x0184
#define LB_SETCURSEL 0x0186
#define LB_GETCURSEL 0x0188
#define LB_GETTEXT 0x0189
#define LB_GETTEXTLEN 0x018A
#define LB_GETCOUNT 0x018B
#define LB_SELECTSTRING 0x018C
#define LB_DIR 0x018D
#define LB_GETTOPINDEX 0x018E
#define LB_FINDSTRING 0x018F
#define LB_SETTABSTOPS 0x0192
#define LB_SETHORIZONTALEXTENT 0x0194
#define LB_SETTOPINDEX 0x0197
#define LB_GETITEMDATA 0x0199
#define LB_SETITEMDATA 0x019A
#define LB_GETITEMHEIGHT 0x01A1
#define LB_FINDSTRINGEXACT 0x01A2
#define LB_ITEMFROMPOINT 0x01A9

#define CBS_DROPDOWN 0x0002U
#define CBS_DROPDOWNLIST 0x0003U
#define CBS_OWNERDRAWFIXED 0x0010U
#define CBS_OWNERDRAWVARIABLE 0x0020U
#define CBS_SORT 0x0100U
#define CBS_HASSTRINGS 0x0200U

#define CBN_ERRSPACE (-1)
#define CBN_SELCHANGE 1
#define CBN_SETFOCUS 3
#define CBN_KILLFOCUS 4
#define CBN_DROPDOWN 7
#define CBN_CLOSEUP 8
#define CBN_SELENDOK 9
#define CBN_SELENDCANCEL 10
#define CB_OKAY 0
#define CB_ERR (-1)
#define CB_ERRSPACE (-2)

#define CB_GETEDITSEL 0x0140
#define CB_LIMITTEXT 0x0141
#define CB_ADDSTRING 0x0143
#define CB_DELETESTRING 0x0144
#define CB_DIR 0x0145
#define CB_GETCOUNT 0x0146
#define CB_GETCURSEL 0x0147
#define CB_GETLBTEXT 0x0148
#define CB_GETLBTEXTLEN 0x0149
#define CB_INSERTSTRING 0x014A
#define CB_RESETCONTENT 0x014B
#define CB_FINDSTRING 0x014C
#define CB_SELECTSTRING 0x014D
#define CB_SETCURSEL 0x014E
#define CB_SHOWDROPDOWN 0x014F
#define CB_GETITEMDATA 0x0150
#define CB_SETITEMDATA 0x0151
#define CB_SETITEMHEIGHT 0x0153
#define CB_GETITEMHEIGHT 0x0154
#define CB_GETDROPPEDSTATE 0x0157
#define CB_FINDSTRINGEXACT 0x0158
#define CB_GETDROPPEDWIDTH 0x015F
#define CB_SETDROPPEDWIDTH 0x0160
#define CB_GETCOMBOBOXINFO 0x0164

#define SBS_VERT 0x0001U
#define SB_HORZ 0
#define SB_VERT 1
#define SB_CTL 2
#define SB_LINEUP 0
#define SB_LINEDOWN 1
#define SB_PAGEUP 2
#define SB_PAGEDOWN 3
#define SB_THUMBPOSITION 4
#define SB_THUMBTRACK 5
#define SB_TOP 6
#define SB_BOTTOM 7
#define SB_ENDSCROLL 8
#define SBM_SETPOS 0x00E0
#define SBM_GETSCROLLINFO 0x00EA
#define SIF_RANGE 0x0001
#define SIF_PAGE 0x0002
#define SIF_POS 0x0004
#define SIF_DISABLENOSCROLL 0x0008
#define SIF_TRACKPOS 0x0010
#define SIF_ALL (SIF_RANGE | SIF_PAGE | SIF_POS | SIF_TRACKPOS)
#define ESB_ENABLE_BOTH 0x0000

#define ODT_LISTBOX 2
#define ODT_COMBOBOX 3
#define ODT_BUTTON 4
#define ODT_STATIC 5
#define ODA_DRAWENTIRE 0x0001
#define ODA_SELECT 0x0002
#define ODA_FOCUS 0x0004
#define ODS_SELECTED 0x0001
#define ODS_DISABLED 0x0004
#define ODS_FOCUS 0x0010
#define ODS_COMBOBOXEDIT 0x1000

// ------------------------------------------------------------------------------------------------------------ keys

#define VK_CANCEL 0x03
#define VK_BACK 0x08
#define VK_TAB 0x09
#define VK_RETURN 0x0D
#define VK_SHIFT 0x10
#define VK_CONTROL 0x11
#define VK_MENU 0x12
#define VK_CAPITAL 0x14
#define VK_ESCAPE 0x1B
#define VK_SPACE 0x20
#define VK_PRIOR 0x21
#define VK_NEXT 0x22
#define VK_END 0x23
#define VK_HOME 0x24
#define VK_LEFT 0x25
#define VK_UP 0x26
#define VK_RIGHT 0x27
#define VK_DOWN 0x28
#define VK_EXECUTE 0x2B
#define VK_INSERT 0x2D
#define VK_DELETE 0x2E
#define VK_APPS 0x5D
#define VK_NUMPAD0 0x60
#define VK_NUMPAD9 0x69
#define VK_MULTIPLY 0x6A
#define VK_ADD 0x6B
#define VK_SUBTRACT 0x6D
#define VK_DECIMAL 0x6E
#define VK_DIVIDE 0x6F
#define VK_F1 0x70
#define VK_F2 0x71
#define VK_F4 0x73
#define VK_F5 0x74
#define VK_OEM_MINUS 0xBD
#define VK_OEM_PERIOD 0xBE

// ---------------------------------------------------------------------------------------------------- message boxes

#define IDOK 1
#define IDCANCEL 2
#define IDABORT 3
#define IDRETRY 4
#define IDIGNORE 5
#define IDYES 6
#define IDNO 7
#define IDC_STATIC (-1)

#define MB_OK 0x00000000U
#define MB_OKCANCEL 0x00000001U
#define MB_ABORTRETRYIGNORE 0x00000002U
#define MB_YESNOCANCEL 0x00000003U
#define MB_YESNO 0x00000004U
#define MB_RETRYCANCEL 0x00000005U
#define MB_ICONHAND 0x00000010U
#define MB_ICONQUESTION 0x00000020U
#define MB_ICONEXCLAMATION 0x00000030U
#define MB_ICONASTERISK 0x00000040U
#define MB_DEFBUTTON2 0x00000100U
#define MB_TASKMODAL 0x00002000U
#define MB_HELP 0x00004000U
#define MB_TYPEMASK 0x0000000FU
#define MB_ICONMASK 0x000000F0U
#define MB_DEFMASK 0x00000F00U

// ------------------------------------------------------------------------------------------------------------- menus

#define MF_BYCOMMAND 0x00000000U
#define MF_BYPOSITION 0x00000400U
#define MF_SEPARATOR 0x00000800U
#define MF_ENABLED 0x00000000U
#define MF_GRAYED 0x00000001U
#define MF_DISABLED 0x00000002U
#define MF_STRING 0x00000000U
#define TPM_RIGHTBUTTON 0x0002U
#define TPM_LEFTALIGN 0x0000U
#define TPM_TOPALIGN 0x0000U
#define TPM_NONOTIFY 0x0080U
#define TPM_RETURNCMD 0x0100U

// --------------------------------------------------------------------------------------------------------------- GDI

#define LOGPIXELSX 88
#define LOGPIXELSY 90

#define WHITE_BRUSH 0
#define BLACK_BRUSH 4
#define NULL_BRUSH 5
#define BLACK_PEN 7
#define NULL_PEN 8
#define SYSTEM_FONT 13
#define DEFAULT_GUI_FONT 17

#define OBJ_PEN 1
#define OBJ_BRUSH 2
#define OBJ_DC 3
#define OBJ_FONT 6
#define OBJ_MEMDC 10

#define CLR_INVALID 0xFFFFFFFFU

#define TRANSPARENT 1
#define OPAQUE 2
#define BS_SOLID 0
#define BS_NULL 1
#define PS_SOLID 0
#define PS_NULL 5

#define ETO_OPAQUE 0x0002

#define DT_LEFT 0x00000000U
#define DT_CENTER 0x00000001U
#define DT_RIGHT 0x00000002U
#define DT_VCENTER 0x00000004U
#define DT_BOTTOM 0x00000008U
#define DT_WORDBREAK 0x00000010U
#define DT_SINGLELINE 0x00000020U
#define DT_EXTERNALLEADING 0x00000200U
#define DT_CALCRECT 0x00000400U
#define DT_NOPREFIX 0x00000800U

#define COLOR_SCROLLBAR 0
#define COLOR_WINDOW 5
#define COLOR_WINDOWFRAME 6
#define COLOR_WINDOWTEXT 8
#define COLOR_HIGHLIGHT 13
#define COLOR_HIGHLIGHTTEXT 14
#define COLOR_BTNFACE 15
#define COLOR_BTNSHADOW 16
#define COLOR_GRAYTEXT 17
#define COLOR_BTNTEXT 18
#define COLOR_BTNHIGHLIGHT 20
#define COLOR_INFOBK 24

#define FW_DONTCARE 0
#define FW_NORMAL 400
#define FW_BOLD 700
#define ANSI_CHARSET 0
#define DEFAULT_CHARSET 1
#define FIXED_PITCH 1
#define FF_SWISS (2 << 4)
#define TMPF_FIXED_PITCH 0x01

#define IDC_ARROW MAKEINTRESOURCE(32512)
#define IDI_APPLICATION MAKEINTRESOURCE(32512)
#define IDI_HAND MAKEINTRESOURCE(32513)
#define IDI_QUESTION MAKEINTRESOURCE(32514)
#define IDI_EXCLAMATION MAKEINTRESOURCE(32515)
#define IDI_ASTERISK MAKEINTRESOURCE(32516)

#define SM_CXVSCROLL 2
#define SM_CYVSCROLL 20
#define SPI_GETWORKAREA 0x0030

// ---------------------------------------------------------------------------------- resources, libraries and the rest

#define RT_DIALOG MAKEINTRESOURCE(5)
#define RT_STRING MAKEINTRESOURCE(6)

#define ERROR_SUCCESS 0
#define NO_ERROR 0
#define ERROR_FILE_NOT_FOUND 2
#define ERROR_ACCESS_DENIED 5
#define ERROR_INVALID_HANDLE 6
#define ERROR_NOT_ENOUGH_MEMORY 8
#define ERROR_INVALID_PARAMETER 87
#define ERROR_INSUFFICIENT_BUFFER 122
#define ERROR_MOD_NOT_FOUND 126
#define ERROR_PROC_NOT_FOUND 127
#define ERROR_BAD_EXE_FORMAT 193
#define ERROR_MORE_DATA 234
#define ERROR_INVALID_FLAGS 1004
#define ERROR_NO_UNICODE_TRANSLATION 1113
#define ERROR_INVALID_WINDOW_HANDLE 1400
#define ERROR_INVALID_MENU_HANDLE 1401
#define ERROR_TLW_WITH_WSCHILD 1406
#define ERROR_CANNOT_FIND_WND_CLASS 1407
#define ERROR_CLASS_ALREADY_EXISTS 1410
#define ERROR_CLASS_DOES_NOT_EXIST 1411
#define ERROR_CLASS_HAS_WINDOWS 1412
#define ERROR_INVALID_INDEX 1413
#define ERROR_CONTROL_ID_NOT_FOUND 1421
#define ERROR_CLIPBOARD_NOT_OPEN 1418
#define ERROR_RESOURCE_TYPE_NOT_FOUND 1813
#define ERROR_RESOURCE_NAME_NOT_FOUND 1814

#define GMEM_MOVEABLE 0x0002

#define CF_TEXT 1
#define CF_UNICODETEXT 13

#define CP_ACP 0
#define CP_UTF8 65001
#define MB_PRECOMPOSED 0x0001U
#define MB_ERR_INVALID_CHARS 0x0008U
#define WC_ERR_INVALID_CHARS 0x0080U
#define WC_NO_BEST_FIT_CHARS 0x0400U

#define MAKELANGID(primary, sub) ((WORD)((((WORD)(sub)) << 10) | (WORD)(primary)))
#define PRIMARYLANGID(language) ((WORD)(language)&0x3ff)
#define SUBLANGID(language) ((WORD)(language) >> 10)
#define MAKELCID(language, sort) ((DWORD)((((DWORD)((WORD)(sort))) << 16) | ((DWORD)((WORD)(language)))))
#define LANGIDFROMLCID(locale) ((WORD)(locale))
#define SORT_DEFAULT 0x0
#define LANG_NEUTRAL 0x00
#define LANG_ENGLISH 0x09
#define LOCALE_IDEFAULTANSICODEPAGE 0x1004U
#define LOCALE_RETURN_NUMBER 0x20000000U

#define HKEY_CLASSES_ROOT ((HKEY)(ULONG_PTR)((LONG)0x80000000))
#define HKEY_CURRENT_USER ((HKEY)(ULONG_PTR)((LONG)0x80000001))
#define HKEY_LOCAL_MACHINE ((HKEY)(ULONG_PTR)((LONG)0x80000002))
#define HKEY_USERS ((HKEY)(ULONG_PTR)((LONG)0x80000003))
#define KEY_READ 0x20019
#define REG_NONE 0
#define REG_SZ 1
#define REG_EXPAND_SZ 2
#define REG_DWORD 4

// ---------------------------------------------------------------------------------------------------------- functions

// Window classes
ATOM RegisterClassA(const WNDCLASSA* wndClass);
BOOL UnregisterClassA(LPCSTR className, HINSTANCE instance);
int GetClassNameA(HWND window, LPSTR text, int size);
ATOM RegisterClassW(const WNDCLASSW* wndClass);
BOOL UnregisterClassW(LPCWSTR className, HINSTANCE instance);
int GetClassNameW(HWND window, LPWSTR text, int size);

// Windows: life, relations, properties
HWND CreateWindowExA(DWORD exStyle, LPCSTR className, LPCSTR text, DWORD style, int x, int y, int width, int height,
                     HWND parent, HMENU menuOrId, HINSTANCE instance, LPVOID param);
HWND CreateWindowExW(DWORD exStyle, LPCWSTR className, LPCWSTR text, DWORD style, int x, int y, int width, int height,
                     HWND parent, HMENU menuOrId, HINSTANCE instance, LPVOID param);
BOOL DestroyWindow(HWND window);
BOOL IsWindow(HWND window);
BOOL IsWindowUnicode(HWND window);
HWND GetParent(HWND window);
HWND GetWindow(HWND window, UINT relation);
HWND GetDesktopWindow();
HWND GetLastActivePopup(HWND window);
BOOL IsChild(HWND parent, HWND window);
BOOL EnumThreadWindows(DWORD threadId, WNDENUMPROC callback, LPARAM param);
BOOL EnableWindow(HWND window, BOOL enable);
BOOL IsWindowEnabled(HWND window);
BOOL ShowWindow(HWND window, int command);
BOOL IsWindowVisible(HWND window);
BOOL IsIconic(HWND window);
BOOL SetWindowTextA(HWND window, LPCSTR text);
int GetWindowTextA(HWND window, LPSTR text, int size);
int GetWindowTextLengthA(HWND window);
BOOL SetWindowTextW(HWND window, LPCWSTR text);
int GetWindowTextW(HWND window, LPWSTR text, int size);
int GetWindowTextLengthW(HWND window);
LONG GetWindowLongA(HWND window, int index);
LONG SetWindowLongA(HWND window, int index, LONG value);
LONG_PTR GetWindowLongPtrA(HWND window, int index);
LONG_PTR SetWindowLongPtrA(HWND window, int index, LONG_PTR value);
LONG GetWindowLongW(HWND window, int index);
LONG SetWindowLongW(HWND window, int index, LONG value);
LONG_PTR GetWindowLongPtrW(HWND window, int index);
LONG_PTR SetWindowLongPtrW(HWND window, int index, LONG_PTR value);
DWORD GetCurrentThreadId();
DWORD GetCurrentProcessId();

// Focus, activation, keyboard and mouse state
HWND SetFocus(HWND window);
HWND GetFocus();
HWND SetActiveWindow(HWND window);
HWND GetActiveWindow();
HWND SetCapture(HWND window);
BOOL ReleaseCapture();
HWND GetCapture();
SHORT GetKeyState(int key);
BOOL GetKeyboardState(PBYTE keys);
BOOL SetKeyboardState(LPBYTE keys);
HCURSOR LoadCursorA(HINSTANCE instance, LPCSTR name);
HCURSOR LoadCursorW(HINSTANCE instance, LPCWSTR name);
HICON LoadIconA(HINSTANCE instance, LPCSTR name);

// Geometry
BOOL MoveWindow(HWND window, int x, int y, int width, int height, BOOL repaint);
BOOL SetWindowPos(HWND window, HWND after, int x, int y, int width, int height, UINT flags);
BOOL GetWindowRect(HWND window, LPRECT rect);
BOOL GetClientRect(HWND window, LPRECT rect);
BOOL ScreenToClient(HWND window, LPPOINT point);
BOOL ClientToScreen(HWND window, LPPOINT point);
int MapWindowPoints(HWND from, HWND to, LPPOINT points, UINT count);
int GetSystemMetrics(int index);
BOOL SystemParametersInfoA(UINT action, UINT param, LPVOID value, UINT flags);
BOOL SystemParametersInfoW(UINT action, UINT param, LPVOID value, UINT flags);
BOOL SetRect(LPRECT rect, int left, int top, int right, int bottom);
BOOL SetRectEmpty(LPRECT rect);
BOOL InflateRect(LPRECT rect, int dx, int dy);
BOOL OffsetRect(LPRECT rect, int dx, int dy);
BOOL PtInRect(const RECT* rect, POINT point);
BOOL IsRectEmpty(const RECT* rect);
BOOL EqualRect(const RECT* a, const RECT* b);

// Messages
LRESULT SendMessageA(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
LRESULT SendDlgItemMessageA(HWND dialog, int id, UINT message, WPARAM wParam, LPARAM lParam);
BOOL PostMessageA(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
void PostQuitMessage(int exitCode);
BOOL GetMessageA(LPMSG message, HWND window, UINT first, UINT last);
BOOL PeekMessageA(LPMSG message, HWND window, UINT first, UINT last, UINT remove);
BOOL TranslateMessage(const MSG* message);
LRESULT DispatchMessageA(const MSG* message);
LRESULT DefWindowProcA(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
LRESULT CallWindowProcA(WNDPROC procedure, HWND window, UINT message, WPARAM wParam, LPARAM lParam);
LRESULT SendMessageW(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
LRESULT SendDlgItemMessageW(HWND dialog, int id, UINT message, WPARAM wParam, LPARAM lParam);
BOOL PostMessageW(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
BOOL GetMessageW(LPMSG message, HWND window, UINT first, UINT last);
BOOL PeekMessageW(LPMSG message, HWND window, UINT first, UINT last, UINT remove);
LRESULT DispatchMessageW(const MSG* message);
LRESULT DefWindowProcW(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
LRESULT CallWindowProcW(WNDPROC procedure, HWND window, UINT message, WPARAM wParam, LPARAM lParam);
UINT_PTR SetTimer(HWND window, UINT_PTR id, UINT milliseconds, TIMERPROC callback);
BOOL KillTimer(HWND window, UINT_PTR id);

// Dialogs
HWND CreateDialogIndirectParamA(HINSTANCE instance, LPCDLGTEMPLATE dialogTemplate, HWND owner, DLGPROC procedure,
                                LPARAM param);
INT_PTR DialogBoxIndirectParamA(HINSTANCE instance, LPCDLGTEMPLATE dialogTemplate, HWND owner, DLGPROC procedure,
                                LPARAM param);
HWND CreateDialogIndirectParamW(HINSTANCE instance, LPCDLGTEMPLATE dialogTemplate, HWND owner, DLGPROC procedure,
                                LPARAM param);
INT_PTR DialogBoxIndirectParamW(HINSTANCE instance, LPCDLGTEMPLATE dialogTemplate, HWND owner, DLGPROC procedure,
                                LPARAM param);
BOOL EndDialog(HWND dialog, INT_PTR result);
LRESULT DefDlgProcA(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam);
LRESULT DefDlgProcW(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam);
BOOL IsDialogMessageA(HWND dialog, LPMSG message);
BOOL IsDialogMessageW(HWND dialog, LPMSG message);
HWND GetDlgItem(HWND dialog, int id);
int GetDlgCtrlID(HWND window);
HWND GetNextDlgTabItem(HWND dialog, HWND control, BOOL previous);
HWND GetNextDlgGroupItem(HWND dialog, HWND control, BOOL previous);
BOOL CheckDlgButton(HWND dialog, int id, UINT check);
UINT IsDlgButtonChecked(HWND dialog, int id);
BOOL CheckRadioButton(HWND dialog, int first, int last, int checked);
BOOL SetDlgItemTextA(HWND dialog, int id, LPCSTR text);
UINT GetDlgItemTextA(HWND dialog, int id, LPSTR text, int size);
BOOL SetDlgItemTextW(HWND dialog, int id, LPCWSTR text);
UINT GetDlgItemTextW(HWND dialog, int id, LPWSTR text, int size);
BOOL MapDialogRect(HWND dialog, LPRECT rect);
LONG GetDialogBaseUnits();
int MessageBoxA(HWND owner, LPCSTR text, LPCSTR caption, UINT type);
int MessageBoxW(HWND owner, LPCWSTR text, LPCWSTR caption, UINT type);
BOOL MessageBeep(UINT type);

// Scroll bars and combo boxes
int SetScrollInfo(HWND window, int bar, LPCSCROLLINFO info, BOOL redraw);
BOOL GetScrollInfo(HWND window, int bar, LPSCROLLINFO info);
int SetScrollPos(HWND window, int bar, int position, BOOL redraw);
int GetScrollPos(HWND window, int bar);
BOOL SetScrollRange(HWND window, int bar, int low, int high, BOOL redraw);

// Menus
HMENU CreatePopupMenu();
BOOL DestroyMenu(HMENU menu);
BOOL AppendMenuA(HMENU menu, UINT flags, UINT_PTR id, LPCSTR text);
BOOL AppendMenuW(HMENU menu, UINT flags, UINT_PTR id, LPCWSTR text);
BOOL EnableMenuItem(HMENU menu, UINT id, UINT flags);
int GetMenuItemCount(HMENU menu);
UINT GetMenuItemID(HMENU menu, int position);
UINT GetMenuState(HMENU menu, UINT id, UINT flags);
int GetMenuStringA(HMENU menu, UINT id, LPSTR text, int size, UINT flags);
int GetMenuStringW(HMENU menu, UINT id, LPWSTR text, int size, UINT flags);
BOOL TrackPopupMenu(HMENU menu, UINT flags, int x, int y, int reserved, HWND owner, const RECT* rect);
BOOL IsMenu(HMENU menu);

// Painting
BOOL InvalidateRect(HWND window, const RECT* rect, BOOL erase);
BOOL ValidateRect(HWND window, const RECT* rect);
BOOL UpdateWindow(HWND window);
BOOL RedrawWindow(HWND window, const RECT* rect, HRGN region, UINT flags);
HDC BeginPaint(HWND window, LPPAINTSTRUCT paint);
BOOL EndPaint(HWND window, const PAINTSTRUCT* paint);
HDC GetDC(HWND window);
int ReleaseDC(HWND window, HDC dc);
HDC CreateCompatibleDC(HDC dc);
BOOL DeleteDC(HDC dc);
int SaveDC(HDC dc);
BOOL RestoreDC(HDC dc, int state);
HGDIOBJ SelectObject(HDC dc, HGDIOBJ object);
BOOL DeleteObject(HGDIOBJ object);
HGDIOBJ GetStockObject(int index);
DWORD GetObjectType(HGDIOBJ object);
int GetObjectA(HANDLE object, int size, LPVOID buffer);
int GetObjectW(HANDLE object, int size, LPVOID buffer);
HFONT CreateFontIndirectA(const LOGFONTA* font);
HFONT CreateFontIndirectW(const LOGFONTW* font);
HBRUSH CreateSolidBrush(COLORREF color);
HPEN CreatePen(int style, int width, COLORREF color);
COLORREF SetTextColor(HDC dc, COLORREF color);
COLORREF GetTextColor(HDC dc);
COLORREF SetBkColor(HDC dc, COLORREF color);
COLORREF GetBkColor(HDC dc);
int SetBkMode(HDC dc, int mode);
DWORD GetSysColor(int index);
HBRUSH GetSysColorBrush(int index);
int GetDeviceCaps(HDC dc, int index);
BOOL DPtoLP(HDC dc, LPPOINT points, int count);
BOOL GetTextMetricsA(HDC dc, LPTEXTMETRICA metrics);
BOOL GetTextExtentPoint32A(HDC dc, LPCSTR text, int length, LPSIZE size);
BOOL TextOutA(HDC dc, int x, int y, LPCSTR text, int length);
BOOL ExtTextOutA(HDC dc, int x, int y, UINT options, const RECT* rect, LPCSTR text, UINT length, const INT* widths);
int DrawTextA(HDC dc, LPCSTR text, int length, LPRECT rect, UINT format);
BOOL GetTextMetricsW(HDC dc, LPTEXTMETRICW metrics);
BOOL GetTextExtentPoint32W(HDC dc, LPCWSTR text, int length, LPSIZE size);
BOOL TextOutW(HDC dc, int x, int y, LPCWSTR text, int length);
BOOL ExtTextOutW(HDC dc, int x, int y, UINT options, const RECT* rect, LPCWSTR text, UINT length, const INT* widths);
int DrawTextW(HDC dc, LPCWSTR text, int length, LPRECT rect, UINT format);
int FillRect(HDC dc, const RECT* rect, HBRUSH brush);
int FrameRect(HDC dc, const RECT* rect, HBRUSH brush);
BOOL DrawFocusRect(HDC dc, const RECT* rect);
BOOL Rectangle(HDC dc, int left, int top, int right, int bottom);
BOOL Ellipse(HDC dc, int left, int top, int right, int bottom);
BOOL Polygon(HDC dc, const POINT* points, int count);
BOOL MoveToEx(HDC dc, int x, int y, LPPOINT previous);
BOOL LineTo(HDC dc, int x, int y);

// Libraries and resources
HMODULE LoadLibraryA(LPCSTR path);
BOOL FreeLibrary(HMODULE module);
FARPROC GetProcAddress(HMODULE module, LPCSTR name);
HMODULE GetModuleHandleA(LPCSTR name);
DWORD GetModuleFileNameA(HMODULE module, LPSTR path, DWORD size);
HRSRC FindResourceA(HMODULE module, LPCSTR name, LPCSTR type);
HGLOBAL LoadResource(HMODULE module, HRSRC resource);
LPVOID LockResource(HGLOBAL data);
int LoadStringA(HINSTANCE instance, UINT id, LPSTR text, int size);
int LoadStringW(HINSTANCE instance, UINT id, LPWSTR text, int size);
BOOL EnumResourceLanguagesW(HMODULE module, LPCWSTR type, LPCWSTR name, ENUMRESLANGPROCW callback, LONG_PTR param);

// Clipboard and movable memory
BOOL OpenClipboard(HWND owner);
BOOL CloseClipboard();
BOOL EmptyClipboard();
HANDLE SetClipboardData(UINT format, HANDLE data);
HANDLE GetClipboardData(UINT format);
BOOL IsClipboardFormatAvailable(UINT format);
HGLOBAL GlobalAlloc(UINT flags, SIZE_T size);
LPVOID GlobalLock(HGLOBAL memory);
BOOL GlobalUnlock(HGLOBAL memory);
SIZE_T GlobalSize(HGLOBAL memory);
HGLOBAL GlobalFree(HGLOBAL memory);

// Registry
LSTATUS RegOpenKeyExA(HKEY key, LPCSTR subKey, DWORD options, REGSAM access, PHKEY result);
LSTATUS RegQueryValueExA(HKEY key, LPCSTR name, LPDWORD reserved, LPDWORD type, LPBYTE data, LPDWORD size);
LSTATUS RegCloseKey(HKEY key);
DWORD ExpandEnvironmentStringsA(LPCSTR source, LPSTR target, DWORD size);

// Text, code pages, system
BOOL IsDBCSLeadByte(BYTE c);
BOOL IsDBCSLeadByteEx(UINT codePage, BYTE c);
BOOL IsValidCodePage(UINT codePage);
int MultiByteToWideChar(UINT codePage, DWORD flags, LPCSTR text, int length, LPWSTR target, int size);
int WideCharToMultiByte(UINT codePage, DWORD flags, LPCWSTR text, int length, LPSTR target, int size,
                        LPCSTR defaultChar, LPBOOL usedDefault);
int GetLocaleInfoA(LCID locale, LCTYPE type, LPSTR text, int size);
int GetLocaleInfoW(LCID locale, LCTYPE type, LPWSTR text, int size);
UINT GetACP();
LPSTR lstrcpynA(LPSTR target, LPCSTR source, int size);
DWORD GetLastError();
void SetLastError(DWORD error);

// Storage of each thread. What a thread has stored when it ends is handed to the callback.
typedef void(NTAPI* PFLS_CALLBACK_FUNCTION)(void* data);
constexpr DWORD FLS_OUT_OF_INDEXES = 0xFFFFFFFF;
DWORD FlsAlloc(PFLS_CALLBACK_FUNCTION callback);
BOOL FlsFree(DWORD slot);
void* FlsGetValue(DWORD slot);
BOOL FlsSetValue(DWORD slot, void* data);

int MulDiv(int number, int numerator, int denominator);

// The C run-time's current drive (1 = A), from <direct.h>
int _getdrive();
int _chdrive(int drive);

// NOLINTEND(bugprone-reserved-identifier)
