#include "tools/author/znCOpenRaster.h"

#include "tools/author/znNText.h"
#include "zncore/xml/znCXmlIterator.h"
#include "zncore/xml/znIXmlAttribute.h"
#include "zncore/xml/znIXmlNode.h"
#include "zncore/xml/znIXmlParser.h"
#include "zncore/znCResourceName.h"

#include <zip.h>

#include <algorithm>
#include <charconv>
#include <memory>

namespace
{
constexpr char KIND_ENTRY[] = "mimetype";
constexpr char KIND[] = "image/openraster";
constexpr char LIST_ENTRY[] = "stack.xml";
constexpr char LIST_NAME[] = "openraster/stack.xml"; // among the files of the game, while it is read
constexpr char IMAGE[] = "image";
constexpr char STACK[] = "stack";
constexpr char LAYER[] = "layer";
constexpr char NORMAL_MODE[] = "svg:src-over";
constexpr s32 PLACE_MAX = 1000000;

using Archive = std::unique_ptr<zip_t, void (*)(zip_t*)>;

// False if it isn't there, is damaged or too large.
bool entryRead(zip_t* pArchive, const std::string& pName, std::string& pBytes)
{
    zip_stat_t about;
    if (zip_stat(pArchive, pName.c_str(), 0, &about) != 0 || (about.valid & ZIP_STAT_SIZE) == 0 ||
        about.size > static_cast<zip_uint64_t>(znCOpenRaster::ENTRY_MAX_BYTES))
        return false;
    const std::unique_ptr<zip_file_t, int (*)(zip_file_t*)> file(zip_fopen(pArchive, pName.c_str(), 0), zip_fclose);
    pBytes.resize(about.size);
    return file != nullptr && zip_fread(file.get(), pBytes.data(), about.size) == static_cast<zip_int64_t>(about.size);
}

std::string attributeGet(znIXmlNode& pNode, const char* pName, const std::string& pDefault = "")
{
    for (auto attribute = pNode.attributesBegin(); attribute != pNode.attributesEnd(); ++attribute)
        if (attribute->nameGet() == pName)
            return attribute->valueGet();
    return pDefault;
}

// Fractions are cut, as some painters write "12.0".
bool placeRead(const std::string& pText, s32& pPlace)
{
    const auto [end, error] = std::from_chars(pText.data(), pText.data() + pText.size(), pPlace);
    return error == std::errc() && (end == pText.data() + pText.size() || *end == '.') && std::abs(pPlace) <= PLACE_MAX;
}

bool opacityRead(const std::string& pText, double& pOpacity)
{
    const auto [end, error] = std::from_chars(pText.data(), pText.data() + pText.size(), pOpacity);
    return error == std::errc() && pOpacity >= 0.0 && pOpacity <= 1.0;
}
// The area that isn't transparent; false if all is.
bool boundsGet(const znSPicture& pPicture, s32& pX, s32& pY, s32& pWidth, s32& pHeight)
{
    s32 right = -1;
    s32 bottom = -1;
    pX = pPicture.mWidth;
    pY = pPicture.mHeight;
    for (s32 y = 0; y < pPicture.mHeight; ++y)
        for (s32 x = 0; x < pPicture.mWidth; ++x)
            if (pPicture.at(x, y)[3] != 0)
            {
                pX = std::min(pX, x);
                pY = std::min(pY, y);
                right = std::max(right, x);
                bottom = std::max(bottom, y);
            }
    pWidth = right - pX + 1;
    pHeight = bottom - pY + 1;
    return right >= 0;
}

// Cuts the layer to what is painted on it.
void crop(znCOpenRaster::Layer& pLayer)
{
    s32 x, y, width, height;
    if (!boundsGet(pLayer.mPicture, x, y, width, height))
    {
        pLayer.mPicture = znSPicture();
        return;
    }
    znSPicture cut(width + width % 2, height + height % 2);
    for (s32 row = 0; row < height; ++row)
        std::copy_n(pLayer.mPicture.at(x, y + row), 4 * static_cast<std::size_t>(width), cut.at(0, row));
    pLayer.mPicture = std::move(cut);
    pLayer.mX += x;
    pLayer.mY += y;
}
} // namespace

bool znCOpenRaster::fail(const std::string& pWhy)
{
    mFault = pWhy;
    return false;
}

bool znCOpenRaster::read(const std::filesystem::path& pFile, znCAuthorGame& pGame)
{
    mGroups.assign(1, {});
    if (!archiveRead(pFile, pGame))
        return false;
    std::erase_if(mGroups, [](const Group& pGroup) { return pGroup.mLayers.empty(); });
    for (Group& group : mGroups)
        std::reverse(group.mLayers.begin(), group.mLayers.end());
    if (mGroups.size() > 1)
        std::reverse(mGroups.begin() + (mGroups.front().mName.empty() ? 1 : 0), mGroups.end());
    return !mGroups.empty() || fail("holds no layer that is switched on");
}

