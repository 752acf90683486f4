#include "tools/author/znCCheck.h"

#include "tests/tools/authorData.h"
#include "tools/author/znCNewScene.h"
#include "tools/author/znNText.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace
{
constexpr char COORDS[] = "scenes/hall/coords.txt";
constexpr char TABLE[] = "scenes/hall/hall.txt";
constexpr char PAGE[] = "scenes/hall/texturepage0.txt";
constexpr char PANEL[] = "gui/hall.txt";

// The scene "hall", in which everything is wrong that can be.
void hallSet(AuthorData& pData)
{
    pData.textSet(COORDS, "BackgroundHall.png,0,0\n"                                      // 1
                          "PCK-rope.png,10,10\n"                                          // 2
                          "PKC-lamp.png,20,20\n"                                          // 3
                          "pck-cup.png,30,30\n"                                           // 4
                          "PCK-ring.png,40\n"                                             // 5
                          "PCK-odd.png,50,50\n"                                           // 6
                          "PCK-lost.png,60,60\n"                                          // 7
                          "PRE-oil-lamp.png,0,50\n"                                       // 8
                          "INS-wick.png,0,70\n"                                           // 9
                          "TSK-light,0,0\n"                                               // 10
                          "PRE-wax-seal+stamp.png,-50,50\n"                               // 11
                          "INS-wax.png,-60,60\n"                                          // 12
                          "SUB4-chest.png,80,80\n"                                        // 13
                          "PCK-rope.png,90,90\n"                                          // 14
                          "PCK-a_name_that_no_slot_of_any_list_could_ever_hold.png,0,0\n" // 15
                          "PAR-nothing,0,0\n"                                             // 16
                          "ANM-broken.xml,0,0\n"                                          // 17
                          "PCK-crate.png,0,0\n"                                           // 18
                          "PCK-Rope.png,0,0\n"                                            // 19
                          "PAR-hallfog,0,0\n"                                             // 20
                          "PCK-paged.png,0,0\n"                                           // 21
                          "BackgroundAttic.png,0,0\n"                                     // 22
                          "INS-oil.png,0,0\n"                                             // 23
                          "NAV-later.png,0,0\n"                                           // 24
                          "NAV-never.png,0,0\n");                                         // 25
    pData.textSet(TABLE, "numHogItems = \"40\",\n"
                         "numHogItem = \"4\",\n"
                         "ambient = \"audio/sfx/none.wav\",\n"
                         "ACT1NextLev = \"nowhere\",\n"
                         "caveOverride = \"cave\",\n"
                         "GUI = \"gui/hall.txt\",\n");
    pData.textSet(PAGE, "scenes/hall/texturepage0.png\r\n"
                        "scenes/hall/pck-paged.png,0,0,20,20\r\n"
                        "scenes/hall/far.png,60,0,20,20\r\n"
                        "scenes/hall/short.png,60\r\n");
    pData.textSet(PANEL, "include \"gui/none.txt\"\n"
                         "include \"gui/hoggui/styles.txt\"\n"
                         "style X {\n}\n"
                         "znCGameGui {\n"
                         "    name = \"GameGui\"\n"
                         "    modal = false\n"
                         "    include \"gui/hoggui/lists.txt\"\n"
                         "    znCSpriteComponent {\n"
                         "        image = \"gui/none.png\"\n"
                         "        imagge = \"gui/misc/caret.png\"\n"
                         "    }\n"
                         "    znCTextSpriteComponent {\n"
                         "        Ink\n"
                         "        textKey = \"nosuchtext\"\n"
                         "        width = 200\n"
                         "    }\n"
                         "    znCTextSpriteComponent {\n"
                         "        Ink\n"
                         "        textKey = \"widetext\"\n"
                         "        width = 40\n"
                         "        height = 30\n"
                         "    }\n"
                         "    Wrod {\n"
                         "    }\n"
                         "}\n");
    for (const char* picture : {"pck-rope", "pkc-lamp", "pck-cup", "pre-oil-lamp", "ins-wick", "pre-wax-seal+stamp",
                                "ins-wax", "sub4-chest", "pck-a_name_that_no_slot_of_any_list_could_ever_hold",
                                "pck-crate", "ins-oil", "idle", "pck-paged", "nav-later", "nav-never"})
        pData.pictureSet("scenes/hall/" + std::string(picture) + ".png", 20, 20);
    pData.pictureSet("scenes/hall/pck-odd.png", 21, 20);
    pData.pictureSet("scenes/hall/texturepage0.png", 64, 64);
    pData.pictureSet("scenes/hall/backgroundhall.png", 200, 100);
    pData.pictureSet("scenes/hall/backgroundattic.png", 100, 100);
    pData.pictureSet("scenes/hall/Shouted.png", 20, 20);
    pData.textSet("scenes/hall/anm-broken.xml", "<sequence name=\"blink\">\n <framelist>\n"
                                                "  <frame w=\"0\" h=\"0\"/>\n </framelist>\n"
                                                " <timeline name=\"main\" frametime=\"100\">\n"
                                                "  <key frame=\"7\"/>\n </timeline>\n</sequence>\n");
    const std::string spark = "imageFileName = particles/spark.png ;\nmaxParticles = 4 ;\n";
    pData.textSet("particles/par-crate.txt", spark + "emitSpeed = 4 ;\n");
    pData.textSet("particles/hallfog.txt", spark + "colour = red ;\n");
}

void stringsSet(AuthorData& pData)
{
    std::string strings = pData.textGet("strings.xml");
    for (const char* row : {"widetext", "idletext", "latertext", "kepttext"})
        strings.insert(strings.find("  </Table>"), std::string("   <Row>\n    <Cell><Data ss:Type=\"String\">") + row +
                                                       "</Data></Cell>\n    <Cell><Data ss:Type=\"String\">" + row +
                                                       "unbreakable</Data></Cell>\n   </Row>\n");
    pData.textSet("strings.xml", strings);
}

std::string listGet(const std::set<znSFault>& pFaults)
{
    std::string text;
    for (const znSFault& fault : pFaults)
        text += fault.mFile + ":" + std::to_string(fault.mLine) + ": " + fault.mText + "\n";
    return text;
}
} // namespace

