#include "znappcore/components/znCSpriteComponent.h"

#include "tests/znappcore/znCPresentationTest.h"
#include "znappcore/src/znCEntity.h"
#include "zncore/src/znCVariableTable.h"

#include <cmath>
#include <numbers>

namespace
{
class znCSpriteComponentTest : public znCPresentationTest
{
protected:
    // An entity with a sprite under mRoot, which owns it.
    znCSpriteComponent& spriteAdd(const std::string& pImage, const znPoint& pPos, bool pHitMap = true)
    {
        auto* entity = new znCEntity("sprite" + std::to_string(mRoot.childrenGet().size()));
        auto* sprite = entity->componentAdd<znCSpriteComponent>();
        znCVariableTable table;
        table.strSet("image", pImage);
        table.strSet("hitMap", pHitMap ? "true" : "1");
        sprite->initialiseFromVariableTable(table);
        entity->posSet(pPos);
        mRoot.childAdd(entity);
        mRoot.treeUpdate(0);
        return *sprite;
    }

    znINode mRoot{"root"};
};
} // namespace

TEST_F(znCSpriteComponentTest, isHitWithinItsEdges)
{
    imageSet("plain.png", 100, 50, "#");
    znCSpriteComponent& sprite = spriteAdd("plain.png", {0, 0}, false);
    EXPECT_FALSE(sprite.brushGet()->hasHitMap()); // exactly "true" asks for one
    const std::pair<znPoint, bool> cases[] = {{{-50, -25}, true},
                                              {{49, 24}, true},
                                              {{50, 0}, false},
                                              {{0, 25}, false},
                                              {{-51, 0}, false},
                                              {{0, -26}, false},
                                              {{2147483647, 2147483647}, false},
                                              {{-2147483647 - 1, 0}, false}};
    for (const auto& [point, hit] : cases)
        EXPECT_EQ(sprite.hitTest(point, false), hit) << point.mX << "," << point.mY;
    EXPECT_EQ(logTake(), "");
    EXPECT_TRUE(sprite.hitTest({0, 0}, true));
    EXPECT_NE(logTake().find("Attempting a hitmap test on a SpriteComponent that does not have a hitmap."),
              std::string::npos);
}

TEST_F(znCSpriteComponentTest, isHitWhereItIsSeen)
{
    imageSet("ring.png", 4, 4,
             "####"
             "#..#"
             "#..#"
             "####");
    znCSpriteComponent& sprite = spriteAdd("ring.png", {100, 100});
    znCEntity& entity = *sprite.entityGet();
    EXPECT_TRUE(sprite.hitTest({98, 98}, true));
    EXPECT_FALSE(sprite.hitTest({100, 100}, true)); // the hole

    entity.scaleSet(10.0f);
    EXPECT_TRUE(sprite.hitTest({81, 119}, true));
    EXPECT_FALSE(sprite.hitTest({91, 109}, true));
    entity.rotationSet(std::numbers::pi_v<float> / 4);
    EXPECT_TRUE(sprite.hitTest({100, 75}, true)); // the corner that points up now
    entity.scaleSet(0.0f);
    EXPECT_FALSE(sprite.hitTest({100, 100}, true));
    entity.rotationSet(0.0f);
    entity.scaleSet(1.0f);

    entity.activeSet(false);
    EXPECT_FALSE(sprite.hitTest({98, 98}, true));
    entity.activeSet(true);
    mRoot.activeSet(false);
    EXPECT_FALSE(sprite.hitTest({98, 98}, true));
    EXPECT_EQ(logTake(), "");
}