bool znCOpenRaster::archiveRead(const std::filesystem::path& pFile, znCAuthorGame& pGame)
{
    int error = 0;
    const Archive archive(zip_open(pFile.c_str(), ZIP_RDONLY, &error), zip_discard);
    if (archive == nullptr)
        return fail(error == ZIP_ER_NOENT ? "isn't there"
                                          : "is no OpenRaster file, nor any zip archive, or is damaged");
    std::string text;
    if (!entryRead(archive.get(), KIND_ENTRY, text) || !text.starts_with(KIND))
        return fail("is a zip archive, but no OpenRaster file: it doesn't say image/openraster in its mimetype");
    if (!entryRead(archive.get(), LIST_ENTRY, text))
        return fail("has no list of its layers, stack.xml, or that is damaged");

    pGame.mPlatform.mFiles.fileSet(LIST_NAME, text);
    pGame.complaintsTake();
    const auto parser = znIXmlParser::create();
    const s32 result = parser->parse(znCResourceName(LIST_NAME, znCResourceName::GAME_DATA));
    if (result != znIXmlParser::SUCCESS)
        return fail(std::string("has a list of layers, stack.xml, that can't be read: ") +
                    znIXmlParser::resultTextGet(result));
    const auto image = parser->nodeFind(nullptr, IMAGE);
    const auto stack = image != nullptr ? parser->nodeFind(image, STACK) : nullptr;
    if (stack == nullptr || !placeRead(attributeGet(*image, "w"), mWidth) ||
        !placeRead(attributeGet(*image, "h"), mHeight) || mWidth < 1 || mHeight < 1)
        return fail("has a list of layers, stack.xml, without an image of a width and height and a stack in it");
    if (!stackRead(*stack, {}, nullptr))
        return false;
    std::size_t bytes = 0;
    for (Group& group : mGroups)
        for (Layer& layer : group.mLayers)
        {
            if (!entryRead(archive.get(), layer.mSource, text) || !znNPng::decode(text, layer.mSource, layer.mPicture))
                return fail("has no readable picture " + layer.mSource + " for its layer '" + layer.mName + "'");
            crop(layer);
            bytes += layer.mPicture.mPixels.size();
            if (bytes > PICTURES_MAX_BYTES)
                return fail("has too many large layers for one scene");
        }
    return true;
}

// pGroup: the outermost group; null in what holds all.
bool znCOpenRaster::stackRead(znIXmlNode& pStack, const Around& pAround, Group* pGroup)
{
    if (pAround.mDepth > DEPTH_MAX)
        return fail("has too many groups within one another");
    for (auto child = pStack.childrenBegin(); child != pStack.childrenEnd(); ++child)
    {
        const bool isStack = child->nameGet() == STACK;
        if (!isStack && child->nameGet() != LAYER)
            continue;
        const std::string name = attributeGet(**child, "name");
        if (attributeGet(**child, "visibility", "visible") == "hidden")
        {
            mHidden.push_back(name);
            continue;
        }
        Around around;
        if (!placeRead(attributeGet(**child, "x", "0"), around.mX) ||
            !placeRead(attributeGet(**child, "y", "0"), around.mY) ||
            !opacityRead(attributeGet(**child, "opacity", "1"), around.mOpacity))
            return fail("tells no place or no opacity of its layer '" + name + "'");
        around.mX += pAround.mX;
        around.mY += pAround.mY;
        around.mOpacity *= pAround.mOpacity;
        around.mDepth = pAround.mDepth + 1;
        if (attributeGet(**child, "composite-op", NORMAL_MODE) != NORMAL_MODE)
            mBlended.push_back(name);
        if (isStack && pGroup == nullptr)
        {
            Group group{name.empty() ? "group" : name, {}};
            if (!stackRead(**child, around, &group))
                return false;
            mGroups.push_back(std::move(group));
        }
        else if (isStack ? !stackRead(**child, around, pGroup)
                         : !layerAdd(**child, around, pGroup != nullptr ? *pGroup : mGroups.front()))
            return false;
    }
    return true;
}

bool znCOpenRaster::layerAdd(znIXmlNode& pLayer, const Around& pAround, Group& pGroup)
{
    if (++mLayerCount > LAYERS_MAX)
        return fail("has more than " + std::to_string(LAYERS_MAX) + " layers");
    Layer layer;
    layer.mName = attributeGet(pLayer, "name");
    layer.mX = pAround.mX;
    layer.mY = pAround.mY;
    layer.mOpacity = pAround.mOpacity;
    layer.mSource = attributeGet(pLayer, "src");
    pGroup.mLayers.push_back(std::move(layer));
    return true;
}