TEST(znCCheckTest, everyFaultIsNamedInItsFileAndLine)
{
    AuthorData data;
    hallSet(data);
    stringsSet(data);
    data.textSet("scenes/island/island.txt", "\n");
    data.textSet("scenes/island/coords.txt", "BackgroundIsland.png,0,0\nHOT-shell.png,0,0\n");
    data.pictureSet("scenes/island/backgroundisland.png", 100, 100);
    data.pictureSet("scenes/island/hot-shell.png", 20, 20);
    data.textSet("scenes/cave/cave.txt", "GUI = \"gui/endScreen/endScreen.txt\",\n");
    data.textSet("scenes/cave/coords.txt", "BackgroundCave.png,0,0\n");
    data.pictureSet("scenes/cave/backgroundcave.png", 100, 100);
    data.textSet("scenes/map/map.txt", "GUI = \"gui/mapHUD/mapHUD.txt\",\n");
    data.textSet("scenes/map/coords.txt", "BackgroundMap.png,0,0\n");
    data.pictureSet("scenes/map/backgroundmap.png", 100, 100);
    data.textSet("scenes/bare/bare.txt", "\n");
    data.textSet("gui/kept.txt", "# for later\n");
    data.textSet("gui/kept2.txt", "textKey = \"kepttext\"\n");
    data.textSet("kept.txt", "gui/kept*.txt  # for later\ngui/gone.txt\nlatertex?\nlater\n");
    data.textSet("appsettings.txt", "appCanvasW = \"1366\",\nappCanvasH = \"768\",\nfirstScene = \"hall\",\n"
                                    "fristScene = \"hall\",\nlistColRandom = \"2b1a0aff\",\n");
    const std::string strings = data.textGet("strings.xml");

    znCCheck check(data.folderGet());
    const std::set<znSFault>& faults = check.run();

    const znSFault expected[] = {
        {COORDS, 3, "no known prefix"},
        {COORDS, 4, "write the prefix as PCK-"},
        {COORDS, 5, "three fields are expected"},
        {COORDS, 6, "not a multiple of 2"},
        {COORDS, 7, "there is no file scenes/hall/pck-lost.png"},
        {COORDS, 9, "opens no lock"},
        {COORDS, 10, "ended by no lock"},
        {COORDS, 11, "ends a task that isn't there"},
        {COORDS, 13, "there is no close-up 4"},
        {COORDS, 14, "stands in line 2 already"},
        {COORDS, 15, "don't fit a slot"},
        {COORDS, 16, "there is no file particles/nothing.txt"},
        {COORDS, 18, "should not run forever"},
        {COORDS, 19, "same file in lower case"},
        {COORDS, 22, "no door leads into this close-up"},
        {COORDS, 25, "leads to never, which is neither a scene"},
        {COORDS, 23, "stands in another close-up than its lock"},
        {"scenes/hall/anm-broken.xml", 6, "frame"},
        {"particles/hallfog.txt", 3, "8 characters"},
        {PAGE, 3, "isn't inside the page"},
        {PAGE, 4, "expected name,x,y,width,height"},
        {"scenes/hall/pck-paged.png", 0, "hidden by the picture of that name"},
        {"scenes/hall/idle.png", 0, "nothing uses this file"},
        {"scenes/hall/Shouted.png", 0, "rename it in lower case"},
        {TABLE, 1, "asks for 40 items"},
        {TABLE, 2, "did you mean 'numhogitems'"},
        {TABLE, 3, "there is no file audio/sfx/none.wav"},
        {TABLE, 4, "neither a scene nor a screen"},
        {PANEL, 1, "there is no file gui/none.txt"},
        {PANEL, 3, "longer name for a style"},
        {PANEL, 10, "there is no file gui/none.png"},
        {PANEL, 11, "nothing reads the setting 'imagge'"},
        {PANEL, 15, "nosuchtext"},
        {PANEL, 24, "Unknown component, style or word 'Wrod'"},
        {"scenes/island/island.txt", 0, "nothing leads to the scene island"},
        {"scenes/island/island.txt", 0, "leads nowhere"},
        {"scenes/bare/coords.txt", 0, "is missing"},
        {"appsettings.txt", 4, "did you mean 'firstscene'"},
        {"kept.txt", 2, "there is no file and no text gui/gone.txt"},
        {"strings.xml", znNText::lineFind(strings, "idletext<", false), "nothing shows the text"},
        {PANEL, 18, "does not fit its box"},
    };
    for (const znSFault& fault : expected)
        EXPECT_TRUE(std::any_of(faults.begin(), faults.end(),
                                [&fault](const znSFault& pFound)
                                {
                                    return pFound.mFile == fault.mFile && pFound.mLine == fault.mLine &&
                                           pFound.mText.find(fault.mText) != std::string::npos;
                                }))
            << fault.mFile << ":" << fault.mLine << ": " << fault.mText;
    const std::string list = listGet(faults);
    for (const char* kept :
         {"gui/kept.txt", "gui/kept2.txt", "latertext", "kepttext", "scene cave", "scene map", "leads to later"})
        EXPECT_EQ(list.find(kept), std::string::npos) << kept;
    if (HasFailure())
        ADD_FAILURE() << list;
}

