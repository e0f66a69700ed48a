// The ladder tool: a small customer of the wizard library.
//
//     LadderHost                                   opens the main window
//     LadderHost --play session.json [--shots DIR] plays a recorded session and prints what came of it

#include "afx/Console.h"
#include "host/HostDlg.h"
#include "host/HostName.h"
#include "host/SessionPlayer.h"

#include <CLI/CLI.hpp>

#include <cstdlib>
#include <filesystem>
#include <iostream>

namespace
{
int PlaySession(const std::string& path, const std::string& shots)
{
    try
    {
        const SSession session = LoadSession(path);
        if (!shots.empty())
            std::filesystem::create_directories(shots);
        return CSessionPlayer(std::cout, shots).Play(session) ? EXIT_SUCCESS : EXIT_FAILURE;
    }
    catch (const std::exception& error)
    {
        std::cerr << kHostName << ": " << error.what() << '\n';
        return 2;
    }
}
} // namespace

int main(int argc, char** argv)
{
    CLI::App app("Enters PLC instructions with the wizard library.", kHostName);
    std::string session;
    std::string shots;
    CLI::Option* play = app.add_option("--play", session, "Play a recorded session and print the result lists");
    app.add_option("--shots", shots, "Save a picture of every dialog to this folder")->needs(play);
    CLI11_PARSE(app, argc, argv);

    AfxSetBinaryOutput(); // reports have the same line ends everywhere
    PexloDll_SetAppName(kHostName);
    AfxSetResourceHandle(AfxGetProgramHandle());
    if (*play)
        return PlaySession(session, shots);

    // Without windows to show there is no main window either.
    if (CHostDlg().DoModal() != -1)
        return EXIT_SUCCESS;
    std::cout << app.help();
    return EXIT_FAILURE;
}
