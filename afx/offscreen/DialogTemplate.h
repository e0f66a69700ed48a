#pragma once

#include "afx/offscreen/Internal.h"

#include <optional>

namespace offscreen
{
// A class, title or menu in a dialog template: a text or an ordinal.
struct TemplateName
{
    std::u16string text;
    int ordinal = -1;
    bool IsEmpty() const { return ordinal < 0 && text.empty(); }
};

// What a dialog and its controls have in common. Places and sizes are in dialog units.
struct TemplateWindow
{
    DWORD style = 0;
    DWORD exStyle = 0;
    short x = 0;
    short y = 0;
    short width = 0;
    short height = 0;
    TemplateName className;
    TemplateName title;
};

struct TemplateControl : TemplateWindow
{
    DWORD id = 0;
    const void* data = nullptr; // Creation data, nothing when empty.
};

struct TemplateFont
{
    int pointSize = 0;
    int weight = FW_DONTCARE;
    bool italic = false;
    BYTE charSet = DEFAULT_CHARSET;
    std::u16string face;
};

// A dialog template in either form, DLGTEMPLATE or DLGTEMPLATEEX, taken apart.
struct Template : TemplateWindow
{
    TemplateName menu;
    std::optional<TemplateFont> font;
    std::vector<TemplateControl> controls;
};

Template ReadTemplate(const void* data);

// Creates a dialog; `modal` disables the owner until EndDialog or the end of the modal loop. `unicode` is whether the
// procedure is a Unicode one.
HWND CreateDialogFrom(const Template& tmpl, HINSTANCE instance, HWND owner, DLGPROC procedure, LPARAM param, bool modal,
                      bool unicode = true);
} // namespace offscreen
