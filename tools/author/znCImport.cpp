#include "tools/author/znCImport.h"

#include "tools/author/znCNewScene.h"
#include "tools/author/znNText.h"
#include "tools/author/znNWholeFile.h"
#include "znhogcore/components/znCHogLevelLoaderComponent.h"
#include "znhogcore/components/znCNameComponent.h"
#include "znhogcore/src/znCHogEntityFactory.h"
#include "znhogcore/znIHogLevel.h"

#include <algorithm>
#include <cstdio>

namespace
{
namespace fs = std::filesystem;

constexpr char PICTURE[] = ".png";
constexpr char ANIMATION[] = ".xml";
constexpr char BACKGROUND[] = "Background";
constexpr char COMMON_MARK[] = "CMN-";
constexpr char PLAIN[] = "MASK-";
constexpr char LETTERS[] = "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789_-+.";
constexpr s32 ITEMS_MOST = 12;

std::string prefixGet(const std::string& pName)
{
    return znCHogEntityFactory::instanceGet()->entityPrefixGet(znCNameComponent::baseNameFromNodeName(pName));
}

// Kinds that show no picture of the scene's own.
bool isPlaceOnly(const std::string& pName)
{
    const std::string prefix = prefixGet(pName);
    return prefix == "TSK-" || prefix == "PAR-" || prefix == "ANM-" || pName.find(COMMON_MARK) != std::string::npos;
}

std::string extensionOf(const std::string& pName)
{
    const std::string prefix = prefixGet(pName);
    if (prefix == "ANM-")
        return ANIMATION;
    return prefix == "TSK-" || prefix == "PAR-" ? "" : PICTURE;
}

std::string lineGet(const std::string& pName, s32 pX, s32 pY)
{
    return pName + "," + std::to_string(pX) + "," + std::to_string(pY) + "\n";
}

std::string fieldGet(const std::string& pLine)
{
    const std::string field = pLine.substr(0, pLine.find(','));
    const auto begin = field.find_first_not_of(" \t");
    return begin == std::string::npos ? "" : field.substr(begin, field.find_last_not_of(" \t") - begin + 1);
}
} // namespace

bool znCImport::import(const fs::path& pFile, const std::string& pScene)
{
    mScene = pScene;
    mFolder = znIHogLevel::folderOfGet(pScene);
    mGame = std::make_unique<znCAuthorGame>(mData);
    mGame->open("");
    znCOpenRaster picture;
    if (!znCNewScene::isName(pScene))
        wrong("'" + pScene + "': a scene's name has small letters, digits and '_' only");
    else if (!picture.read(pFile, *mGame))
        wrong(picture.faultGet());
    mWidth = picture.widthGet();
    mHeight = picture.heightGet();
    for (const std::string& layer : picture.hiddenGet())
        mNotes.push_back("'" + layer + "' is switched off and left out");
    for (const std::string& layer : picture.blendedGet())
        mNotes.push_back("'" + layer + "' has a mode of its own, which the game doesn't know; it lies over the others");
    if (mWrong.empty())
        for (znCOpenRaster::Group& group : picture.groupsGet())
            groupTake(group);
    if (mWrong.empty())
        pagesCheck();
    for (const std::string& what : mWrong)
        std::fprintf(stderr, "%s: %s\n", pFile.c_str(), what.c_str());
    if (!mWrong.empty())
        return false;
    entriesKeep();
    tableMake();
    const bool titled =
        znNText::lineFind(mGame->textGet("strings.xml") + mGame->textGet("strings.txt"), pScene + "Title", true) != 0;
    return filesWrite() && (titled || znCNewScene(mData).titleAdd(pScene));
}

void znCImport::groupTake(znCOpenRaster::Group& pGroup)
{
    if (!backgroundName(pGroup))
        return;
    for (znCOpenRaster::Layer& layer : pGroup.mLayers)
    {
        const bool lowest = &layer == &pGroup.mLayers.front();
        if (!lowest && layer.mName.find(BACKGROUND) != std::string::npos)
            wrong("'" + layer.mName +
                  "' is a background with a layer below it; put it lowest, or into a group of its own");
        else
            layerTake(layer);
    }
}

// The lowest layer is the background, under whatever name.
bool znCImport::backgroundName(znCOpenRaster::Group& pGroup)
{
    std::string& name = pGroup.mLayers.front().mName;
    const std::string where = pGroup.mName.empty() ? "the room" : "the group '" + pGroup.mName + "'";
    if (name.find(BACKGROUND) != std::string::npos)
        return true;
    if (prefixGet(name) != PLAIN)
    {
        wrong("the lowest layer of " + where + " is '" + name + "'; put its background below it");
        return false;
    }
    std::string place = pGroup.mName.empty() ? mScene : pGroup.mName;
    place[0] = static_cast<char>(std::toupper(static_cast<unsigned char>(place[0])));
    mNotes.push_back("'" + name + "', the lowest of " + where + ", is its background: " + BACKGROUND + place);
    name = BACKGROUND + place;
    return true;
}

