#include "tools/author/znCNewScene.h"

#include "tools/author/znNPng.h"
#include "tools/author/znNWholeFile.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <fstream>
#include <iterator>

namespace
{
namespace fs = std::filesystem;
using Colour = std::array<u8, 3>;

constexpr s32 CANVAS_WIDTH = 1366;
constexpr s32 CANVAS_HEIGHT = 768;
constexpr s32 CLOSE_UP_WIDTH = 560;
constexpr s32 CLOSE_UP_HEIGHT = 400;

// A line of coords.txt with the picture that it needs and what is to be said about it.
struct Entry
{
    const char* mName;
    const char* mPlace;
    s32 mSides; // of its shape; 0: has no picture of its own
    s32 mSize;
    Colour mColour;
    const char* mComment;
};

constexpr Entry ENTRIES[] = {
    {"chair.png", "-300,60", 4, 120, {120, 84, 60}, "no prefix: decoration, which does nothing"},
    {"SUB1-chest.png", "300,120", 4, 110, {150, 100, 50}, "SUB1-: a door into the first close-up below"},
    {"PCK-kite.png", "-120,-180", 4, 80, {60, 120, 210}, "PCK-: on the list of words, picked by chance"},
    {"PCK-ball-m1.png", "60,180", 0, 56, {215, 60, 70}, "-m1, -m2: two of one thing; the list counts them"},
    {"PCK-ball-m2.png", "-420,-120", 0, 56, {215, 60, 70}, ""},
    {"HDN-leaf.png", "180,-140", 3, 60, {60, 170, 80}, "HDN-: the same, in another colour on the list"},
    {"REQ-letter.png", "-40,20", 4, 64, {240, 235, 215}, "REQ-: always on the list, and first"},
    {"HOT-star.png", "420,-200", 5, 70, {250, 205, 70}, "HOT-: can be collected from the start, on no list"},
    {"BNS-litter-m1.png", "-200,200", 6, 48, {205, 200, 190}, "BNS-: litter, cleared away for a bonus"},
    {"BNSL-postage_stamp-m1.png", "100,-40", 4, 44, {180, 90, 160}, "BNSL-: things to stow, a second bonus"},
    {"BSL-medal.png", "-460,140", 6, 60, {200, 160, 60}, "BSL-: lost property, shown as a shape"},
    {"PRE-fuse-light+lamp.png",
     "-80,-60",
     6,
     90,
     {90, 90, 110},
     "PRE-KEY-TASK+LOCK: opens by INS-fuse, ends TSK-light"},
    {"INS-fuse.png", "240,30", 3, 50, {230, 120, 40}, "INS-: a key, dragged onto the lock"},
    {"TSK-light", "-80,-60", 0, 0, {}, "TSK-: the task, on the list; it has no picture"},
};
constexpr Entry CLOSE_UP_ENTRIES[] = {
    {"PCK-marble.png", "90,30", 0, 48, {70, 190, 190}, "found in the close-up"},
};

u8 byteGet(double pValue)
{
    return static_cast<u8>(std::clamp(pValue, 0.0, 255.0));
}

// A disc, or a polygon of so many sides, lit from above, with a dark rim.
znSPicture shapeMake(s32 pSides, s32 pSize, const Colour& pColour)
{
    constexpr double TURN = 6.283185307179586;
    znSPicture picture(pSize, pSize);
    const double radius = pSize / 2.0 - 1.0;
    for (s32 y = 0; y < pSize; ++y)
        for (s32 x = 0; x < pSize; ++x)
        {
            const double dx = x + 0.5 - pSize / 2.0;
            const double dy = y + 0.5 - pSize / 2.0;
            const double sector = pSides > 2 ? TURN / pSides : TURN;
            const double angle = std::fmod(std::atan2(dx, -dy) + sector / 2.0 + TURN, sector) - sector / 2.0;
            const double edge = pSides > 2 ? radius * std::cos(sector / 2.0) / std::cos(angle) : radius;
            const double inside = edge - std::hypot(dx, dy);
            if (inside < 0.0)
                continue;
            const double light = (inside < std::min(4.0, pSize / 16.0) ? 0.45 : 1.0) * (1.1 - 0.4 * y / pSize);
            for (std::size_t i = 0; i < 3; ++i)
                picture.at(x, y)[i] = byteGet(pColour[i] * light);
            picture.at(x, y)[3] = 255;
        }
    return picture;
}

// A wall and a floor.
znSPicture roomMake(s32 pWidth, s32 pHeight, const Colour& pWall, const Colour& pFloor)
{
    znSPicture picture(pWidth, pHeight);
    for (s32 y = 0; y < pHeight; ++y)
        for (s32 x = 0; x < pWidth; ++x)
        {
            const bool floor = y > pHeight * 3 / 5;
            const double light = floor ? 0.7 + 0.3 * y / pHeight : 1.0 - 0.35 * y / pHeight;
            for (std::size_t i = 0; i < 3; ++i)
                picture.at(x, y)[i] = byteGet((floor ? pFloor : pWall)[i] * light);
            picture.at(x, y)[3] = 255;
        }
    return picture;
}

std::string lowerGet(std::string pText)
{
    for (char& letter : pText)
        letter = static_cast<char>(letter >= 'A' && letter <= 'Z' ? letter - 'A' + 'a' : letter);
    return pText;
}

std::string entriesGet(const auto& pEntries, std::string& pComments)
{
    std::string lines;
    for (const Entry& entry : pEntries)
    {
        lines += std::string(entry.mName) + "," + entry.mPlace + "\n";
        if (*entry.mComment != 0)
            pComments += std::string("--   ") + entry.mName + "  " + entry.mComment + "\n";
    }
    return lines;
}

constexpr char BLINKER[] = R"(<!-- A light that goes on and off. The pictures are areas of blinker.png. -->
<sequence name="blinker">
  <framelist>
    <frame x="0" y="0" w="32" h="32" regx="16" regy="16"/>
    <frame x="0" y="0" w="32" h="32" regx="16" regy="16" alpha="0.3"/>
  </framelist>
  <timeline name="main" frametime="600">
    <key frame="1"/>
    <key frame="2"/>
    <key jumpto="0"/>
  </timeline>
</sequence>
)";

