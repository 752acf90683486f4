#include "tests/loader/loaderRun.h"

#include <cstdlib>
#include <fstream>
#include <sstream>
#include <sys/wait.h>

namespace fs = std::filesystem;

namespace
{
std::string shellQuoted(const std::string& pText)
{
    std::string result = "'";
    for (char c : pText)
        result += c == '\'' ? std::string("'\\''") : std::string(1, c);
    return result + "'";
}
} // namespace

TestFolder::TestFolder()
{
    std::string pattern = fs::temp_directory_path() / "petrel-loader-XXXXXX";
    mPath = mkdtemp(pattern.data());
}

TestFolder::~TestFolder()
{
    std::error_code ignored;
    fs::remove_all(mPath, ignored);
}

fs::path TestFolder::fileWrite(const std::string& pName, const std::string& pText) const
{
    fs::create_directories((mPath / pName).parent_path());
    std::ofstream(mPath / pName, std::ios::binary) << pText;
    return mPath / pName;
}

std::string TestFolder::fileRead(const std::string& pName) const
{
    std::ifstream file(mPath / pName, std::ios::binary);
    std::ostringstream text;
    text << file.rdbuf();
    return text.str();
}

int LoaderRun::run(const std::vector<std::string>& pOptions)
{
    fs::create_directories(mFolder / "data");
    std::vector<std::string> options = {"--headless", "--data", mFolder / "data", "--user", mFolder / "user"};
    options.insert(options.end(), pOptions.begin(), pOptions.end());
    return programRun(options);
}

int LoaderRun::programRun(const std::vector<std::string>& pOptions, const std::string& pEnvironment)
{
    std::string command = pEnvironment + " timeout 60 " + shellQuoted(mProgram);
    for (const std::string& option : pOptions)
        command += " " + shellQuoted(option);
    command += " >" + shellQuoted((mFolder / "out.txt").string()) + " 2>" + shellQuoted(mFolder / "err.txt") + " <" +
               shellQuoted(mInput);
    const int status = std::system(command.c_str());
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

std::vector<std::string> LoaderRun::eventsGet() const
{
    std::vector<std::string> events;
    std::istringstream lines(logGet());
    for (std::string line; std::getline(lines, line);)
        if (line.rfind("frame ", 0) != 0)
            events.push_back(line);
    return events;
}
