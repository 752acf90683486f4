#include "tools/author/znCImport.h"

#include "tests/tools/authorData.h"
#include "tests/tools/sceneRobot.h"

#include <gtest/gtest.h>
#include <zip.h>

#include <algorithm>
#include <map>

namespace
{
namespace fs = std::filesystem;

// A painter's file: entries of the archive by name.
using Entries = std::map<std::string, std::string>;

fs::path oraWrite(const AuthorData& pData, const Entries& pEntries)
{
    const fs::path file = pData.folderGet() / "painting.ora";
    fs::remove(file);
    zip_t* archive = zip_open(file.c_str(), ZIP_CREATE, nullptr);
    for (const auto& [name, bytes] : pEntries)
        zip_file_add(archive, name.c_str(), zip_source_buffer(archive, bytes.data(), bytes.size(), 0), 0);
    EXPECT_EQ(zip_close(archive), 0);
    return file;
}

std::string bytesGet(const AuthorData& pData, const znSPicture& pPicture)
{
    znNPng::write(pData.folderGet() / "part.png", pPicture);
    const std::string bytes = pData.textGet("part.png");
    fs::remove(pData.folderGet() / "part.png");
    return bytes;
}

// A layer of the canvas's size, as many painters write them, with a disc or a solid area on it.
std::string layerMake(AuthorData& pData, s32 pX, s32 pY, s32 pWidth, s32 pHeight, u32 pRgb, bool pSolid = false)
{
    pData.pictureSet("part.png", pWidth, pHeight, pRgb, pSolid);
    znSPicture part;
    EXPECT_TRUE(znNPng::decode(pData.textGet("part.png"), "part", part));
    znSPicture layer(pX + pWidth, pY + pHeight);
    for (s32 y = 0; y < pHeight; ++y)
        std::copy_n(part.at(0, y), 4 * static_cast<std::size_t>(pWidth), layer.at(pX, pY + y));
    return bytesGet(pData, layer);
}

constexpr char CELLAR[] = R"(<?xml version='1.0' encoding='UTF-8'?>
<image version="0.0.3" w="1366" h="768">
 <stack>
  <layer name="notes" src="data/notes.png" visibility="hidden"/>
  <stack name="chest" x="0" y="0">
   <stack name="things" x="400" y="300" opacity="0.5">
    <layer name="PCK-marble" src="data/marble.png" x="100" y="80" opacity="0.8"/>
   </stack>
   <layer name="wood" src="data/wood.png" x="383" y="184"/>
  </stack>
  <layer name="TSK-light" src="data/disc.png" x="600" y="300"/>
  <layer name="INS-fuse" src="data/disc.png" x="200" y="300"/>
  <layer name="PRE-fuse-light+lamp" src="data/disc.png" x="600" y="300"/>
  <layer name="empty" src="data/empty.png"/>
  <layer name="SUB1-chest.png" src="data/disc.png" x="300" y="500"/>
  <layer name="PCK-brass bell" src="data/bell.png" x="0" y="0"/>
  <layer name="BackgroundCellar" src="data/room.png"/>
 </stack>
</image>
)";

Entries cellarGet(AuthorData& pData)
{
    return {{"mimetype", "image/openraster"},
            {"stack.xml", CELLAR},
            {"data/room.png", layerMake(pData, 0, 0, 1366, 768, 0x607080, true)},
            {"data/wood.png", layerMake(pData, 0, 0, 600, 400, 0x705030, true)},
            {"data/bell.png", layerMake(pData, 800, 400, 61, 40, 0xd0b040, true)},
            {"data/marble.png", layerMake(pData, 0, 0, 40, 40, 0x40c0c0)},
            {"data/disc.png", layerMake(pData, 0, 0, 60, 60, 0xc04040)},
            {"data/empty.png", bytesGet(pData, znSPicture(20, 20))},
            {"data/notes.png", "no picture, and not looked at"}};
}

std::map<std::string, std::string> folderGet(const AuthorData& pData)
{
    std::map<std::string, std::string> files;
    if (fs::exists(pData.folderGet() / "scenes/cellar"))
        for (const auto& entry : fs::directory_iterator(pData.folderGet() / "scenes/cellar"))
            files[entry.path().filename()] = pData.textGet("scenes/cellar/" + entry.path().filename().string());
    return files;
}
} // namespace

