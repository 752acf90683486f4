#include "znappcore/animatingSprite/znCAnimatingSprite.h"

#include "tests/support/allocationCount.h"
#include "tests/znappcore/znCPresentationTest.h"
#include "znappcore/animatingSprite/znCAnimationDataManager.h"
#include "znappcore/components/znCAnimatingSpriteComponent.h"
#include "znappcore/src/znCEntity.h"
#include "znappcore/znIAudioManager.h"
#include "zncore/src/znCVariableTable.h"

#include <numeric>

namespace
{
const znCResourceName FILE_NAME("anim/test.xml", 0);

// Four frames side by side in a sheet; the third is blank.
const std::string FRAMES = "<framelist>"
                           "<frame x='0' y='0' w='4' h='4'/><frame x='4' y='0' w='4' h='4' alpha='0.5'/>"
                           "<frame w='0' h='4'/><frame x='12' y='0' w='4' h='4'/>"
                           "</framelist>";

class znCAnimatingSpriteTest : public znCPresentationTest
{
protected:
    znCAnimatingSpriteTest() { imageSet("anim/sheet.png", 16, 4, "#"); }

    void fileSet(const std::string& pText)
    {
        std::string text = pText;
        std::replace(text.begin(), text.end(), '\'', '"');
        // Quotes within an attribute.
        std::replace(text.begin(), text.end(), '`', '\'');
        mCore.mPlatform.mFiles.fileSet("anim/test.xml", text);
    }

    // The data of a file with the four frames and these key frames in "main", each shown for 100 ms.
    znCAnimationDataPtr dataMake(const std::string& pKeyFrames, const std::string& pMore = "")
    {
        fileSet("<sequence name='sheet'>" + FRAMES + "<timeline name='main' frametime='100'>" + pKeyFrames +
                "</timeline>" + pMore + "</sequence>");
        znCAnimationDataManager::instanceGet()->levelDataClear();
        return znCAnimationDataManager::instanceGet()->dataGet(FILE_NAME, false);
    }

    // Which frame is drawn: its number by the place in the sheet, 0 for nothing.
    s32 frameShown(znCAnimatingSprite& pSprite)
    {
        znIRenderer::instanceGet()->frameClear();
        znIRenderer::instanceGet()->frameBegin();
        pSprite.render();
        znIRenderer::instanceGet()->frameEnd();
        const auto& runs = mCore.mPlatform.mDraw.mPresented;
        return runs.empty() ? 0 : static_cast<s32>(runs[0].mUvs[0] * 4.0f) + 1;
    }

    // What is shown after each of so many updates, and an 's' once it has stopped.
    std::string played(const std::string& pKeyFrames, s32 pSteps, s32 pStepMs = 100, const std::string& pMore = "")
    {
        znCAnimatingSprite sprite;
        sprite.dataSet(dataMake(pKeyFrames, pMore));
        std::string frames = std::to_string(frameShown(sprite));
        for (s32 i = 0; i < pSteps; ++i)
        {
            sprite.update(pStepMs);
            frames += sprite.isRunning() ? std::to_string(frameShown(sprite)) : "s";
        }
        return frames;
    }
};

s32 linesGet(const std::string& pLog)
{
    return static_cast<s32>(std::count(pLog.begin(), pLog.end(), '\r'));
}
} // namespace