constexpr char PARTICLES[] = R"(alphaMode = add ;
maxParticles = 10 ;
particleLifeMs = 4000 ;
emitSpeed = 2 ;
emitPosXY = 0,0 rndRangeXY = 120,40 ;
velocityXY = 4,-12 rndRangeXY = 6,4 ;
scale = 0.5 rndRange = 0.2 ;
colourGraph = ffffff00, ffffffa0, 1500, ffffff00, 2500 ;
prerun = 4000 ;
)";
} // namespace

bool znCNewScene::nameCheck(const std::string& pName) const
{
    const bool spelt = isName(pName);
    if (!spelt)
        std::fprintf(stderr, "'%s': a scene's name has small letters, digits and '_' only\n", pName.c_str());
    else if (fs::exists(mData / "scenes" / pName))
        std::fprintf(stderr, "there is a scene %s already\n", pName.c_str());
    return spelt && !fs::exists(mData / "scenes" / pName);
}

bool znCNewScene::isName(const std::string& pName)
{
    return !pName.empty() && pName.find_first_not_of("abcdefghijklmnopqrstuvwxyz0123456789_") == std::string::npos;
}

bool znCNewScene::make(const std::string& pName)
{
    if (!nameCheck(pName))
        return false;
    const fs::path folder = mData / "scenes" / pName;
    std::error_code error;
    fs::create_directories(folder, error);
    fs::create_directories(mData / "particles", error);
    picturesMake(folder);
    std::string comments;
    const std::string motes = pName + "_motes";
    std::string coords = "BackgroundRoom.png,0,0\n" + entriesGet(ENTRIES, comments);
    coords += "ANM-blinker.xml,430,60\nPAR-" + motes + ",-300,-40\n";
    coords += "BackgroundChest.png,0,-60\n" + entriesGet(CLOSE_UP_ENTRIES, comments);
    textWrite(folder / "coords.txt", coords);
    textWrite(folder / "anm-blinker.xml", BLINKER);
    textWrite(mData / "particles" / (motes + ".txt"),
              "# Motes in the light.\nimageFileName = scenes/" + pName + "/mote.png ;\n" + PARTICLES);
    textWrite(
        folder / (pName + ".txt"),
        "-- The scene " + pName + ". docs/scenes.md tells all keys; what stands in coords.txt:\n" +
            "--   BackgroundRoom.png  the room; each further Background begins a close-up\n" + comments +
            "--   ANM-blinker.xml  an animation\n--   PAR-" + motes + "  particles of data/particles\n" +
            "-- Later lines of coords.txt lie over earlier ones. Places are the middles of pictures, from the middle\n"
            "-- of the screen. Pictures are in lower case on the disk, with an even width and height.\n"
            "numHogItems = \"6\",\n"
            "-- What follows. Let another scene's ACT1NextLev lead here.\n"
            "ACT1NextLev = \"gui/mainMenu/mainMenu.txt\",\n");
    if (mWritten && titleAdd(pName))
        return true;
    fs::remove_all(folder, error);
    fs::remove(mData / "particles" / (motes + ".txt"), error);
    mFiles.clear();
    return false;
}

