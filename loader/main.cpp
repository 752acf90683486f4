#include "loader/znCCommandLine.h"
#include "loader/znCLoader.h"
#include "loader/znNReport.h"

#include <cstdio>

int main(int pCount, char** pArguments)
{
    znCCommandLine commandLine;
    switch (commandLine.parse(pCount, pArguments))
    {
    case znCCommandLine::Outcome::DONE:
        std::printf("%s\n", commandLine.mText.c_str());
        return 0;
    case znCCommandLine::Outcome::WRONG:
        znNReport::lineWrite("%s (--help tells the options)", commandLine.mText.c_str());
        return znCLoader::EXIT_CANNOT_START;
    default:
        break;
    }
    std::error_code error;
    const std::filesystem::path program = std::filesystem::read_symlink("/proc/self/exe", error);
    return znCLoader(commandLine.mOptions, program.parent_path()).run();
}
