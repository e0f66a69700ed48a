#include "tests/languages/HeldTexts.h"

#include "core/ResourceScope.h"
#include "tests/languages/Translations.h"
#include "tests/resources/WideResources.h"

#include <cstring>

namespace
{

struct SListMessages
{
    UINT count;
    UINT length;
    UINT text;
};

std::string WindowText(HWND window)
{
    std::vector<WCHAR> text(static_cast<size_t>(::GetWindowTextLengthW(window)) + 1);
    return Utf8(text.data(), ::GetWindowTextW(window, text.data(), static_cast<int>(text.size())));
}

std::string ItemText(HWND list, const SListMessages& messages, WPARAM item)
{
    std::vector<WCHAR> text(static_cast<size_t>(::SendMessageW(list, messages.length, item, 0)) + 1);
    ::SendMessageW(list, messages.text, item, reinterpret_cast<LPARAM>(text.data()));
    return Utf8(text.data(), static_cast<int>(text.size()) - 1);
}

void AddTexts(HWND control, std::vector<SHeldText>& texts)
{
    char className[80] = "";
    ::GetClassNameA(control, className, sizeof className);
    const UINT id = static_cast<UINT>(::GetDlgCtrlID(control)) & 0xFFFF;
    const bool isCombo = std::strcmp(className, "ComboBox") == 0;
    if (!isCombo && std::strcmp(className, "ListBox") != 0)
    {
        texts.push_back({id, className, WindowText(control)});
        return;
    }
    const SListMessages messages = isCombo ? SListMessages{CB_GETCOUNT, CB_GETLBTEXTLEN, CB_GETLBTEXT}
                                           : SListMessages{LB_GETCOUNT, LB_GETTEXTLEN, LB_GETTEXT};
    const LRESULT count = ::SendMessageW(control, messages.count, 0, 0);
    for (LRESULT i = 0; i < count; ++i)
        texts.push_back({id, className, ItemText(control, messages, static_cast<WPARAM>(i))});
}

} // namespace

std::vector<SHeldText> HeldTexts(HWND dialog)
{
    std::vector<SHeldText> texts = {{0, "dialog", WindowText(dialog)}};
    for (HWND child = ::GetWindow(dialog, GW_CHILD); child != nullptr; child = ::GetWindow(child, GW_HWNDNEXT))
        AddTexts(child, texts);
    return texts;
}

std::vector<std::string> TemplateTexts(HINSTANCE library, UINT id)
{
    const CResourceScope scope(library);
    const std::optional<SWideTemplate> dialog = WideTemplate(id);
    if (!dialog)
        return {};
    std::vector<std::string> texts = {Utf8(dialog->caption)};
    for (const SWideControl& control : dialog->controls)
        texts.push_back(Utf8(control.text));
    return texts;
}
