#ifndef TOOLS_AUTHOR_ZNCPACKER_H
#define TOOLS_AUTHOR_ZNCPACKER_H

// Puts the loose pictures of a scene onto texture pages, and takes them off again. At every moment each picture lies
// loose or stands on a page, however it ends; where something stands in the way, nothing has changed.

#include "tools/author/znCAuthorGame.h"
#include "tools/author/znNPng.h"

#include <filesystem>
#include <memory>
#include <string>
#include <vector>

class znCPacker
{
public:
    static constexpr s32 SIDE_MAX = 2048; // of a page, pixels; every device takes that
    static constexpr s32 EDGE = 1;        // by so much each picture's edge is repeated around it, for smooth scaling

    // What the scene costs as it opens.
    struct Cost
    {
        s32 mFiles = 0; // of its folder that are read
        s32 mRuns = 0;  // of drawing in a frame, those of the panel included
    };

    explicit znCPacker(const std::filesystem::path& pData, s32 pSideMax = SIDE_MAX) : mData(pData), mSideMax(pSideMax)
    {
    }

    // Makes further pages for what lies loose; backgrounds, JPEG files and what animations or particles name stay as
    // they are. False with a sentence on standard error if something stands in the way.
    bool pack(const std::string& pScene);
    // Makes loose pictures of all pages. pLooseWins: a picture that lies loose too stays as it lies there; otherwise
    // two that differ stand in the way.
    bool unpack(const std::string& pScene, bool pLooseWins);

    Cost costGet(const std::string& pScene);
    // Names below the data folder, of the last call.
    const std::vector<std::string>& movedGet() const { return mMoved; }
    const std::vector<std::string>& pagesGet() const { return mPages; }       // made, or taken apart
    const std::vector<std::string>& tooLargeGet() const { return mTooLarge; } // for any page

private:
    struct Item
    {
        std::string mFile; // below the data folder
        znSPicture mPicture;
        s32 mX = 0; // of the picture's corner on its page
        s32 mY = 0;
    };
    using Items = std::vector<Item>;

    bool sceneOpen(const std::string& pScene);
    bool pagesRead();
    bool loosePicturesRead(Items& pItems);
    bool isNamedElsewhere(const std::string& pFile) const;
    bool looseAsOnPage(const Item& pOnPage) const;
    bool pageWrite(const Items& pItems);
    void fileRemove(const std::string& pFile);

    std::filesystem::path mData;
    s32 mSideMax;
    std::string mFolder; // of the scene, below the data folder, with its slash
    std::unique_ptr<znCAuthorGame> mGame;
    Items mOnPages;
    std::vector<std::string> mLists;  // of the pages that are there
    std::vector<std::string> mImages; // theirs
    std::vector<std::string> mMoved;
    std::vector<std::string> mPages;
    std::vector<std::string> mTooLarge;
};

#endif
