#include "tools/author/znCFairness.h"

#include "tests/tools/authorData.h"

#include <gtest/gtest.h>

#include <algorithm>

// Objects that a player would call fair or unfair, and why.
TEST(znCFairnessTest, namesWhatIsUnfair)
{
    AuthorData data;
    data.textSet("scenes/yard/coords.txt", "BackgroundYard.png,0,0\n"
                                           "HOT-fair.png,-300,0\n"
                                           "HOT-covered.png,-100,0\n"
                                           "shutter.png,-100,0\n"
                                           "HOT-tiny.png,0,0\n"
                                           "HOT-camouflaged.png,100,0\n"
                                           "HOT-beneath.png,300,0\n"
                                           "HOT-above.png,310,0\n"
                                           "HOT-aside.png,600,0\n"
                                           "HOT-low.png,0,300\n"
                                           "BackgroundShed.png,0,0\n"
                                           "HOT-inside.png,20,20\n");
    data.textSet("scenes/yard/yard.txt", "\n");
    data.pictureSet("scenes/yard/backgroundyard.png", 1366, 768, 0x308050, true);
    data.pictureSet("scenes/yard/backgroundshed.png", 400, 400, 0x806040, true);
    for (const char* picture : {"fair", "covered", "aside", "low", "inside", "above"})
        data.pictureSet("scenes/yard/hot-" + std::string(picture) + ".png", 40, 40);
    data.pictureSet("scenes/yard/hot-beneath.png", 40, 40, 0xf0e060);
    data.pictureSet("scenes/yard/hot-tiny.png", 10, 10);
    data.pictureSet("scenes/yard/hot-camouflaged.png", 40, 40, 0x328252);
    data.pictureSet("scenes/yard/shutter.png", 36, 36, 0x102030, true);

    znCFairness fairness(data.folderGet());
    ASSERT_TRUE(fairness.measure("yard"));
    struct Case
    {
        const char* mName;
        const char* mWarning; // null: fair
    };
    const Case cases[] = {
        {"HOT-fair.png", nullptr},
        {"HOT-covered.png", "covered"},
        {"HOT-tiny.png", "too small"},
        {"HOT-camouflaged.png", "colour of its surroundings"},
        {"HOT-beneath.png", "presses go to another object: HOT-above.png"},
        {"HOT-above.png", nullptr},
        {"HOT-aside.png", "not on every screen"},
        {"HOT-low.png", "not on every screen"},
        {"HOT-inside.png", nullptr},
    };
    ASSERT_EQ(fairness.objectsGet().size(), std::size(cases));
    for (const Case& c : cases)
    {
        const auto found = std::find_if(fairness.objectsGet().begin(), fairness.objectsGet().end(),
                                        [&c](const znCFairness::Object& pObject) { return pObject.mName == c.mName; });
        ASSERT_NE(found, fairness.objectsGet().end()) << c.mName;
        std::string warnings;
        for (const std::string& warning : found->mWarnings)
            warnings += warning + "; ";
        if (c.mWarning == nullptr)
            EXPECT_EQ(warnings, "") << c.mName;
        else
            EXPECT_NE(warnings.find(c.mWarning), std::string::npos) << c.mName << ": " << warnings;
    }
    const znCFairness::Object& fair = fairness.objectsGet()[0];
    EXPECT_EQ(fair.mWidth, 40);
    EXPECT_EQ(fair.mInSight, 1.0);
    EXPECT_EQ(fairness.objectsGet().back().mSubScene, 1);

    const std::filesystem::path start = data.folderGet() / "fair";
    ASSERT_TRUE(fairness.picturesWrite(start));
    EXPECT_TRUE(std::filesystem::exists(start.string() + ".png"));
    EXPECT_TRUE(std::filesystem::exists(start.string() + "-1.png"));
    EXPECT_FALSE(fairness.measure("nowhere"));
}

TEST(znCFairnessTest, whatShipsIsFair)
{
    const std::filesystem::path data = std::filesystem::path(PETREL_ROOT) / "data";
    for (const auto& entry : std::filesystem::directory_iterator(data / "scenes"))
    {
        znCFairness fairness(data);
        const std::string scene = entry.path().filename();
        ASSERT_TRUE(fairness.measure(scene)) << scene;
        for (const znCFairness::Object& object : fairness.objectsGet())
            for (const std::string& warning : object.mWarnings)
                ADD_FAILURE() << scene << "/" << object.mName << ": " << warning;
    }
}