TEST_F(znCAnimatingSpriteTest, playsKeyFrames)
{
    const std::string other = "<timeline name='other'><key frame='4' time='200'/><key frame='1'/></timeline>";
    struct Case
    {
        const char* mKeyFrames;
        s32 mStepMs;
        const char* mShown; // before the first update, then after each; s: stopped
    };
    const Case cases[] = {
        {"<key frame='1'/><key frame='2'/><key frame='4'/>", 100, "124ss"}, // the last one stays, stopped
        {"<key frame='1'/><key frame='2'/>", 99, "112s"},
        {"<key frame='1'/><key frame='2'/>", 150, "12s"}, // what is over counts for the next
        {"<key frame='1' time='250'/><key frame='2'/>", 100, "1112s"},
        {"<key frame='1' x='9' time='250'/><key frame='2'/>", 100, "12s"}, // a time stands second or nowhere
        {"<key frame='2'/><key time='200'/><key frame='1'/>", 100, "2221s"},
        {"<key frame='1'/><key frame='3'/><key frame='1'/>", 100, "101s"},    // a blank one blinks
        {"<key frame='1'/><key frame='2'/><key jumpto='0'/>", 100, "121212"}, // the target counts at once
        {"<key frame='1'/><key frame='2'/><key jumpto='-7'/>", 100, "1212"},
        {"<key frame='1'/><key frame='2' time='0'/><key frame='4' time='0'/><key frame='1'/>", 100, "1241s"},
        {"<key frame='1' time='0'/><key frame='2' time='0'/><key frame='4' time='0'/>", 1000, "124s"}, // one an update
        {"<key frame='1'/><key frame='2'/>", 1001, "1111111"}, // a stall is a step of 16
        {"<key frame='1'/><key frame='2'/>", -50, "111"},
        {"<key frame='1'/><key switchtotimeline='other'/>", 100, "1441s"},
        {"<key frame='1'/><key lua='GotoFrame(3)'/><key frame='2'/><key frame='4'/>", 100, "14s"},
        {"<key frame='1'/><key lua='GotoFrame(RandRange(2,2))'/><key frame='2'/>", 100, "12s"},
        {"<key frame='1'/><key lua='Rumble()'/><key frame='2'/>", 100, "12s"}, // other script is no key frame
        {"<key jumpto='1'/><key frame='2'/>", 100, "2s"},
        {"", 100, "1s"},
    };
    for (const Case& c : cases)
        EXPECT_EQ(played(c.mKeyFrames, static_cast<s32>(std::string(c.mShown).size()) - 1, c.mStepMs, other), c.mShown)
            << c.mKeyFrames;
    EXPECT_EQ(logTake(), "");
}

TEST_F(znCAnimatingSpriteTest, goesToAnyKeyFrameOfARange)
{
    const std::string keys = "<key frame='1'/><key lua='GotoFrame(RandRange(2,4))'/><key frame='1'/><key frame='2'/>"
                             "<key frame='4'/>";
    znCAnimatingSprite sprite;
    sprite.dataSet(dataMake(keys));
    std::set<s32> seen;
    for (s32 i = 0; i < 200; ++i)
    {
        sprite.reset();
        sprite.update(100);
        seen.insert(frameShown(sprite));
    }
    EXPECT_EQ(seen, (std::set<s32>{1, 2, 4}));
}

TEST_F(znCAnimatingSpriteTest, putsTheRegistrationPointWhereTheTransformSays)
{
    struct Case
    {
        const char* mFrame;
        std::vector<float> mCorners;
    };
    const Case cases[] = {
        {"<frame w='4' h='2'/>", {0, 0, 0, 2, 4, 2, 4, 0}},
        {"<frame w='4' h='2' regx='2' regy='1'/>", {-2, -1, -2, 1, 2, 1, 2, -1}},
        {"<frame w='4' h='2' regx='4' regy='2' xform='1 0 0 1 10 20'/>", {6, 18, 6, 20, 10, 20, 10, 18}},
        {"<frame w='4' h='2' xform='2 0 0 3 0 0'/>", {0, 0, 0, 6, 8, 6, 8, 0}},
        {"<frame w='4' h='2' xform='0 1 -1 0 5 5'/>",
         {5, 5, 3, 5, 3, 9, 5, 9}}, // x' = a x + c y + e, y' = b x + d y + f
    };
    for (const Case& c : cases)
    {
        fileSet(std::string("<sequence name='sheet'><framelist>") + c.mFrame +
                "</framelist><timeline name='main'><key frame='1'/></timeline></sequence>");
        znCAnimationDataManager::instanceGet()->levelDataClear();
        znCAnimatingSprite sprite(FILE_NAME, false);
        sprite.matrixApply(znAffineMtx2d());
        ASSERT_NE(frameShown(sprite), 0);
        const std::vector<float>& corners = mCore.mPlatform.mDraw.mPresented[0].mPositions;
        for (std::size_t i = 0; i < 8; ++i)
            EXPECT_FLOAT_EQ(corners[i], c.mCorners[i]) << c.mFrame << " " << i;
    }
}