bool znCNewScene::titleAdd(const std::string& pName)
{
    std::string title = pName;
    title[0] = static_cast<char>(std::toupper(static_cast<unsigned char>(title[0])));
    return stringAdd(pName + "Title", title);
}

void znCNewScene::picturesMake(const fs::path& pFolder)
{
    const auto write = [&](const std::string& pName, const znSPicture& pPicture)
    {
        mWritten = mWritten && znNWholeFile::pictureWrite(pFolder / lowerGet(pName), pPicture);
        mFiles.push_back(pFolder / lowerGet(pName));
    };
    write("BackgroundRoom.png", roomMake(CANVAS_WIDTH, CANVAS_HEIGHT, {128, 150, 158}, {150, 128, 104}));
    write("BackgroundChest.png", roomMake(CLOSE_UP_WIDTH, CLOSE_UP_HEIGHT, {110, 80, 54}, {90, 64, 44}));
    write("blinker.png", shapeMake(0, 32, {255, 240, 160}));
    write("mote.png", shapeMake(0, 8, {255, 255, 255}));
    for (const Entry& entry : ENTRIES)
        if (entry.mSize > 0)
            write(entry.mName, shapeMake(entry.mSides, entry.mSize, entry.mColour));
    for (const Entry& entry : CLOSE_UP_ENTRIES)
        write(entry.mName, shapeMake(entry.mSides, entry.mSize, entry.mColour));
}

void znCNewScene::textWrite(const fs::path& pFile, const std::string& pText)
{
    mWritten = mWritten && znNWholeFile::textWrite(pFile, pText);
    mFiles.push_back(pFile);
}

// Into the spreadsheet, or the table if there is no spreadsheet.
bool znCNewScene::stringAdd(const std::string& pKey, const std::string& pText)
{
    const bool sheet = fs::exists(mData / "strings.xml");
    const fs::path file = mData / (sheet ? "strings.xml" : "strings.txt");
    std::ifstream in(file, std::ios::binary);
    std::string text{std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
    const auto cell = [](const std::string& pValue)
    {
        return "    <Cell><Data ss:Type=\"String\">" + pValue + "</Data></Cell>\n";
    };
    const auto end = text.find("  </Table>");
    if (sheet && end == std::string::npos)
        return std::fprintf(stderr, "%s has no table to put %s into\n", file.c_str(), pKey.c_str()), false;
    if (sheet)
        text.insert(end, "   <Row>\n" + cell(pKey) + cell(pText) + "   </Row>\n");
    else
        text += pKey + " = \"" + pText + "\",\r\n";
    textWrite(file, text);
    return mWritten;
}
