// What a dialog template looks like once it is a dialog: its controls as the desktop made them, measured in the font of
// the dialogs.
#pragma once

#include <algorithm>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "afx/DialogRobot.h"
#include "tests/resources/LanguageLibrary.h"
#include "tests/resources/WideResources.h"

struct SPicturedControl
{
    unsigned id;
    std::string className;
    std::string text;
    DWORD style;
    RECT rect;        ///< in pixels of the client area
    int textWidth;    ///< of the text as it is drawn: access keys marked, tabs expanded
    std::string name; ///< for messages: its class, id and text
};

struct SDialogPicture
{
    int language = 0;
    std::string caption;
    DWORD style = 0;
    int width = 0; ///< of the client area, in pixels
    int height = 0;
    int lineHeight = 0; ///< of a line of text
    SIZE window = {};   ///< with caption and frame
    std::vector<SPicturedControl> controls;
    std::vector<std::string> failures;

    const SPicturedControl* Find(unsigned id) const
    {
        for (const SPicturedControl& control : controls)
            if (control.id == id)
                return &control;
        return nullptr;
    }
};

/// Measures texts in a font.
class CTextRuler
{
public:
    explicit CTextRuler(CFont* font) : m_dc(nullptr), m_previous(m_dc.SelectObject(font)) {}
    ~CTextRuler() { m_dc.SelectObject(m_previous); }

    int LineHeight() const { return m_dc.GetTextExtent("X", 1).cy; }
    int Width(const std::string& text) const
    {
        return m_dc.GetTextExtent(text.c_str(), static_cast<int>(text.size())).cx;
    }

    /// As a static draws it: its longest line, with tab stops at every eight average characters.
    int DrawnWidth(const std::string& text, bool isPrefixed) const
    {
        const size_t lineBreak = text.find('\n');
        if (lineBreak != std::string::npos)
            return std::max(DrawnWidth(text.substr(0, lineBreak), isPrefixed),
                            DrawnWidth(text.substr(lineBreak + 1), isPrefixed));
        const std::string alphabet = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz";
        const int stop = 8 * Width(alphabet) / static_cast<int>(alphabet.size());
        int width = 0;
        std::string part;
        for (size_t i = 0; i <= text.size(); ++i)
        {
            if (i == text.size() || text[i] == '\t')
            {
                width += Width(part);
                if (i < text.size())
                    width = (width / stop + 1) * stop;
                part.clear();
            }
            else if (text[i] != '&' || !isPrefixed)
                part += text[i];
        }
        return width;
    }

private:
    CClientDC m_dc;
    CFont* m_previous;
};

inline std::string Plain(const CString& text) { return static_cast<LPCSTR>(text); }

inline bool IsPrefixed(const SRobotControl& control)
{
    const std::string className = Plain(control.className);
    return className == "Button" || (className == "Static" && !(control.style & SS_NOPREFIX));
}

inline std::vector<std::string> Columns(const std::string& text)
{
    std::vector<std::string> columns(1);
    for (char c : text)
    {
        if (c == '\t')
            columns.emplace_back();
        else
            columns.back() += c;
    }
    return columns;
}

/// The widths of strings in the dialogs' font: one, or one for each column.
inline std::map<unsigned, std::vector<int>> ColumnWidths(int language, const std::vector<unsigned>& texts)
{
    CLanguage scope(language);
    const CTextRuler ruler(scope.Wizard().CreateDlgFont(nullptr));
    std::map<unsigned, std::vector<int>> widths;
    for (unsigned id : texts)
        for (const std::string& column : Columns(LoadText(id).value_or("")))
            widths[id].push_back(ruler.Width(column));
    return widths;
}

inline void TakePicture(const CDialogRobot& robot, SDialogPicture& picture)
{
    CWnd* window = robot.Dialog();
    const CTextRuler ruler(window->GetFont());
    CRect client;
    CRect whole;
    window->GetClientRect(&client);
    window->GetWindowRect(&whole);

    picture.caption = Plain(robot.Caption());
    picture.style = window->GetStyle();
    picture.width = client.Width();
    picture.height = client.Height();
    picture.window = whole.Size();
    picture.lineHeight = ruler.LineHeight();
    for (const SRobotControl& control : robot.Controls())
    {
        const std::string text = Plain(control.text);
        const std::string className = Plain(control.className);
        picture.controls.push_back(
            {control.id, className, text, control.style, control.rect, ruler.DrawnWidth(text, IsPrefixed(control)),
             className + " " + std::to_string(control.id) + " \"" + Utf8(FromPage(text, AfxGetTextPage())) + "\""});
    }
}

/// Opens a template as a dialog in the dialogs' font, looks at it and closes it.
inline SDialogPicture TakePictureOf(int language, unsigned templateId)
{
    CLanguage scope(language);
    SDialogPicture picture;
    picture.language = language;
    if (!scope.IsLoaded())
        picture.failures.push_back("there is no language library");
    CDialog dialog(templateId);
    CDialogRobot robot;
    const int result = robot.Play([&] { return static_cast<int>(dialog.DoModal()); }, {[&](CDialogRobot& scene) {
                                      scope.Wizard().CreateDlgFont(scene.Dialog());
                                      scope.Wizard().SetDlgFont(scene.Dialog(), 0, nullptr);
                                      TakePicture(scene, picture);
                                      scene.Click(IDCANCEL);
                                  }});
    if (result != IDCANCEL)
        picture.failures.push_back("DoModal returned " + std::to_string(result));
    for (const CString& failure : robot.Failures())
        picture.failures.push_back(Plain(failure));
    return picture;
}

/// The picture of a template in a language, taken once.
inline const SDialogPicture& PictureOf(int language, unsigned templateId)
{
    static std::map<std::pair<int, unsigned>, SDialogPicture> taken;
    const auto [picture, isNew] = taken.try_emplace({language, templateId});
    if (isNew)
        picture->second = TakePictureOf(language, templateId);
    return picture->second;
}
