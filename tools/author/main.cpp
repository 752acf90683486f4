// The program for authors: looks at data the way the game does. docs/authors/README.md tells its use.

#include "tools/author/znCCheck.h"

#include <CLI/CLI.hpp>

#include <cstdio>

namespace
{
namespace fs = std::filesystem;

int check(const fs::path& pData)
{
    znCCheck check(pData);
    const std::set<znSFault>& faults = check.run();
    for (const znSFault& fault : faults)
        std::printf("%s:%d: %s\n", (pData / fault.mFile).generic_string().c_str(), fault.mLine, fault.mText.c_str());
    if (faults.empty())
        std::printf("%s: no faults\n", pData.generic_string().c_str());
    else
        std::printf("%zu faults\n", faults.size());
    return faults.empty() ? 0 : 1;
}
} // namespace

int main(int pCount, char** pArguments)
{
    CLI::App program("Looks at the game's data the way the game does, for those who make it.", "petrelmail-author");
    program.require_subcommand(1);
    std::string data = "data";
    CLI::App* checkCommand = program.add_subcommand("check", "Names everything that is wrong in the data");
    checkCommand->add_option("DATA", data, "The data folder")->capture_default_str()->check(CLI::ExistingDirectory);
    CLI11_PARSE(program, pCount, pArguments);
    return checkCommand->parsed() ? check(data) : 0;
}
