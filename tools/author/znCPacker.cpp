#include "tools/author/znCPacker.h"

#include "tools/author/znNPageLayout.h"
#include "tools/author/znNText.h"
#include "tools/author/znNWholeFile.h"
#include "znappcore/components/znCSpriteComponent.h"
#include "znappcore/src/znCBrush.h"
#include "znappcore/src/znCBrushManager.h"
#include "znappcore/src/znCEntity.h"
#include "zncore/znCResourceName.h"
#include "znhogcore/znIHogLevel.h"

#include <algorithm>
#include <cstdio>
#include <set>

namespace
{
namespace fs = std::filesystem;

constexpr char PICTURE[] = ".png";
constexpr char LIST[] = ".txt";
constexpr char PAGE[] = "texturepage";
constexpr char BACKGROUND_MARK[] = "background";
constexpr char LINE_END[] = "\r\n";
constexpr s32 FRAMES = 90; // until lists have filled their slots

bool refused(const std::string& pWhy)
{
    return std::fprintf(stderr, "%s\n", pWhy.c_str()), false;
}

// With its edge repeated around it.
void paint(const znSPicture& pPicture, s32 pX, s32 pY, znSPicture& pPage)
{
    for (s32 y = -znCPacker::EDGE; y < pPicture.mHeight + znCPacker::EDGE; ++y)
        for (s32 x = -znCPacker::EDGE; x < pPicture.mWidth + znCPacker::EDGE; ++x)
            std::copy_n(pPicture.at(std::clamp(x, 0, pPicture.mWidth - 1), std::clamp(y, 0, pPicture.mHeight - 1)), 4,
                        pPage.at(pX + x, pY + y));
}
} // namespace

bool znCPacker::sceneOpen(const std::string& pScene)
{
    mMoved.clear();
    mPages.clear();
    mTooLarge.clear();
    mGame.reset(); // only one may live
    mGame = std::make_unique<znCAuthorGame>(mData);
    mFolder = znIHogLevel::folderOfGet(pScene);
    mGame->open(pScene);
    const znIHogLevel* level = znIHogLevel::levelGet();
    if (level == nullptr || level->levelNameGet() != pScene)
        return refused("there is no scene " + pScene + " in " + mData.string());
    return true;
}

znCPacker::Cost znCPacker::costGet(const std::string& pScene)
{
    Cost cost;
    if (!sceneOpen(pScene))
        return cost;
    mGame->framesRun(FRAMES);
    const s32 before = mGame->mPlatform.mDraw.mRunCount;
    mGame->framesRun(1);
    cost.mRuns = mGame->mPlatform.mDraw.mRunCount - before;
    for (const auto& [file, content] : mGame->filesGet())
        cost.mFiles += file.starts_with(mFolder) && mGame->askedGet(file);
    return cost;
}

// What stands on the scene's pages now, by the game's own reading.
bool znCPacker::pagesRead()
{
    mOnPages.clear();
    mLists.clear();
    mImages.clear();
    znCBrushManager* brushes = znCBrushManager::instanceGet();
    mGame->complaintsTake();
    for (std::string list; mGame->fileExists(list = mFolder + PAGE + std::to_string(mLists.size()) + LIST);)
    {
        brushes->brushesClear();
        brushes->texturePageLoad(znCResourceName(list, znCResourceName::GAME_DATA), false);
        for (const std::string& complaint : mGame->complaintsTake())
            return refused(complaint + " Mend this first.");
        const std::string image = znNText::linesGet(mGame->textGet(list)).front();
        znSPicture page;
        if (!znNPng::decode(mGame->textGet(image), image, page))
            return refused(image + " can't be read; mend this first");
        for (const auto& [name, brush] : brushes->brushesGet())
            mOnPages.push_back(
                {name, znNPng::areaGet(page, brush->xGet(), brush->yGet(), brush->widthGet(), brush->heightGet())});
        mLists.push_back(list);
        mImages.push_back(image);
    }
    return true;
}

// In the order of drawing, once each.
bool znCPacker::loosePicturesRead(Items& pItems)
{
    std::set<std::string> taken;
    for (const znCEntity* entity : znIHogLevel::levelGet()->entitiesWithKindGet<znCSpriteComponent>())
        for (const auto& [name, brush] : znCBrushManager::instanceGet()->brushesGet())
        {
            if (brush != entity->componentFind<znCSpriteComponent>()->brushGet() || !name.starts_with(mFolder) ||
                !name.ends_with(PICTURE) || mGame->filesGet().count(name) == 0 || !mGame->askedGet(name) ||
                name.find(BACKGROUND_MARK, mFolder.size()) != std::string::npos || isNamedElsewhere(name) ||
                !taken.insert(name).second)
                continue;
            Item item{name, {}};
            if (!znNPng::decode(mGame->textGet(name), name, item.mPicture))
                return refused(name + " can't be read; mend this first");
            const bool fits = std::max(item.mPicture.mWidth, item.mPicture.mHeight) + 2 * EDGE <= mSideMax;
            if (fits)
                pItems.push_back(std::move(item));
            else
                mTooLarge.push_back(name);
        }
    return true;
}