void znCImport::layerTake(znCOpenRaster::Layer& pLayer)
{
    std::string name;
    if (!nameRead(pLayer.mName, name))
        return;
    znSPicture& picture = pLayer.mPicture;
    if (picture.mPixels.empty())
    {
        mNotes.push_back("'" + pLayer.mName + "' is empty and left out");
        return;
    }
    if (!mNames.insert(znNText::lowerGet(name)).second)
        return wrong("two layers are called '" + name + "'; tell things of one kind apart by -m1 to -m9");
    for (std::size_t i = 3; i < picture.mPixels.size(); i += 4)
        picture.mPixels[i] = static_cast<u8>(picture.mPixels[i] * pLayer.mOpacity + 0.5);
    mEntries.push_back(
        {name, pLayer.mX + picture.mWidth / 2 - mWidth / 2, pLayer.mY + picture.mHeight / 2 - mHeight / 2});
    if (!isPlaceOnly(name))
        mPictures[mFolder + znNText::lowerGet(name)] = std::move(picture);
}

// The entry's name: the layer's, blanks turned into "_", with the extension of its kind.
bool znCImport::nameRead(const std::string& pLayerName, std::string& pName)
{
    pName = pLayerName;
    for (const char* extension : {PICTURE, ANIMATION})
        if (pName.ends_with(extension))
            pName.erase(pName.size() - std::char_traits<char>::length(extension));
    std::replace(pName.begin(), pName.end(), ' ', '_');
    const bool good = !pName.empty() && pName.find_first_not_of(LETTERS) == std::string::npos && pName[0] != '.' &&
                      pName.size() + 4 <= znCHogLevelLoaderComponent::NAME_MAX_BYTES;
    if (!good)
        wrong("'" + pLayerName +
              "' can't be the name of a file: rename the layer, of letters, digits, '_', '-' and '+'");
    else
        pName += extensionOf(pName);
    return good;
}

// A page that holds a picture of that name would hide the new one.
void znCImport::pagesCheck()
{
    for (const auto& [file, content] : mGame->filesGet())
        if (file.starts_with(mFolder + "texturepage") && file.ends_with(".txt"))
            for (const auto& [name, picture] : mPictures)
                if (znNText::lineFind(content, name, true) != 0)
                    return wrong(name + " stands on " + file + ", which would hide the layer; first: unpack " + mScene +
                                 " --loose-wins");
}

// What has a place and no picture may have been written by hand: it stays behind the entry that it followed.
void znCImport::entriesKeep()
{
    std::vector<std::string> before; // bare names of the entries above, in lower case
    for (const std::string& line : znNText::linesGet(mGame->textGet(mFolder + znCHogLevelLoaderComponent::COORDS_FILE)))
    {
        const std::string name = fieldGet(line);
        const std::string rest = line.substr(std::min(line.size(), line.find(',') + 1));
        int x = 0;
        int y = 0;
        if (name.empty() || std::sscanf(rest.c_str(), "%d,%d", &x, &y) != 2)
            continue;
        before.push_back(znNText::stemGet(znNText::lowerGet(name)));
        if (!isPlaceOnly(name) || !mNames.insert(znNText::lowerGet(name)).second)
            continue;
        auto place = mEntries.begin();
        for (auto above = before.rbegin() + 1; above != before.rend() && place == mEntries.begin(); ++above)
        {
            const auto found = std::find_if(mEntries.begin(), mEntries.end(),
                                            [&above](const Entry& pEntry)
                                            { return znNText::stemGet(znNText::lowerGet(pEntry.mName)) == *above; });
            place = found == mEntries.end() ? place : found + 1;
        }
        mEntries.insert(place == mEntries.begin() ? place + 1 : place, {name, x, y});
        mNotes.push_back(name + " has no layer and stays where it was");
    }
    std::string coords;
    for (const Entry& entry : mEntries)
        coords += lineGet(entry.mName, entry.mX, entry.mY);
    mTexts[mFolder + znCHogLevelLoaderComponent::COORDS_FILE] = coords;
}

// Only of a new scene.
void znCImport::tableMake()
{
    const std::string table = mFolder + mScene + ".txt";
    if (mGame->fileExists(table))
        return;
    std::set<std::string> words;
    for (const Entry& entry : mEntries)
        if (const std::string prefix = prefixGet(entry.mName); prefix == "PCK-" || prefix == "HDN-" || prefix == "REQ-")
            words.insert(znCNameComponent::baseNameFromNodeName(entry.mName));
    mTexts[table] = "-- The scene " + mScene + "; docs/scenes.md tells all keys.\nnumHogItems = \"" +
                    std::to_string(std::min(static_cast<s32>(words.size()), ITEMS_MOST)) +
                    "\",\n-- What follows. Let another scene's ACT1NextLev lead here.\nACT1NextLev = "
                    "\"gui/mainMenu/mainMenu.txt\",\n";
}

// All beside their places first, then each into its place, the list of entries last.
bool znCImport::filesWrite()
{
    std::error_code error;
    const bool isNew = fs::create_directories(mData / mFolder, error);
    bool written = !error;
    for (const auto& [name, picture] : mPictures)
        written = written && znNWholeFile::pictureDraft(mData / name, picture);
    for (const auto& [name, text] : mTexts)
        written = written && znNWholeFile::textDraft(mData / name, text);
    for (const auto& [name, picture] : mPictures)
        mFiles.push_back(name);
    const std::string list = mFolder + znCHogLevelLoaderComponent::COORDS_FILE;
    for (const auto& [name, text] : mTexts)
        if (name != list)
            mFiles.push_back(name);
    mFiles.push_back(list);
    for (const std::string& file : mFiles)
        if (written)
            written = znNWholeFile::draftTake(mData / file);
        else
            znNWholeFile::draftDrop(mData / file);
    if (!written)
    {
        std::fprintf(stderr, "%s can't be written\n", (mData / mFolder).c_str());
        if (isNew)
            fs::remove(mData / mFolder, error);
    }
    return written;
}
