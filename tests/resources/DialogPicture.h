// What a dialog template looks like once it is a dialog: its controls as the desktop made them, measured in the font of
// the dialogs.
#pragma once

#include <algorithm>
#include <map>
#include <string>
#include <vector>

#include "afx/DialogRobot.h"
#include "tests/resources/LanguageLibrary.h"

struct SPicturedControl
{
    unsigned id;
    std::string className;
    std::string text;
    DWORD style;
    RECT rect;     ///< in pixels of the client area
    int textWidth; ///< of the text as it is drawn: access keys marked, tabs expanded
};

struct SDialogPicture
{
    int language = 0;
    std::string caption;
    DWORD style = 0;
    int width = 0; ///< of the client area, in pixels
    int height = 0;
    int lineHeight = 0; ///< of a line of text
    std::vector<SPicturedControl> controls;
    std::map<unsigned, std::vector<int>> columnWidths; ///< of the strings asked for: one width, or one for each column
    std::vector<std::string> failures;

    const SPicturedControl* Find(unsigned id) const
    {
        for (const SPicturedControl& control : controls)
            if (control.id == id)
                return &control;
        return nullptr;
    }
};

/// Measures texts in the dialogs' font.
class CTextRuler
{
public:
    explicit CTextRuler(CWnd* window) : m_dc(window), m_previous(m_dc.SelectObject(window->GetFont())) {}
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

inline void TakePicture(const CDialogRobot& robot, const std::vector<unsigned>& texts, SDialogPicture& picture)
{
    CWnd* window = robot.Dialog();
    const CTextRuler ruler(window);
    CRect client;
    window->GetClientRect(&client);

    picture.caption = Plain(robot.Caption());
    picture.style = window->GetStyle();
    picture.width = client.Width();
    picture.height = client.Height();
    picture.lineHeight = ruler.LineHeight();
    for (const SRobotControl& control : robot.Controls())
    {
        const std::string text = Plain(control.text);
        picture.controls.push_back({control.id, Plain(control.className), text, control.style, control.rect,
                                    ruler.DrawnWidth(text, IsPrefixed(control))});
    }
    for (unsigned id : texts)
        for (const std::string& column : Columns(LoadText(id).value_or("")))
            picture.columnWidths[id].push_back(ruler.Width(column));
}

/// Opens the template of the resources in use as a dialog in the dialogs' font, looks at it, measures strings of the
/// resources in use, and closes it.
inline SDialogPicture PictureOf(unsigned templateId, const std::vector<unsigned>& texts = {})
{
    SDialogPicture picture;
    CFunWizard wizard;
    CDialog dialog(templateId);
    CDialogRobot robot;
    const int result = robot.Play([&] { return static_cast<int>(dialog.DoModal()); }, {[&](CDialogRobot& scene) {
                                      wizard.CreateDlgFont(scene.Dialog());
                                      wizard.SetDlgFont(scene.Dialog(), 0, nullptr);
                                      TakePicture(scene, texts, picture);
                                      scene.Click(IDCANCEL);
                                  }});
    if (result != IDCANCEL)
        picture.failures.push_back("DoModal returned " + std::to_string(result));
    for (const CString& failure : robot.Failures())
        picture.failures.push_back(Plain(failure));
    return picture;
}