TEST_F(znCAnimatingSpriteTest, takesPicturesFromPagesAndSheets)
{
    imageSet("single.png", 6, 2, "#.");
    fileSet("<sequence name='sheet'><framelist><f texPgFn='Single.png' w='6' h='2' alpha='0.5'/><f x='8' w='4' h='4'/>"
            "</framelist><timeline name='main'><key frame='1'/></timeline></sequence>");
    const znCAnimationDataPtr data = znCAnimationDataManager::instanceGet()->permanentDataGet(FILE_NAME, true);
    ASSERT_EQ(data->framesGet().size(), 2u);
    EXPECT_EQ(data->framesGet()[0].mBrush, brushGet("single.png"));
    EXPECT_TRUE(data->framesGet()[0].mBrush->hasHitMap());
    EXPECT_EQ(data->framesGet()[0].mAlpha, 0.5f);
    EXPECT_EQ(data->framesGet()[1].mBrush->xGet(), 8);
    EXPECT_TRUE(data->framesGet()[1].mBrush->hasHitMap());
    EXPECT_FALSE(data->loopsGet());

    // Cursors outlive a level, and sprites their data.
    znCAnimatingSprite sprite(FILE_NAME, false);
    znCAnimationDataManager::instanceGet()->levelDataClear();
    EXPECT_EQ(znCAnimationDataManager::instanceGet()->permanentDataGet(FILE_NAME, true), data);
    sprite.update(100);
    EXPECT_EQ(frameShown(sprite), 1);
}

TEST_F(znCAnimatingSpriteTest, playsSoundsByBothKindsOfQuotes)
{
    znIAudioManager::create();
    mCore.mPlatform.mFiles.fileSet("audio/sfx/lamp.wav", "RIFF");
    const s32 before = mCore.mPlatform.mFiles.operationCountGet(znCTestFiles::Operation::open);
    znCAnimatingSprite sprite;
    sprite.dataSet(dataMake("<key frame='1'/><key lua='PlaySound(`audio/sfx/lamp.wav`);'/>"
                            "<key lua='PlaySound(&pos;audio/sfx/lamp.wav&pos;);'/><key frame='2'/>"));
    EXPECT_EQ(logTake(), "");
    sprite.update(100);
    EXPECT_GT(mCore.mPlatform.mFiles.operationCountGet(znCTestFiles::Operation::open), before + 1);
    sprite.update(0);
    sprite.update(0);
    EXPECT_EQ(frameShown(sprite), 2);
    znIAudioManager::destroy();
}

