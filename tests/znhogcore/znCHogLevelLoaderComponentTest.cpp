#include "znhogcore/components/znCHogLevelLoaderComponent.h"

#include "tests/znhogcore/znCHogTest.h"
#include "znappcore/components/znCAnimatingSpriteComponent.h"
#include "znappcore/components/znCParticleEmitterComponent.h"
#include "znappcore/components/znCSpriteComponent.h"
#include "znappcore/src/znCEntity.h"
#include "znhogcore/components/znCSubSceneComponent.h"

#include <limits>

namespace
{
class znCHogLevelLoaderComponentTest : public znCHogTest
{
protected:
    // Names of the level's sub-scenes and of what stands in them: "SubScene0(a.png b.png) SubScene1()".
    std::string contentGet()
    {
        std::string content;
        for (const znINode* subScene : level().childrenGet())
        {
            content += (content.empty() ? "" : " ") + subScene->nameGet() + "(";
            for (const znINode* node : subScene->childrenGet())
                content += (content.ends_with("(") ? "" : " ") + node->nameGet();
            content += ")";
        }
        return content;
    }
};

TEST_F(znCHogLevelLoaderComponentTest, placesEntitiesInTheirSubScenes)
{
    imageSet("scenes/quay/rope.png", 40, 40);
    sceneSet("quay", "Background.png,0,0\n"
                     "MASK-crate.png,10,-20\r\n"
                     "tutorial-arrow.png,1,1\n"
                     "Background-close.png,100,50\n"
                     "PCK-boat.png,300,200\n"
                     "\n"
                     " rope.png , +7 , -8 \n"
                     "Background-third.png,-5,-6\n");
    sceneOpen("quay");
    EXPECT_EQ(contentGet(), "SubScene0(MASK-crate.png) SubScene1(PCK-boat.png rope.png) SubScene2()");
    EXPECT_EQ(find("MASK-crate.png")->posGet(), znPoint(10, -20));
    EXPECT_EQ(find("PCK-boat.png")->posGet(), znPoint(200, 150));
    EXPECT_EQ(find("rope.png")->posGet(), znPoint(-93, -58));
    EXPECT_EQ(find("SubScene2")->posGet(), znPoint(-5, -6));
    for (s32 i = 0; i < 3; ++i)
    {
        const znCEntity* subScene = find("SubScene" + std::to_string(i));
        EXPECT_EQ(subScene->activeGet(), i == 0) << i;
        EXPECT_EQ(subScene->componentGet<znCSubSceneComponent>()->indexGet(), i);
    }
    EXPECT_EQ(level().currentSubSceneGet()->indexGet(), 0);
    EXPECT_EQ(level().componentGet(znCHogLevelLoaderComponent::TYPE), nullptr);
    EXPECT_EQ(errorsTake(), std::vector<std::string>());
}

TEST_F(znCHogLevelLoaderComponentTest, leavesOutWhatItCannotRead)
{
    struct Case
    {
        const char* mLine;
        const char* mFault; // behind "scenes/quay/coords.txt "; null: none
        const char* mContent;
    };
    constexpr char FIELDS[] = "line 2: three fields are expected, 'EntName.png,posX,posY'; the entry is left out.";
    constexpr char NUMBERS[] = "line 2: x and y must be whole numbers; the entry is left out.";
    const Case cases[] = {
        {"a.png,-5,-6\n", nullptr, "SubScene0(a.png end.png)"},
        {"a.png\n", FIELDS, "SubScene0(end.png)"},
        {"a.png,5\n", FIELDS, "SubScene0(end.png)"},
        {",5,6\n", FIELDS, "SubScene0(end.png)"},
        {" \t,5,6\n", FIELDS, "SubScene0(end.png)"},
        {"a.png,,6\n", NUMBERS, "SubScene0(end.png)"},
        {"a.png,5,\n", NUMBERS, "SubScene0(end.png)"},
        {"a.png,5,6,7\n", NUMBERS, "SubScene0(end.png)"},
        {"a.png,5.5,6\n", NUMBERS, "SubScene0(end.png)"},
        {"a.png,x,6\n", NUMBERS, "SubScene0(end.png)"},
        {"a.png,+-5,6\n", NUMBERS, "SubScene0(end.png)"},
        {"a.png,5 5,6\n", NUMBERS, "SubScene0(end.png)"},
        {"a.png,99999999999999999999,6\n", NUMBERS, "SubScene0(end.png)"},
        {"a.png,5,-2147483649\n", NUMBERS, "SubScene0(end.png)"},
        {"a.png,2147483647,-2147483648\n", nullptr, "SubScene0(a.png end.png)"},
        {"\xff\xfe\x01,5,6\n", nullptr, "SubScene0(\xff\xfe\x01 end.png)"}, // a name all the same
    };
    for (const Case& c : cases)
    {
        sceneSet("quay", std::string("Background.png,-10,10\n") + c.mLine + "end.png,0,0\n");
        linesTake();
        sceneOpen("quay");
        EXPECT_EQ(contentGet(), c.mContent) << c.mLine;
        std::vector<std::string> faults;
        for (const std::string& line : linesTake())
            if (line.starts_with("scenes/quay/coords.txt"))
                faults.push_back(line);
        EXPECT_EQ(faults, c.mFault == nullptr
                              ? std::vector<std::string>()
                              : std::vector<std::string>{std::string("scenes/quay/coords.txt ") + c.mFault})
            << c.mLine;
        levelEnd();
    }
    errorsTake(); // of images that aren't there
}

TEST_F(znCHogLevelLoaderComponentTest, keepsPositionsWithinTheirRange)
{
    sceneSet("quay", "Background.png,-10,10\n"
                     "far.png,2147483647,-2147483648\n");
    sceneOpen("quay");
    EXPECT_EQ(find("far.png")->posGet(), znPoint(std::numeric_limits<s32>::max(), std::numeric_limits<s32>::min()));
}

TEST_F(znCHogLevelLoaderComponentTest, survivesAListThatIsNone)
{
    struct Case
    {
        std::string mText;
        std::vector<std::string> mErrors;
    };
    const std::string noScene = "There is no scene in the folder scenes/quay/.";
    const std::string noBackground = "Expected first entity in the scene to be a background.";
    const std::string noEnd = "Expecting coods file in the format 'EntName.png,posX,posY";
    const Case cases[] = {
        {"", {noScene}},
        {"\r\n \n", {noScene}},
        {"a.png,1,2\nb.png,1,2\n", {noBackground, noBackground, noScene}},
        {"a.png,1,2\nBackground.png,0,0\n", {noBackground}},
        {"Background.png,0,0", {noEnd}},
        {"\xef\xbb\xbf"
         "Background.png,0,0\n",
         {}}, // some editors put it there
        {std::string(100, '\0') + "\n", {noScene}},
        {std::string("a\0b,1,2\n", 8), {noScene}},
        {std::string(1000, 'x') + ",1,2\n", {noScene}},
        {std::string(100000, ','), {noScene}},
        {"MASK-Background.png,0,0\n", {"Expected a sub-scene component on a Background entity.", noScene}},
    };
    for (const Case& c : cases)
    {
        sceneSet("quay", c.mText);
        errorsTake();
        sceneOpen("quay");
        EXPECT_EQ(errorsTake(), c.mErrors) << c.mText.substr(0, 40);
        frame();
        if (znIHogLevel::levelGet() != nullptr)
            levelEnd();
        else
            EXPECT_EQ(c.mErrors.empty() ? "" : c.mErrors.back(), noScene);
    }
}

TEST_F(znCHogLevelLoaderComponentTest, saysWhatCannotBeFoundOrOpened)
{
    struct Case
    {
        const char* mWhat;
        const char* mObjects;
        std::vector<std::string> mFaults; // behind "scenes/quay/coords.txt"
    };
    const std::string twice = " more than once: only a tail \"-m1\" to \"-m9\" tells two placements apart.";
    const Case cases[] = {
        {"two finds of one name", "PCK-rope.png,0,0\nPCK-rope.png,90,0\n", {" names PCK-rope.png" + twice}},
        {"two keys of one name",
         "PRE-oil-lamp.png,0,0\nINS-oil.png,90,0\nINS-oil.png,90,90\n",
         {" names INS-oil.png" + twice}},
        {"placements told apart", "PCK-rope-m1.png,0,0\nPCK-rope-m2.png,90,0\n", {}},
        {"decoration", "crate.png,0,0\ncrate.png,90,0\n", {}},
        {"a lock and its keys", "PRE-oil-wick-lamp.png,0,0\nINS-oil.png,90,0\nINS-brass+wick-m1.png,90,90\n", {}},
        {"no key", "PRE-oil-lamp.png,0,0\n", {": a lock in SubScene0 needs the key \"oil\", which doesn't lie there."}},
        {"a key elsewhere",
         "PRE-oil-lamp.png,0,0\nBackground2.png,0,0\nINS-oil.png,90,0\n",
         {": a lock in SubScene0 needs the key \"oil\", which doesn't lie there.",
          ": no lock in SubScene1 needs the key \"oil\"."}},
    };
    for (const Case& c : cases)
    {
        sceneSet("quay", std::string("Background.png,0,0\n") + c.mObjects);
        linesTake();
        sceneOpen("quay");
        std::vector<std::string> faults;
        for (const std::string& line : linesTake())
            if (line.starts_with("scenes/quay/coords.txt"))
                faults.push_back(line.substr(std::string("scenes/quay/coords.txt").size()));
        EXPECT_EQ(faults, c.mFaults) << c.mWhat;
        levelEnd();
    }
}

TEST_F(znCHogLevelLoaderComponentTest, takesAtMostSoManyEntities)
{
    std::string text = "Background.png,0,0\n";
    for (std::size_t i = 0; i < znCHogLevelLoaderComponent::ENTITIES_MAX + 5; ++i)
        text += "TSK-" + std::to_string(i) + ",0,0\n";
    sceneSet("quay", text);
    sceneOpen("quay");
    EXPECT_EQ(find("SubScene0")->childrenGet().size(), znCHogLevelLoaderComponent::ENTITIES_MAX - 1);
    const std::vector<std::string> lines = linesTake();
    EXPECT_EQ(std::count(lines.begin(), lines.end(),
                         "scenes/quay/coords.txt line 4001: a scene has at most 4000 entities; the rest is left out."),
              1);
}

TEST_F(znCHogLevelLoaderComponentTest, findsThePictures)
{
    // Page 1 is missing, so page 2 is not read.
    imageSet("scenes/quay/page.png", 64, 64);
    mPlatform.mFiles.fileSet("scenes/quay/texturepage0.txt",
                             "scenes/quay/page.png\r\nscenes/quay/pck-paged.png,0,0,20,30\n");
    mPlatform.mFiles.fileSet("scenes/quay/texturepage2.txt",
                             "scenes/quay/page.png\r\nscenes/quay/pck-own.png,0,0,20,30\n");
    imageSet("common/shell.png", 12, 14);
    imageSet("scenes/quay/pck-own.png", 22, 24);
    sceneSet("quay", "Background.png,0,0\nPCK-paged.png,0,0\nPCK-CMN-shell.png,0,0\nPCK-own.png,0,0\n");
    sceneOpen("quay");
    const std::pair<const char*, znPoint> cases[] = {
        {"PCK-paged.png", {20, 30}}, {"PCK-CMN-shell.png", {12, 14}}, {"PCK-own.png", {22, 24}}};
    for (const auto& [name, size] : cases)
    {
        const auto* sprite = find(name)->componentGet<znCSpriteComponent>();
        EXPECT_EQ(znPoint(sprite->widthGet(), sprite->heightGet()), size) << name;
        EXPECT_TRUE(sprite->brushGet()->hasHitMap()) << name;
    }
}

TEST_F(znCHogLevelLoaderComponentTest, startsWhatRunsInTheScene)
{
    animationSet("scenes/quay/anm-gull");
    mPlatform.mFiles.fileSet("particles/smoke.txt", "maxParticles = 1 ;\nimageFileName = particles/star.png ;\n");
    imageSet("particles/star.png", 8, 8);
    sceneSet("quay", "Background.png,0,0\nANM-gull.xml,1,2\nPAR-smoke,3,4\nANM-none.xml,0,0\n");
    linesTake();
    sceneOpen("quay");
    EXPECT_NE(find("ANM-gull.xml")->componentGet<znCAnimatingSpriteComponent>()->spriteGet()->dataGet(), nullptr);
    EXPECT_NE(find("PAR-smoke")->componentGet<znCParticleEmitterComponent>()->emitterGet(), nullptr);
    frame(3);
    const std::vector<std::string> lines = linesTake();
    EXPECT_EQ(std::count(lines.begin(), lines.end(), "There is no animation scenes/quay/anm-none.xml."), 1);
    EXPECT_EQ(errorsTake(), std::vector<std::string>());
}
} // namespace
