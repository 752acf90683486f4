#include "tests/play/gameRun.h"

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <sstream>
#include <sys/wait.h>
#include <unistd.h>

namespace fs = std::filesystem;

namespace
{
std::string fileRead(const fs::path& pPath)
{
    std::ifstream file(pPath, std::ios::binary);
    std::ostringstream text;
    text << file.rdbuf();
    return text.str();
}

std::string quoted(const std::string& pText)
{
    std::string result = "'";
    for (char c : pText)
        result += c == '\'' ? std::string("'\\''") : std::string(1, c);
    return result + "'";
}

// The leak search at a program's end stops every thread, and now and then fails by itself where it meets one that is
// just going. The game is through by then; had it failed, it would have said so in a line of its own.
bool isOnlyTheLeakSearchBroken(const std::string& pError)
{
    const auto isThere = [&pError](const char* pText)
    {
        return pError.find(pText) != std::string::npos;
    };
    return isThere("LeakSanitizer has encountered a fatal error") && !isThere("petrelmail: ") &&
           !isThere("ERROR: AddressSanitizer") && !isThere("runtime error");
}
} // namespace

GameRun::GameRun(const std::string& pName)
    : mFolder(fs::temp_directory_path() / ("petrel-" + pName + "-" + std::to_string(getpid()))),
      mData(PETREL_ROOT "/data")
{
    fs::remove_all(mFolder);
    fs::create_directories(mFolder / "user");
    fs::create_directories(mFolder / "shots");
}

GameRun::~GameRun()
{
    std::error_code ignored;
    fs::remove_all(mFolder, ignored);
}

std::string GameRun::scriptWrite(const std::string& pText)
{
    const fs::path path = mFolder / "input.script";
    std::ofstream(path) << pText;
    return path.string();
}

int GameRun::headlessRun(const std::vector<std::string>& pOptions)
{
    std::vector<std::string> options = {"--headless", "--data",         mData, "--user", mFolder / "user",
                                        "--shots",    mFolder / "shots"};
    const auto isGiven = [&pOptions](const char* pOption)
    {
        return std::find(pOptions.begin(), pOptions.end(), pOption) != pOptions.end();
    };
    // A recording brings its own clock.
    if (!isGiven("--replay"))
        options.insert(options.end(), {"--seed", "1000"});
    if (!isGiven("--replay") && !isGiven("--step"))
        options.insert(options.end(), {"--step", "16"});
    options.insert(options.end(), pOptions.begin(), pOptions.end());
    return run(options);
}

fs::path GameRun::dataCopy()
{
    mData = mFolder / "data";
    fs::create_directories(mData);
    for (const char* part : {"common", "cursors", "fonts", "gui", "appsettings.txt", "strings.xml"})
        if (fs::exists(fs::path(PETREL_ROOT "/data") / part))
            fs::copy(fs::path(PETREL_ROOT "/data") / part, mData / part, fs::copy_options::recursive);
    return mData;
}

int GameRun::run(const std::vector<std::string>& pOptions)
{
    const char* program = std::getenv("PETREL_PROGRAM");
    std::string command = quoted(program != nullptr ? program : PETREL_BIN "/petrelmail");
    for (const std::string& option : pOptions)
        command += " " + quoted(option);
    command += " >" + quoted(mFolder / "out.txt") + " 2>" + quoted(mFolder / "err.txt") + " </dev/null";
    const int status = std::system(command.c_str());
    const int code = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    return isOnlyTheLeakSearchBroken(errorGet()) ? 0 : code;
}

std::string GameRun::outputGet() const
{
    return fileRead(mFolder / "out.txt");
}

std::string GameRun::errorGet() const
{
    return fileRead(mFolder / "err.txt");
}

std::string GameRun::logGet() const
{
    return userFileGet("log.txt");
}

std::string GameRun::userFileGet(const std::string& pName) const
{
    return fileRead(mFolder / "user" / pName);
}

std::string GameRun::shotGet(const std::string& pName) const
{
    return fileRead(mFolder / "shots" / (pName + ".png"));
}

std::vector<std::string> logFaultsGet(const std::string& pLog)
{
    std::vector<std::string> faults;
    std::istringstream lines(pLog);
    for (std::string line; std::getline(lines, line);)
        if (line.rfind("ERROR(", 0) == 0)
            faults.push_back(line);
    return faults;
}
