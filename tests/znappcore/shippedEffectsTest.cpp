// What ships under data/ reads without a word in the log: animations, particle files, texture pages.

#include "tests/znappcore/znCPresentationTest.h"
#include "znappcore/animatingSprite/znCAnimationDataManager.h"
#include "znappcore/particles/znCParticleDataManager.h"

#include <filesystem>
#include <fstream>
#include <sstream>

namespace
{
class shippedEffectsTest : public znCPresentationTest
{
protected:
    // All files of the data folder, under the names that the game knows them by.
    static std::vector<std::string> namesGet()
    {
        const std::filesystem::path root = std::filesystem::path(PETREL_ROOT) / "data";
        std::vector<std::string> names;
        for (const auto& entry : std::filesystem::recursive_directory_iterator(root))
            if (entry.is_regular_file())
                names.push_back(std::filesystem::relative(entry.path(), root).generic_string());
        std::sort(names.begin(), names.end());
        return names;
    }

    void filesBring(const std::vector<std::string>& pNames)
    {
        for (const std::string& name : pNames)
        {
            std::ifstream file(std::filesystem::path(PETREL_ROOT) / "data" / name, std::ios::binary);
            std::ostringstream content;
            content << file.rdbuf();
            mCore.mPlatform.mFiles.fileSet(name, content.str());
        }
    }

    // Reads the file if it is one of the three kinds.
    static bool read(const std::string& pName)
    {
        const znCResourceName name(pName, znCResourceName::GAME_DATA);
        if (pName.ends_with(".xml") && pName != "strings.xml")
            znCAnimationDataManager::instanceGet()->dataGet(name, false);
        else if (pName.starts_with("particles/") && pName.ends_with(".txt"))
            znCParticleDataManager::instanceGet()->dataGet(name);
        else if (pName.find("/texturepage") != std::string::npos && pName.ends_with(".txt"))
            znCBrushManager::instanceGet()->texturePageLoad(name, true);
        else
            return false;
        return true;
    }
};
} // namespace

TEST_F(shippedEffectsTest, readsWithoutALogLine)
{
    const std::vector<std::string> names = namesGet();
    filesBring(names);
    logTake();
    s32 count = 0;
    for (const std::string& name : names)
        if (read(name))
        {
            ++count;
            EXPECT_EQ(logTake(), "") << name;
        }
    EXPECT_GT(count, 0);
}