TEST(znCImportTest, makesASceneThatIsPlayedToItsEnd)
{
    AuthorData data;
    const fs::path file = oraWrite(data, cellarGet(data));
    {
        znCImport import(data.folderGet());
        ASSERT_TRUE(import.import(file, "cellar"));
        EXPECT_EQ(import.notesGet().size(), 3u) << "hidden, empty, and what became the background";
    }
    EXPECT_EQ(data.textGet("scenes/cellar/coords.txt"), "BackgroundCellar.png,0,0\n"
                                                        "PCK-brass_bell.png,148,36\n"
                                                        "SUB1-chest.png,-353,146\n"
                                                        "PRE-fuse-light+lamp.png,-53,-54\n"
                                                        "INS-fuse.png,-453,-54\n"
                                                        "TSK-light,-53,-54\n"
                                                        "BackgroundChest.png,0,0\n"
                                                        "PCK-marble.png,-163,16\n");
    znSPicture bell;
    ASSERT_TRUE(znNPng::decode(data.textGet("scenes/cellar/pck-brass_bell.png"), "bell", bell));
    EXPECT_EQ(bell.mWidth, 62) << "cut to what is painted, even";
    EXPECT_EQ(bell.mHeight, 40);
    znSPicture marble;
    ASSERT_TRUE(znNPng::decode(data.textGet("scenes/cellar/pck-marble.png"), "marble", marble));
    EXPECT_EQ(marble.at(20, 20)[3], 102) << "0.5 of 0.8";
    EXPECT_FALSE(fs::exists(data.folderGet() / "scenes/cellar/tsk-light.png"));
    EXPECT_NE(data.textGet("strings.xml").find("cellarTitle"), std::string::npos);
    EXPECT_TRUE(SceneRobot(data.folderGet(), "cellar").play());
}

TEST(znCImportTest, renewsASceneAndKeepsWhatHasNoPicture)
{
    AuthorData data;
    Entries entries = cellarGet(data);
    ASSERT_TRUE(znCImport(data.folderGet()).import(oraWrite(data, entries), "cellar"));
    const std::string strings = data.textGet("strings.xml");
    data.textSet("scenes/cellar/cellar.txt", "numHogItems = \"2\",\n");
    std::string coords = data.textGet("scenes/cellar/coords.txt");
    coords.insert(coords.find("SUB1"), "PAR-dust,7,8\nANM-lamp.xml,1,2\nPCK-CMN-stamp-m1.png,3,4\nold.png,5,6\n");
    data.textSet("scenes/cellar/coords.txt", coords + "PAR-glow,9,9\n");

    std::string stack = entries["stack.xml"];
    stack.replace(stack.find("PCK-brass bell"), 14, "PCK-bell");
    entries["stack.xml"] = stack;
    ASSERT_TRUE(znCImport(data.folderGet()).import(oraWrite(data, entries), "cellar"));
    EXPECT_EQ(data.textGet("scenes/cellar/coords.txt"), "BackgroundCellar.png,0,0\n"
                                                        "PAR-dust,7,8\n"
                                                        "ANM-lamp.xml,1,2\n"
                                                        "PCK-CMN-stamp-m1.png,3,4\n"
                                                        "PCK-bell.png,148,36\n"
                                                        "SUB1-chest.png,-353,146\n"
                                                        "PRE-fuse-light+lamp.png,-53,-54\n"
                                                        "INS-fuse.png,-453,-54\n"
                                                        "TSK-light,-53,-54\n"
                                                        "BackgroundChest.png,0,0\n"
                                                        "PCK-marble.png,-163,16\n"
                                                        "PAR-glow,9,9\n");
    EXPECT_EQ(data.textGet("scenes/cellar/cellar.txt"), "numHogItems = \"2\",\n");
    EXPECT_EQ(data.textGet("strings.xml"), strings);
}

