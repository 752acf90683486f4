#include "znappcore/src/znCBrushManager.h"

#include "tests/znappcore/znCPresentationTest.h"

namespace
{
class znCBrushManagerTest : public znCPresentationTest
{
protected:
    // Loads a page list as "page.txt", and gives what it logged.
    std::string pageLoad(const std::string& pText)
    {
        mCore.mPlatform.mFiles.fileSet("page.txt", pText);
        logTake();
        znCBrushManager::instanceGet()->texturePageLoad(znCResourceName("page.txt", 0), true);
        return logTake();
    }
};

std::string rectangleText(const znCBrush& pBrush)
{
    return std::to_string(pBrush.xGet()) + "," + std::to_string(pBrush.yGet()) + "," +
           std::to_string(pBrush.widthGet()) + "," + std::to_string(pBrush.heightGet());
}

s32 linesGet(const std::string& pLog)
{
    return static_cast<s32>(std::count(pLog.begin(), pLog.end(), '\r'));
}
} // namespace

TEST_F(znCBrushManagerTest, sharesABrushUntilItIsCleared)
{
    imageSet("lamp.png", 4, 4, "#");
    const znCBrushPtr brush = brushGet("Lamp.PNG");
    EXPECT_EQ(brushGet("lamp.png"), brush);
    EXPECT_FALSE(brushGet("lamp.png", true)->hasHitMap()); // it is there already
    EXPECT_EQ(mCore.mPlatform.mDraw.mTextures.size(), 1u);

    znCBrushManager::instanceGet()->brushesClear();
    EXPECT_EQ(brush->widthGet(), 4); // held here
    const znCBrushPtr anew = brushGet("lamp.png", true);
    EXPECT_NE(anew, brush);
    EXPECT_TRUE(anew->hasHitMap());
}

TEST_F(znCBrushManagerTest, cutsBrushesOutOfAPage)
{
    imageSet("page.png", 64, 32, "#");
    EXPECT_EQ(pageLoad("page.png\r\nscene/Lamp.png,0,0,32,16\r\n\r\nscene/door.png, 32 ,+16,32,16\nlast,2,4,6,8"), "");
    const s32 opens = mCore.mPlatform.mFiles.operationCountGet(znCTestFiles::Operation::open);
    EXPECT_EQ(rectangleText(*brushGet("scene/lamp.png")), "0,0,32,16");
    EXPECT_EQ(rectangleText(*brushGet("scene/door.png")), "32,16,32,16");
    EXPECT_EQ(rectangleText(*brushGet("last")), "2,4,6,8");
    EXPECT_EQ(mCore.mPlatform.mFiles.operationCountGet(znCTestFiles::Operation::open), opens);
    EXPECT_EQ(mCore.mPlatform.mDraw.mTextures.size(), 1u);
    EXPECT_TRUE(brushGet("scene/door.png")->hitTest({31, 15}));
}

TEST_F(znCBrushManagerTest, leavesOutFaultyRecordsWithALineEach)
{
    imageSet("page.png", 64, 32, "#");
    const char* const faulty[] = {
        "a",
        "a,1,2,3",
        ",0,0,2,2",
        "a,0,0,,2",
        "a,x,0,2,2",
        "a,-2,0,4,4",
        "a,0,-2,4,4",
        "a,0,0,0,4",
        "a,0,0,4,-4",
        "a,0,0,66,4",
        "a,0,2,4,32",
        "a,62,0,4,4",
        "a,2147483646,0,4,4",
        "a,0,0,2147483648,4",
        "a,99999999999999999999,0,4,4",
        "\x01\xFF\xFE\x80",
        "a,+-1,0,4,4",
    };
    for (const char* record : faulty)
    {
        const std::string log =
            pageLoad(std::string("page.png\r\ngood1,0,0,2,2\r\n") + record + "\r\ngood2,2,2,4,4\r\n");
        EXPECT_EQ(linesGet(log), 1) << record << "\n" << log;
        EXPECT_NE(log.find("page.txt line 3"), std::string::npos) << record << "\n" << log;
        EXPECT_EQ(rectangleText(*brushGet("good1")), "0,0,2,2");
        EXPECT_EQ(rectangleText(*brushGet("good2")), "2,2,4,4");
        znCBrushManager::instanceGet()->brushesClear();
    }
}

