#include "tools/author/znCProgram.h"

#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdlib>

znCProgram::znCProgram(const std::filesystem::path& pProgram, const std::vector<std::string>& pArguments)
{
    std::vector<std::string> words = pArguments;
    words.insert(words.begin(), pProgram.string());
    std::vector<char*> arguments;
    for (std::string& word : words)
        arguments.push_back(word.data());
    arguments.push_back(nullptr);
    if (posix_spawn(&mProcess, pProgram.c_str(), nullptr, nullptr, arguments.data(), environ) != 0)
        mProcess = 0;
}

znCProgram::~znCProgram()
{
    wait();
}

bool znCProgram::running()
{
    if (mProcess != 0 && waitpid(mProcess, &mStatus, WNOHANG) != 0)
        mProcess = 0;
    return mProcess != 0;
}

int znCProgram::wait()
{
    if (mProcess != 0 && waitpid(mProcess, &mStatus, 0) != mProcess)
        mStatus = -1;
    mProcess = 0;
    return mStatus != -1 && WIFEXITED(mStatus) ? WEXITSTATUS(mStatus) : -1;
}

znCPassingFolder::znCPassingFolder()
{
    std::string folder = (std::filesystem::temp_directory_path() / "petrelmail-author-XXXXXX").string();
    if (mkdtemp(folder.data()) != nullptr)
        mPath = folder;
}

znCPassingFolder::~znCPassingFolder()
{
    std::error_code error;
    if (!mPath.empty())
        std::filesystem::remove_all(mPath, error);
}
