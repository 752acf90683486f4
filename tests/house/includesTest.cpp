// The house keeps its order: who may include whom.

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <map>
#include <set>
#include <string>
#include <vector>

namespace fs = std::filesystem;

namespace
{
// Each folder with the folders that it may include from, itself among them; none named: all.
const std::map<std::string, std::set<std::string>> ALLOWED = {
    {"zncore", {"zncore"}},
    {"media", {"zncore", "media"}},
    {"znappcore", {"zncore", "media", "znappcore"}},
    {"znhogcore", {"zncore", "media", "znappcore", "znhogcore"}},
    {"znachievements", {"zncore", "media", "znappcore", "znhogcore", "znachievements"}},
    {"zningameshop", {"zncore", "media", "znappcore", "znhogcore", "zningameshop"}},
    {"src", {"zncore", "media", "znappcore", "znhogcore", "znachievements", "zningameshop", "src"}},
    {"loader", {"loader"}},
    {"tests", {}},
    {"fuzz", {}},
    {"bench", {}},
    {"tools", {}},
};

// What the game's start is measured against is a program of its own.
constexpr char BARE_PROGRAM[] = "bench/bare";

// All that the loader knows of the module.
const std::set<std::string> LOADER_MAY = {"zncore/znTypes.h", "zncore/impl/platform/s3e.h",
                                          "zncore/impl/platform/s3eExtensions.h"};

std::string includeGet(const std::string& pLine)
{
    const size_t hash = pLine.find_first_not_of(" \t");
    if (hash == std::string::npos || pLine.compare(hash, 8, "#include") != 0)
        return "";
    const size_t open = pLine.find_first_of("<\"", hash);
    const size_t close = pLine.find_first_of(">\"", open + 1);
    return open == std::string::npos || close == std::string::npos ? "" : pLine.substr(open + 1, close - open - 1);
}

std::string faultGet(const std::string& pFolder, const std::string& pInclude)
{
    const std::string top = pInclude.substr(0, pInclude.find('/'));
    if (pFolder != "loader" && (top == "SDL2" || top.rfind("SDL", 0) == 0))
        return "only the loader knows SDL";
    const std::set<std::string>& allowed = ALLOWED.at(pFolder);
    if (allowed.empty() || ALLOWED.count(top) == 0 || allowed.count(top) != 0)
        return "";
    if (pFolder == "loader" && LOADER_MAY.count(pInclude) != 0)
        return "";
    return pFolder + " may not include from " + top;
}

std::vector<std::string> faultsGet(const fs::path& pRoot)
{
    std::vector<std::string> faults;
    for (const auto& [folder, allowed] : ALLOWED)
    {
        if (!fs::exists(pRoot / folder))
            continue;
        for (const auto& entry : fs::recursive_directory_iterator(pRoot / folder))
        {
            if (entry.path().extension() != ".h" && entry.path().extension() != ".cpp")
                continue;
            if (entry.path().string().find(BARE_PROGRAM) != std::string::npos)
                continue;
            std::ifstream file(entry.path());
            std::string line;
            for (int number = 1; std::getline(file, line); ++number)
            {
                const std::string fault = faultGet(folder, includeGet(line));
                if (!fault.empty())
                    faults.push_back(entry.path().string() + ":" + std::to_string(number) + ": " + fault);
            }
        }
    }
    return faults;
}
} // namespace

TEST(includesTest, arrowsPointOneWay)
{
    for (const std::string& fault : faultsGet(PETREL_ROOT))
        ADD_FAILURE() << fault;
}

TEST(includesTest, seesAWrongInclude)
{
    struct Case
    {
        const char* mFolder;
        const char* mLine;
        bool mFault;
    };
    const Case cases[] = {
        {"zncore", "#include \"znappcore/znINode.h\"", true},
        {"znappcore", "#include \"zncore/znStr.h\"", false},
        {"znappcore", "  #include <SDL2/SDL.h>", true},
        {"loader", "#include <SDL.h>", false},
        {"loader", "#include \"zncore/impl/platform/s3e.h\"", false},
        {"loader", "#include \"zncore/znStr.h\"", true},
        {"media", "#include <vector>", false},
        {"bench", "#include <SDL2/SDL.h>", true},
        {"bench", "#include \"loader/znCScreen.h\"", false},
    };
    for (const Case& c : cases)
        EXPECT_EQ(!faultGet(c.mFolder, includeGet(c.mLine)).empty(), c.mFault) << c.mLine;
}
