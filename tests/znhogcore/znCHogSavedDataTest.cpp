#include "tests/support/znCTestPlatform.h"
#include "tests/support/znNTestLog.h"
#include "znappcore/src/znCAppSettings.h"
#include "zncore/debug/znIDebug.h"
#include "znhogcore/src/znCHogGlobalSavedData.h"
#include "znhogcore/src/znCHogUserSavedData.h"

#include <gtest/gtest.h>

namespace
{
class znCHogSavedDataTest : public testing::Test
{
protected:
    znCHogSavedDataTest() { znIDebug::create(); }
    ~znCHogSavedDataTest() override { znIDebug::destroy(); }

    znCTestPlatform mPlatform;
};

TEST_F(znCHogSavedDataTest, aNewGameKeepsWhatIsThePlayersOwn)
{
    znCHogUserSavedData::create();
    znCHogUserSavedData& user = *znCHogUserSavedData::instanceGet();
    EXPECT_EQ(znCUserSavedData::instanceGet(), &user);
    EXPECT_TRUE(user.casualGet());
    EXPECT_FALSE(user.gameInProgressGet());

    user.s32Set("currency", 40);
    user.boolSet("MuteAll", true);
    user.counterIncrement("trashCount");
    user.counterIncrement("neverSeen");
    user.levelStateSet("Quay", "");
    user.strSet("aLevDat:b", "x");
    user.currentLevelSet("map->quay");
    user.mapLevelSet("quay");
    EXPECT_TRUE(user.levelVisitedGet("quay")); // though nothing is stored of it
    EXPECT_TRUE(user.gameInProgressGet());

    user.progressClear();
    EXPECT_FALSE(user.levelVisitedGet("quay"));
    EXPECT_FALSE(user.gameInProgressGet());
    EXPECT_EQ(user.mapLevelGet(), "");
    EXPECT_FALSE(user.keyExistsGet("aLevDat:b"));
    EXPECT_EQ(user.s32Get("currency"), 40);
    EXPECT_TRUE(user.muteAllGet());
    EXPECT_EQ(user.s32Get("trashCount") + user.s32Get("neverSeen"), 2);

    user.profileInitialise();
    EXPECT_EQ(user.s32Get("currency"), 0);
    EXPECT_FALSE(user.keyExistsGet("neverSeen"));
    EXPECT_TRUE(user.keyExistsGet("CurrLev"));
    for (const char* key : {"lostAndFoundCount", "trashCount", "succesiveHintFreeLevel", "miniGameCount", "time"})
        EXPECT_EQ(user.strGet(key), "0") << key;

    user.playTimeAdd(2147483647);
    user.playTimeAdd(5);
    EXPECT_EQ(user.s32Get("time"), 2147483647);
    znCHogUserSavedData::destroy();
}

TEST_F(znCHogSavedDataTest, takesTheHighScoresFromTheSettings)
{
    struct Case
    {
        const char* mSettings;
        const char* mRows;
        std::vector<std::string> mErrors;
    };
    const Case cases[] = {
        {"", "", {}},
        {"highName1 = a, highScore1 = 5,", "", {}},
        {"highName0 = a, highScore0 = 5,\nhighName1 = b, highScore1 = 900,\nhighName3 = d,", "b900 a5 ", {}},
        {"highName0 = a,\nhighName1 = b, highScore1 = 1,",
         "b1 a-1 ",
         {"Expected a highScore0 value in appSettings.txt"}},
    };
    for (const Case& c : cases)
    {
        mPlatform.mFiles.fileSet("appsettings.txt", c.mSettings);
        znCAppSettings::create();
        znCHogGlobalSavedData::create();
        const znCHogGlobalSavedData& global = *znCHogGlobalSavedData::instanceGet();
        std::string rows;
        for (s32 i = 0; i < global.highScoreCountGet(); ++i)
            rows += global.highScoreNameGet(i) + std::to_string(global.highScoreGet(i)) + " ";
        EXPECT_EQ(rows, c.mRows) << c.mSettings;
        for (const s32 outside : {-1, global.highScoreCountGet()})
            EXPECT_EQ(global.highScoreNameGet(outside) + std::to_string(global.highScoreGet(outside)), "0");
        EXPECT_EQ(znNTestLog::errorsTake(mPlatform), c.mErrors);
        znCHogGlobalSavedData::destroy();
        znCAppSettings::destroy();
    }
}
} // namespace