TEST_F(znCSpriteComponentTest, waitsForABrush)
{
    znCSpriteComponent& sprite = spriteAdd("", {0, 0});
    EXPECT_FALSE(sprite.hitTest({0, 0}, true));
    znIRenderer::instanceGet()->frameBegin();
    mRoot.treeRender();
    znIRenderer::instanceGet()->frameEnd();
    EXPECT_TRUE(mCore.mPlatform.mDraw.mPresented.empty());

    imageSet("plain.png", 4, 2, "#");
    sprite.brushSet(brushGet("plain.png"));
    sprite.entityGet()->posSet(10, 10);
    mRoot.treeUpdate(0);
    znIRenderer::instanceGet()->frameBegin();
    mRoot.treeRender();
    znIRenderer::instanceGet()->frameEnd();
    ASSERT_EQ(mCore.mPlatform.mDraw.mPresented.size(), 1u);
    EXPECT_EQ(mCore.mPlatform.mDraw.mPresented[0].mPositions, (std::vector<float>{8, 9, 8, 11, 12, 11, 12, 9}));
    EXPECT_EQ(mCore.mPlatform.mDraw.mPresented[0].mUvs, (std::vector<float>{0, 0, 0, 1, 1, 1, 1, 0}));

    sprite.widthSet(9); // half of it in whole units, and the picture stretched
    sprite.brushSet(nullptr);
    EXPECT_EQ(sprite.widthGet(), 0);
    EXPECT_EQ(logTake(), "");
}

TEST_F(znCSpriteComponentTest, touchesAnotherSprite)
{
    imageSet("corner.png", 4, 4,
             "#..."
             "...."
             "...."
             "....");
    imageSet("full.png", 4, 4, "#");
    struct Case
    {
        const char* mFirst;
        const char* mSecond;
        znPoint mPos; // of the second; the first stands at (100, 100)
        bool mRectangles;
        bool mPixels;
    };
    const Case cases[] = {
        {"full.png", "full.png", {100, 100}, true, true},     {"full.png", "full.png", {104, 100}, false, false},
        {"full.png", "full.png", {100, 96}, false, false},    {"full.png", "full.png", {103, 103}, true, true},
        {"corner.png", "full.png", {103, 103}, true, false},  {"corner.png", "full.png", {97, 97}, true, true},
        {"corner.png", "corner.png", {100, 100}, true, true}, {"corner.png", "corner.png", {101, 100}, true, false},
        {"full.png", "corner.png", {103, 103}, true, true},
    };
    for (const Case& c : cases)
    {
        znCSpriteComponent& first = spriteAdd(c.mFirst, {100, 100});
        znCSpriteComponent& second = spriteAdd(c.mSecond, c.mPos);
        EXPECT_EQ(first.hitTest(second, false), c.mRectangles) << c.mFirst << c.mSecond << c.mPos.mX;
        EXPECT_EQ(first.hitTest(second, true), c.mPixels) << c.mFirst << c.mSecond << c.mPos.mX;
        EXPECT_EQ(second.hitTest(first, true), c.mPixels) << c.mFirst << c.mSecond << c.mPos.mX;
    }
    EXPECT_EQ(logTake(), "");
}

TEST_F(znCSpriteComponentTest, saysWhyATouchMeansLittle)
{
    imageSet("full.png", 4, 4, "#");
    imageSet("plain.png", 4, 4, "#");
    znCSpriteComponent& first = spriteAdd("full.png", {100, 100});
    znCSpriteComponent& second = spriteAdd("plain.png", {100, 100}, false);
    EXPECT_TRUE(first.hitTest(second, true)); // the rectangles decide
    EXPECT_NE(logTake().find("Sprite entities sprite0 and sprite1 must have hit maps for this hit test."),
              std::string::npos);

    second.entityGet()->scaleSet(2.0f);
    second.entityGet()->rotationSet(1.0f);
    znINode other("other");
    other.childAdd(second.entityGet());
    first.hitTest(second, false);
    const std::string log = logTake();
    for (const char* reason : {"linked to the same parent", "a scale of 1.0f", "an angle of 0.0f"})
        EXPECT_NE(log.find(reason), std::string::npos) << log;

    EXPECT_FALSE(first.hitTest(spriteAdd("", {100, 100}), true));
}