TEST_F(znCAnimatingSpriteTest, leavesOutWhatIsFaultyWithALineEach)
{
    const std::string good = "<key frame='1'/><key frame='2'/>";
    const struct
    {
        const char* mFile;
        const char* mNamed; // in the one line of the log
        const char* mShown;
    } cases[] = {
        {"<sequence name='sheet'>", "test.xml line 1: no timeline", "0s"},
        {"<other/>", "test.xml line 1: no timeline", "0s"},
        {"rubbish", "test.xml", "0s"},
        {"<sequence name='sheet'><framelist><f w='4' h='4'/></framelist><timeline name='main' frametime='100'>"
         "<key frame='2'/><key frame='1'/></timeline></sequence>",
         "key frame 0", "11s"},
        {"<sequence name='sheet'><framelist><f w='4' h='4'/></framelist><timeline name='main' frametime='100'>"
         "<key frame='1'/><key jumpto='2'/></timeline></sequence>",
         "key frame 1", "11s"},
        {"<sequence name='sheet'><framelist><f w='4' h='4'/></framelist><timeline name='main' frametime='100'>"
         "<key frame='1'/><key lua='GotoFrame(RandRange(0,99))'/></timeline></sequence>",
         "key frame 1", "11s"},
        {"<sequence name='sheet'><framelist><f w='4' h='4'/></framelist><timeline name='main' frametime='100'>"
         "<key frame='1'/><key switchtotimeline='none'/></timeline></sequence>",
         "key frame 1", "11s"},
        {"<sequence name='sheet'><framelist><f w='4' h='4'/></framelist><timeline name='main' frametime='100'>"
         "<key frame='1'/>\n<key wobble='1'/><key frame='1'/></timeline></sequence>",
         "line 2: a key frame can't start with \"wobble\"", "111s"},
        {"<sequence name='sheet'><framelist><f x='13' w='4' h='4'/></framelist><timeline name='main' frametime='100'>"
         "<key frame='1'/></timeline></sequence>",
         "frame 1", "0s"},
        {"<sequence name='sheet'><framelist><f x='-2147483648' w='2147483646' h='2' regx='-2147483648'/></framelist>"
         "<timeline name='main' frametime='100'><key frame='1'/></timeline></sequence>",
         "frame 1", "0s"},
        {"<sequence name='nosheet'><framelist><f w='4' h='4'/></framelist><timeline name='main' frametime='100'>"
         "<key frame='1'/></timeline></sequence>",
         "frame 1", "0s"},
        {"<sequence name='sheet'><framelist><f w='4' h='4' xform='1 2 3'/></framelist><timeline name='main' "
         "frametime='100'><key frame='1'/></timeline></sequence>",
         "xform", "1s"},
        {"<sequence name='sheet'><framelist><f w='4' h='4'/></framelist><timeline name='main' frametime='100'>"
         "<key frame='1'/><key lua='PlaySound(`)'/></timeline></sequence>",
         "PlaySound", "11s"},
        {"<sequence name='sheet'><framelist>\n<f w='-4' h='4'/></framelist>\n<timeline name='main' frametime='100'>"
         "<key frame='1'/></timeline></sequence>",
         "line 2: frame 1", "0s"},
        {"<sequence name='sheet'><framelist><f w='4' h='four'/></framelist><timeline name='main' frametime='100'>"
         "<key frame='1'/></timeline></sequence>",
         "h needs a number", "0s"},
        {"<sequence name='sheet'><framelist><f w='4' h='4' alpha='opaque'/></framelist><timeline name='main' "
         "frametime='100'><key frame='1'/></timeline></sequence>",
         "alpha needs a number", "1s"},
        {"<sequence name='sheet'><framelist><f w='4' h='4' xform='1 0 0 1 x y'/></framelist><timeline name='main' "
         "frametime='100'><key frame='1'/></timeline></sequence>",
         "xform", "1s"},
        {"<!--\n\n--><sequence name='sheet'><framelist><f w='4' h='4'/></framelist><timeline name='main' "
         "frametime='100'>\n<key frame='1'/>\n<key lua='GotoFrame(start)'/></timeline></sequence>",
         "test.xml line 5: GotoFrame needs a number", "11s"},
        {"<sequence name='sheet'><framelist><f w='4' h='4'/></framelist><timeline name='main' frametime='100'>"
         "<key frame='1'/><key lua='GotoFrame(RandRange(0))'/></timeline></sequence>",
         "GotoFrame needs a number", "11s"},
    };
    for (const auto& c : cases)
    {
        fileSet(c.mFile);
        znCAnimationDataManager::instanceGet()->levelDataClear();
        logTake();
        znCAnimatingSprite sprite(FILE_NAME, false);
        const std::string log = logTake();
        EXPECT_GE(linesGet(log), 1) << c.mFile;
        EXPECT_LE(linesGet(log), 2) << c.mFile << log; // the XML reader's own fault takes two
        EXPECT_NE(log.find(c.mNamed), std::string::npos) << c.mFile << "\n" << log;
        std::string shown = std::to_string(frameShown(sprite));
        while (sprite.isRunning() && shown.size() < 10)
        {
            sprite.update(100);
            shown += sprite.isRunning() ? std::to_string(frameShown(sprite)) : "s";
        }
        EXPECT_EQ(shown, c.mShown) << c.mFile;
    }
}

