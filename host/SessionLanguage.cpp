#include "host/SessionLanguage.h"

#include "host/SessionPlayer.h"

#include <sstream>

namespace
{
void Translate(const CSessionPlayer& player, const SStep& played, SStep& step)
{
    const auto caption = player.Captions().find(&played);
    if (caption != player.Captions().end())
        step.shot = caption->second;
    if (step.verb != EVerb::SelectText)
        return;
    step.verb = EVerb::SelectIndex;
    step.number = player.SelectedItems().at(&played);
}
} // namespace

SSession InLanguage(const SSession& session, int language)
{
    std::ostringstream report;
    CSessionPlayer player(report, "");
    if (!player.Play(session))
        throw CSessionError("the session fails in its own language:\n" + report.str());

    SSession translated = session;
    translated.language = language;
    for (size_t run = 0; run < session.runs.size(); ++run)
        for (size_t dialog = 0; dialog < session.runs[run].dialogs.size(); ++dialog)
        {
            const CDialogSteps& steps = session.runs[run].dialogs[dialog];
            for (size_t i = 0; i < steps.size(); ++i)
                Translate(player, steps[i], translated.runs[run].dialogs[dialog][i]);
        }
    return translated;
}