// An animation cuts its sheet from the whole of a file, and particles look alike in all scenes.
bool znCPacker::isNamedElsewhere(const std::string& pFile) const
{
    const auto names = [&](const auto& pEntry)
    {
        const auto& [file, content] = pEntry;
        const bool animation = file.ends_with(".xml") && file.starts_with(mFolder);
        const bool other = file.starts_with("particles/") || file.starts_with("gui/");
        return (animation && znNText::lineFind(content, "\"" + znNText::stemGet(pFile) + "\"", false) != 0) ||
               ((animation || (other && file.ends_with(LIST))) && znNText::lineFind(content, pFile, true) != 0);
    };
    return std::any_of(mGame->filesGet().begin(), mGame->filesGet().end(), names);
}

// True also if it doesn't lie loose.
bool znCPacker::looseAsOnPage(const Item& pOnPage) const
{
    znSPicture loose;
    return mGame->filesGet().count(pOnPage.mFile) == 0 ||
           (znNPng::decode(mGame->textGet(pOnPage.mFile), pOnPage.mFile, loose) && loose == pOnPage.mPicture);
}

bool znCPacker::pack(const std::string& pScene)
{
    Items loose;
    if (!sceneOpen(pScene) || !loosePicturesRead(loose) || !pagesRead())
        return false;
    for (const Item& item : mOnPages)
        if (!looseAsOnPage(item))
            return refused(item.mFile +
                           " differs from the picture of that name on a page, which the game shows; remove it, or let "
                           "it count: unpack " +
                           pScene + " --loose-wins");
    std::vector<znNPageLayout::Rectangle> sizes;
    for (const Item& item : loose)
        sizes.push_back({item.mPicture.mWidth + 2 * EDGE, item.mPicture.mHeight + 2 * EDGE});
    auto item = loose.begin();
    for (const znNPageLayout::Page& layout : znNPageLayout::pagesMake(sizes, mSideMax))
    {
        Items items;
        for (const znNPageLayout::Rectangle& place : layout.mRectangles)
        {
            item->mX = place.mX + EDGE;
            item->mY = place.mY + EDGE;
            items.push_back(std::move(*item++));
        }
        if (!pageWrite(items))
            return false;
    }
    for (const Item& twin : mOnPages) // of one on a page
        if (mGame->filesGet().count(twin.mFile) != 0)
            fileRemove(twin.mFile);
    return true;
}

// The page, then its list, which makes it count; then the loose ones go.
bool znCPacker::pageWrite(const Items& pItems)
{
    s32 width = 0;
    s32 height = 0;
    for (const Item& item : pItems)
    {
        width = std::max(width, item.mX + item.mPicture.mWidth + EDGE);
        height = std::max(height, item.mY + item.mPicture.mHeight + EDGE);
    }
    znSPicture page(width + width % 2, height + height % 2);
    const std::string name = mFolder + PAGE + std::to_string(mLists.size());
    std::string list = name + PICTURE + LINE_END;
    for (const Item& item : pItems)
    {
        paint(item.mPicture, item.mX, item.mY, page);
        list += item.mFile + "," + std::to_string(item.mX) + "," + std::to_string(item.mY) + "," +
                std::to_string(item.mPicture.mWidth) + "," + std::to_string(item.mPicture.mHeight) + LINE_END;
    }
    if (mGame->fileExists(name + PICTURE))
        return refused(name + PICTURE + " is there without its list; rename or remove it");
    if (!znNWholeFile::pictureWrite(mData / (name + PICTURE), page) ||
        !znNWholeFile::textWrite(mData / (name + LIST), list))
        return false;
    mLists.push_back(name + LIST);
    mPages.push_back(name + PICTURE);
    for (const Item& item : pItems)
    {
        fileRemove(item.mFile);
        mMoved.push_back(item.mFile);
    }
    return true;
}

bool znCPacker::unpack(const std::string& pScene, bool pLooseWins)
{
    if (!sceneOpen(pScene) || !pagesRead())
        return false;
    for (const Item& item : mOnPages)
        if (!item.mFile.starts_with(mFolder) || item.mFile.find('/', mFolder.size()) != std::string::npos)
            return refused(item.mFile + " stands on a page of " + pScene +
                           " and doesn't belong to it; correct the list");
        else if (!pLooseWins && !looseAsOnPage(item))
            return refused(item.mFile +
                           " lies there and differs from the picture of that name on a page; remove it, or let it "
                           "count: --loose-wins");
    for (const Item& item : mOnPages)
    {
        if (mGame->filesGet().count(item.mFile) != 0)
            continue;
        if (!znNWholeFile::pictureWrite(mData / item.mFile, item.mPicture))
            return false;
        mMoved.push_back(item.mFile);
    }
    // From the last on, since the first number that is missing ends them.
    for (auto list = mLists.rbegin(); list != mLists.rend(); ++list)
        fileRemove(*list);
    for (const std::string& image : mImages)
        fileRemove(image);
    mPages = mImages;
    return true;
}

void znCPacker::fileRemove(const std::string& pFile)
{
    std::error_code error;
    if (!fs::remove(mData / pFile, error) || error)
        refused((mData / pFile).string() + " can't be removed");
}
