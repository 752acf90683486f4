#include "znhogcore/znIHogLevel.h"

#include "tests/znhogcore/znCHogTest.h"
#include "znappcore/src/znCEntity.h"
#include "znhogcore/src/znCHogUserSavedData.h"

namespace
{
constexpr s32 HINT_MS = 4000;

class znIHogLevelTest : public znCHogTest
{
protected:
    void SetUp() override
    {
        mPlatform.mFiles.fileSet("particles/phint.txt",
                                 "imageFileName = particles/p.png ; maxParticles = 1 ; emitSpeed = 1 ;");
        znCHogTest::SetUp();
    }
    static s32 streakGet() { return znCHogUserSavedData::instanceGet()->s32Get(znCHogUserSavedData::HINT_FREE_STREAK); }
};

TEST_F(znIHogLevelTest, leadsAHintFromItsButtonToTheObject)
{
    mPlatform.mFiles.fileSet("gui/hoggui/hoggui.txt",
                             "znCGameGui { name = GameGui modal = false posX = 10\n"
                             "znCSpriteComponent { name = gameGuiHintButton posX = -300 posY = 250 }\n}\n");
    sceneSet("quay", "Background.png,0,0\nHOT-gull.png,200,-100\nBackgroundCrate.png,0,0\nHOT-nail.png,30,40\n");
    sceneOpen("quay");
    znCHogUserSavedData::instanceGet()->s32Set(znCHogUserSavedData::HINT_FREE_STREAK, 3);
    level().hintShow(find("HOT-gull.png"));
    EXPECT_EQ(streakGet(), -1);
    const znCEntity* hint = find("HintEffect");
    ASSERT_NE(hint, nullptr);
    EXPECT_EQ(hint->parentGet(), find("SubScene0"));
    EXPECT_EQ(hint->posGet(), znPoint(-290, 250));
    frame((HINT_MS - 100) / FRAME_MS);
    ASSERT_EQ(find("HintEffect"), hint);
    EXPECT_NEAR(hint->posGet().mX, 200, 80); // round and round
    EXPECT_NEAR(hint->posGet().mY, -100, 80);
    frame(200 / FRAME_MS);
    EXPECT_EQ(find("HintEffect"), nullptr);

    find("SubScene1")->activeSet(true); // a close-up: the hint flies in it
    level().hintShow(find("HOT-nail.png"));
    EXPECT_EQ(find("HintEffect")->parentGet(), find("SubScene1"));
}

TEST_F(znIHogLevelTest, leadsAHintThroughAnEnlargedScene)
{
    mPlatform.mFiles.fileSet("gui/hoggui/hoggui.txt",
                             "znCGameGui { name = GameGui modal = false\n"
                             "znCSpriteComponent { name = gameGuiHintButton posX = -300 posY = 250 }\n}\n");
    sceneSet("quay", "Background.png,0,0\nHOT-gull.png,200,-100\n");
    sceneOpen("quay");
    find("SubScene0")->posSet(100, 50);
    find("SubScene0")->scaleSet(2.0f, 2.0f);
    level().hintShow(find("HOT-gull.png"));
    EXPECT_EQ(find("HintEffect")->posGet(), znPoint(-200, 100));
}

TEST_F(znIHogLevelTest, givesAHintAlsoWithoutAButtonOrAnOpenSubScene)
{
    sceneSet("quay", "Background.png,0,0\nHOT-gull.png,200,-100\n");
    sceneOpen("quay");
    level().hintShow(find("HOT-gull.png"));
    EXPECT_EQ(find("HintEffect")->posGet(), znPoint(0, 0));
    frame((HINT_MS + 100) / FRAME_MS);
    find("SubScene0")->activeSet(false);
    level().hintShow(find("HOT-gull.png"));
    EXPECT_EQ(find("HintEffect"), nullptr);
    EXPECT_EQ(errorsTake(), std::vector<std::string>{"Expected to find an active subscene."});
}
} // namespace
