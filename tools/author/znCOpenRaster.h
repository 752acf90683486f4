#ifndef TOOLS_AUTHOR_ZNCOPENRASTER_H
#define TOOLS_AUTHOR_ZNCOPENRASTER_H

// A layered OpenRaster file: a zip archive of pictures and a list of what lies where.

#include "tools/author/znCAuthorGame.h"
#include "tools/author/znNPng.h"

#include <filesystem>
#include <string>
#include <vector>

class znIXmlNode;

class znCOpenRaster
{
public:
    static constexpr s64 ENTRY_MAX_BYTES = 256 * 1024 * 1024; // of one file in the archive, unpacked
    static constexpr s32 DEPTH_MAX = 32;                      // of groups within groups
    static constexpr std::size_t LAYERS_MAX = 4000;
    static constexpr std::size_t PICTURES_MAX_BYTES = std::size_t(1) << 30; // of all layers, as they are kept

    struct Layer
    {
        std::string mName;
        s32 mX = 0; // of the picture's corner on the canvas
        s32 mY = 0;
        double mOpacity = 1.0; // 0 to 1, with that of the groups around it
        // Cut to what isn't transparent, even in width and height; of no size if all is. The opacity is not in it.
        znSPicture mPicture;
        std::string mSource; // in the archive
    };

    // The layers outside all groups, or those of an outermost group with all that is in it; the lowest first.
    struct Group
    {
        std::string mName; // "": outside all groups
        std::vector<Layer> mLayers;
    };

    // pGame lends its reader of XML. False if the file isn't of that kind or damaged; faultGet tells why, in a sentence
    // without the file's name.
    bool read(const std::filesystem::path& pFile, znCAuthorGame& pGame);
    const std::string& faultGet() const { return mFault; }
    s32 widthGet() const { return mWidth; }
    s32 heightGet() const { return mHeight; }
    // What lies outside comes first, then the outermost groups, the lowest first; none is empty.
    std::vector<Group>& groupsGet() { return mGroups; }
    const std::vector<std::string>& hiddenGet() const { return mHidden; } // names of what is switched off and left out
    const std::vector<std::string>& blendedGet() const
    {
        return mBlended;
    } // layers of another mode than the normal one

private:
    // Of what stands around a layer.
    struct Around
    {
        s32 mX = 0;
        s32 mY = 0;
        double mOpacity = 1.0;
        s32 mDepth = 0;
    };

    bool archiveRead(const std::filesystem::path& pFile, znCAuthorGame& pGame);
    bool stackRead(znIXmlNode& pStack, const Around& pAround, Group* pGroup);
    bool layerAdd(znIXmlNode& pLayer, const Around& pAround, Group& pGroup);
    bool fail(const std::string& pWhy);

    std::string mFault;
    s32 mWidth = 0;
    s32 mHeight = 0;
    std::vector<Group> mGroups;
    std::size_t mLayerCount = 0;
    std::vector<std::string> mHidden;
    std::vector<std::string> mBlended;
};

#endif