TEST_F(znCAnimatingSpriteTest, stopsWhenKeyFramesJumpInACircle)
{
    for (const char* keys : {"<key jumpto='0'/>", "<key jumpto='1'/><key jumpto='0'/>",
                             "<key switchtotimeline='main'/>", "<key frame='1'/><key lua='GotoFrame(1)'/>"})
    {
        znCAnimatingSprite sprite;
        sprite.dataSet(dataMake(keys));
        for (s32 i = 0; i < 5; ++i)
            sprite.update(100);
        EXPECT_FALSE(sprite.isRunning()) << keys;
        const std::string log = logTake();
        EXPECT_NE(log.find("Animation anim/test.xml jumps in a circle."), std::string::npos) << keys;
        EXPECT_EQ(linesGet(log), 2) << log;
    }
}

TEST_F(znCAnimatingSpriteTest, limitsTheFramesOfAFile)
{
    std::string frames;
    for (s32 i = 0; i < 5000; ++i)
        frames += "<f/>";
    fileSet("<sequence><framelist>" + frames +
            "</framelist><timeline name='main'><key frame='1'/></timeline></sequence>");
    const znCAnimationDataPtr data = znCAnimationDataManager::instanceGet()->dataGet(FILE_NAME, false);
    EXPECT_EQ(data->framesGet().size(), 4096u);
    EXPECT_NE(logTake().find("more than 4096 frames"), std::string::npos);
}

TEST_F(znCAnimatingSpriteTest, followsItsEntity)
{
    dataMake("<key frame='2'/><key frame='1'/>");
    znINode root("root");
    auto* entity = new znCEntity("entity");
    auto* component = entity->componentAdd<znCAnimatingSpriteComponent>();
    root.childAdd(entity);
    entity->posSet(100, 50);
    root.treeUpdate(0); // not initialised yet
    root.treeUpdate(0);
    const std::string log = logTake();
    EXPECT_NE(log.find("Not initialised."), std::string::npos);
    EXPECT_EQ(linesGet(log), 2) << log; // no line a frame

    znCVariableTable table;
    table.strSet("xml", "Anim/Test.xml");
    entity->initialiseFromVariableTable(table);
    EXPECT_EQ(frameShown(*component->spriteGet()), 2); // right at once, without an update
    EXPECT_EQ(mCore.mPlatform.mDraw.mPresented[0].mPositions, (std::vector<float>{100, 50, 100, 54, 104, 54, 104, 50}));
    EXPECT_EQ(mCore.mPlatform.mDraw.mPresented[0].mColours[0], 0x7FFFFFFFu);

    component->stop();
    root.treeUpdate(500);
    EXPECT_EQ(frameShown(*component->spriteGet()), 2);
    component->reset();
    root.treeUpdate(100);
    EXPECT_EQ(frameShown(*component->spriteGet()), 1);

    component->xmlLoad(znCResourceName("missing.xml", 0), false);
    root.treeUpdate(100);
    EXPECT_EQ(frameShown(*component->spriteGet()), 0);
    EXPECT_FALSE(component->spriteGet()->isRunning());
    EXPECT_EQ(logTake(), "");
}

TEST_F(znCAnimatingSpriteTest, playsWithoutTheHeap)
{
    mCore.mPlatform.mDraw.mRecording = false;
    znCAnimatingSprite sprite;
    sprite.dataSet(dataMake("<key frame='1'/><key frame='2'/><key lua='GotoFrame(RandRange(0,1))'/>"));
    const std::size_t before = allocationCountGet();
    for (s32 i = 0; i < 50; ++i)
    {
        sprite.update(100);
        sprite.matrixApply(znAffineMtx2d());
    }
    EXPECT_EQ(allocationCountGet(), before);
}