TEST(znCCheckTest, whatShipsHasNoFaults)
{
    znCCheck check(std::filesystem::path(PETREL_ROOT) / "data");
    EXPECT_EQ(listGet(check.run()), "");
}

TEST(znCNewSceneTest, leavesAllAsItWasOnADiskThatTakesNothingMore)
{
    for (const char* inTheWay : {"strings.xml.new", "particles/attic_motes.txt.new"})
    {
        AuthorData data;
        const std::filesystem::path folder = data.folderGet();
        std::filesystem::create_directories(folder / inTheWay / "full");
        const std::string strings = data.textGet("strings.xml");
        znCNewScene scene(folder);
        EXPECT_FALSE(scene.make("attic")) << inTheWay;
        EXPECT_TRUE(scene.filesGet().empty());
        EXPECT_FALSE(std::filesystem::exists(folder / "scenes/attic"));
        EXPECT_FALSE(std::filesystem::exists(folder / "particles/attic_motes.txt"));
        EXPECT_EQ(data.textGet("strings.xml"), strings);
    }
}

TEST(znCCheckTest, aNewSceneHasNoFaultButThatNothingLeadsToIt)
{
    AuthorData data;
    ASSERT_TRUE(znCNewScene(data.folderGet()).make("attic"));
    EXPECT_FALSE(znCNewScene(data.folderGet()).make("attic")) << "a scene is never written over";
    EXPECT_FALSE(znCNewScene(data.folderGet()).make("../attic"));
    znCCheck check(data.folderGet());
    std::set<znSFault> faults;
    for (const znSFault& fault : check.run())
        if (fault.mFile.find("attic") != std::string::npos)
            faults.insert(fault);
    EXPECT_EQ(faults.size(), 1u) << listGet(faults);
    EXPECT_NE(listGet(faults).find("nothing leads to the scene attic"), std::string::npos);
}