TEST_F(znCBrushManagerTest, saysOnceThatAPageIsNoPage)
{
    for (const char* text : {"", "\r\n", "\n", "page.png", "\xFF\xFE rubbish"})
    {
        const std::string log = pageLoad(text);
        EXPECT_EQ(linesGet(log), 1) << text << "\n" << log;
        EXPECT_NE(log.find("page.txt line 1"), std::string::npos) << log;
    }
    znCBrushManager::instanceGet()->texturePageLoad(znCResourceName("none.txt", 0), true);
    EXPECT_NE(logTake().find("File none.txt does not exist."), std::string::npos);
}

TEST_F(znCBrushManagerTest, doesNotFillTheLogWithAThousandFaults)
{
    imageSet("page.png", 64, 32, "#");
    std::string text = "page.png\r\n";
    for (s32 i = 0; i < 1000; ++i)
        text += "rubbish\r\n";
    const std::string log = pageLoad(text + "good,0,0,2,2\r\n");
    EXPECT_LE(linesGet(log), 20);
    EXPECT_NE(log.find("more faults from line"), std::string::npos);
    EXPECT_EQ(rectangleText(*brushGet("good")), "0,0,2,2");
}

TEST_F(znCBrushManagerTest, showsTheDefaultPictureForEveryBrushOfAMissingPage)
{
    const std::string log = pageLoad("nothere.png\r\nlamp,500,500,64,64\r\n");
    EXPECT_EQ(linesGet(log), 1) << log;
    const znCBrushPtr lamp = brushGet("lamp");
    EXPECT_TRUE(lamp->textureGet()->isDefaultPicture());
    EXPECT_TRUE(lamp->hitTest({lamp->widthGet() - 1, lamp->heightGet() - 1}));
    EXPECT_EQ(logTake(), "");
}

TEST_F(znCBrushManagerTest, asksTheHitBrushInItsPlace)
{
    imageSet("key.png", 8, 8, "#");
    imageSet("keyc_hit.png", 16, 4, ".#");
    const znCBrushPtr key = brushGet("key.png");
    EXPECT_FALSE(key->hasHitMap());
    key->hitBrushSet(brushGet("keyc_hit.png", true));
    EXPECT_TRUE(key->hasHitMap());
    EXPECT_EQ(key->widthGet(), 8);
    EXPECT_EQ(key->hitWidthGet(), 16);
    EXPECT_EQ(key->hitHeightGet(), 4);
    EXPECT_FALSE(key->hitTest({14, 3}));
    EXPECT_TRUE(key->hitTest({15, 3}));

    brushGet("keyc_hit.png")->hitBrushSet(key); // a circle
    EXPECT_NE(logTake().find("hit brush"), std::string::npos);
    EXPECT_TRUE(key->hasHitMap());
}

TEST_F(znCBrushManagerTest, reportsSizesThatDoNotHalve)
{
    imageSet("odd.png", 3, 4, "#");
    EXPECT_EQ(brushGet("odd.png")->widthGet(), 3);
    EXPECT_NE(logTake().find("odd.png width or height is not a multiple of 2 (3,4)."), std::string::npos);
}

TEST_F(znCBrushManagerTest, cutsAreasInTexelsOfTheTexture)
{
    imageSet("page.png", 64, 32, "#");
    pageLoad("page.png\r\nlamp,32,16,32,16\r\n");
    const znCBrushPtr area = znCBrushManager::instanceGet()->areaBrushCreate(brushGet("lamp"), 2, 4, 6, 8);
    EXPECT_EQ(rectangleText(*area), "2,4,6,8");
    EXPECT_EQ(area->textureGet(), brushGet("lamp")->textureGet());

    const znCBrushPtr silhouette = znCBrushManager::instanceGet()->alpha8BrushCreate(brushGet("lamp"));
    EXPECT_EQ(rectangleText(*silhouette), "0,0,32,16");
    EXPECT_EQ(mCore.mPlatform.mDraw.mTextures.rbegin()->second.mFormat, S3E_DRAW_ALPHA_8);
}