TEST(znCImportTest, saysWhatIsWrongAndLeavesTheSceneAsItWas)
{
    AuthorData data;
    const Entries good = cellarGet(data);
    ASSERT_TRUE(znCImport(data.folderGet()).import(oraWrite(data, good), "cellar"));
    struct Case
    {
        const char* mEntry; // of the archive; null: the file itself
        const char* mFrom;  // null: the whole entry
        std::string mTo;    // "": the entry is missing
        const char* mSaid;
    };
    const Case cases[] = {
        {nullptr, nullptr, "P6 is no archive", "no OpenRaster file"},
        {nullptr, nullptr, "", "isn't there"},
        {"mimetype", nullptr, "application/zip", "no OpenRaster file"},
        {"mimetype", nullptr, "", "no OpenRaster file"},
        {"stack.xml", nullptr, "", "no list of its layers"},
        {"stack.xml", "</image>", "</stack>", "can't be read"},
        {"stack.xml", "w=\"1366\"", "w=\"wide\"", "width and height"},
        {"stack.xml", "x=\"383\"", "x=\"left\"", "no place or no opacity of its layer 'wood'"},
        {"stack.xml", "opacity=\"0.8\"", "opacity=\"8\"", "no place or no opacity"},
        {"data/bell.png", nullptr, "", "no readable picture data/bell.png for its layer 'PCK-brass bell'"},
        {"data/bell.png", nullptr, "no picture", "no readable picture data/bell.png"},
        {"stack.xml", "INS-fuse", "pck-Brass_bell", "two layers are called 'pck-Brass_bell.png'"},
        {"stack.xml", "INS-fuse", "../fuse", "can't be the name of a file"},
        {"stack.xml", "INS-fuse", "fuse,box", "can't be the name of a file"},
        {"stack.xml", "INS-fuse", "BackgroundHall", "a background with a layer below it"},
        {"stack.xml", "\"wood\"", "\"PCK-wood\"", "the lowest layer of the group 'chest' is 'PCK-wood'"},
        {"stack.xml", "<stack>", "<stack visibility=\"hidden\"><stack visibility=\"hidden\">", "can't be read"},
    };
    const auto before = folderGet(data);
    const auto refused = [&](const fs::path& pFile, const char* pSaid)
    {
        testing::internal::CaptureStderr();
        EXPECT_FALSE(znCImport(data.folderGet()).import(pFile, "cellar")) << pSaid;
        const std::string said = testing::internal::GetCapturedStderr();
        EXPECT_NE(said.find("painting.ora: "), std::string::npos);
        EXPECT_NE(said.find(pSaid), std::string::npos) << said;
        EXPECT_EQ(folderGet(data), before) << pSaid;
    };
    for (const Case& c : cases)
    {
        Entries entries = good;
        if (c.mEntry != nullptr && c.mFrom != nullptr)
            entries[c.mEntry].replace(entries[c.mEntry].find(c.mFrom), std::string(c.mFrom).size(), c.mTo);
        else if (c.mEntry != nullptr && c.mTo.empty())
            entries.erase(c.mEntry);
        else if (c.mEntry != nullptr)
            entries[c.mEntry] = c.mTo;
        fs::path file = oraWrite(data, entries);
        if (c.mEntry == nullptr && c.mTo.empty())
            fs::remove(file);
        else if (c.mEntry == nullptr)
            data.textSet("painting.ora", c.mTo);
        refused(file, c.mSaid);
    }
    // Cut off in the middle, and bytes changed within.
    const fs::path file = oraWrite(data, good);
    std::string bytes = data.textGet("painting.ora");
    data.textSet("painting.ora", bytes.substr(0, bytes.size() / 2));
    refused(file, "damaged");
    bytes[bytes.find("data/room.png") + 200] ^= 0x55;
    data.textSet("painting.ora", bytes);
    refused(file, "no readable picture data/room.png");
    EXPECT_FALSE(znCImport(data.folderGet()).import(oraWrite(data, good), "../cellar"));
    EXPECT_FALSE(znCImport(data.folderGet()).import(data.folderGet() / "none.ora", "attic"));
    EXPECT_FALSE(fs::exists(data.folderGet() / "scenes/attic"));
}
