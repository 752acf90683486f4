#include "tools/author/znCFairness.h"

#include "media/znCGraphicsTexture.h"
#include "znappcore/components/znCSpriteComponent.h"
#include "znappcore/src/znCAppSettings.h"
#include "znappcore/src/znCBrush.h"
#include "znappcore/src/znCEntity.h"
#include "znappcore/znITexture.h"
#include "znhogcore/components/znCDraggableKeyComponent.h"
#include "znhogcore/components/znCLockComponent.h"
#include "znhogcore/components/znCSubSceneComponent.h"
#include "znhogcore/components/znICollectableComponent.h"
#include "znhogcore/znIHogLevel.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <map>

namespace
{
constexpr u8 OPAQUE = 128;
constexpr s32 RING = 10;          // how far its surroundings reach, pixels
constexpr s32 OUTLINE_INSIDE = 2; // from where to where colours are compared across the outline
constexpr s32 OUTLINE_OUTSIDE = 3;

using Lab = std::array<double, 3>;

double linearGet(u8 pValue)
{
    const double value = pValue / 255.0;
    return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
}

double labPartGet(double pValue)
{
    return pValue > 216.0 / 24389.0 ? std::cbrt(pValue) : (24389.0 / 27.0 * pValue + 16.0) / 116.0;
}

Lab labGet(const u8* pPixel)
{
    const double r = linearGet(pPixel[0]);
    const double g = linearGet(pPixel[1]);
    const double b = linearGet(pPixel[2]);
    const double x = labPartGet((0.4124 * r + 0.3576 * g + 0.1805 * b) / 0.9505);
    const double y = labPartGet(0.2126 * r + 0.7152 * g + 0.0722 * b);
    const double z = labPartGet((0.0193 * r + 0.1192 * g + 0.9505 * b) / 1.089);
    return {116.0 * y - 16.0, 500.0 * (x - y), 200.0 * (y - z)};
}

double distanceGet(const Lab& pLeft, const Lab& pRight)
{
    return std::hypot(pLeft[0] - pRight[0], pLeft[1] - pRight[1], pLeft[2] - pRight[2]);
}

struct Mean
{
    Lab mSum{};
    s32 mCount = 0;

    void add(const Lab& pLab)
    {
        for (std::size_t i = 0; i < 3; ++i)
            mSum[i] += pLab[i];
        ++mCount;
    }
    Lab get() const
    {
        const double count = std::max(mCount, 1);
        return {mSum[0] / count, mSum[1] / count, mSum[2] / count};
    }
};

bool isObject(const znCEntity& pEntity)
{
    return (pEntity.componentFind<znICollectableComponent>() != nullptr &&
            pEntity.componentFind<znCLockComponent>() == nullptr) ||
           pEntity.componentGet<znCDraggableKeyComponent>() != nullptr;
}

bool isPressable(const znCEntity& pEntity)
{
    return pEntity.componentFind<znICollectableComponent>() != nullptr ||
           pEntity.componentGet<znCDraggableKeyComponent>() != nullptr;
}

// Digits of three columns and five rows, a bit a pixel, rows from the top.
constexpr u16 DIGITS[] = {0x7b6f, 0x2c97, 0x73e7, 0x73cf, 0x5bc9, 0x79cf, 0x79ef, 0x7249, 0x7bef, 0x7bcf};
constexpr s32 DIGIT_SCALE = 3;

void rectangleFill(znSPicture& pPicture, s32 pX, s32 pY, s32 pWidth, s32 pHeight, const std::array<u8, 3>& pColour)
{
    for (s32 y = pY; y < pY + pHeight; ++y)
        for (s32 x = pX; x < pX + pWidth; ++x)
            if (pPicture.holds(x, y))
                std::copy(pColour.begin(), pColour.end(), pPicture.at(x, y));
}

void frameDraw(znSPicture& pPicture, s32 pX, s32 pY, s32 pWidth, s32 pHeight, const std::array<u8, 3>& pColour)
{
    constexpr s32 LINE = 2;
    rectangleFill(pPicture, pX, pY, pWidth, LINE, pColour);
    rectangleFill(pPicture, pX, pY + pHeight - LINE, pWidth, LINE, pColour);
    rectangleFill(pPicture, pX, pY, LINE, pHeight, pColour);
    rectangleFill(pPicture, pX + pWidth - LINE, pY, LINE, pHeight, pColour);
}

void numberDraw(znSPicture& pPicture, s32 pX, s32 pY, s32 pNumber, const std::array<u8, 3>& pColour)
{
    const std::string digits = std::to_string(pNumber);
    const s32 width = static_cast<s32>(digits.size()) * 4 * DIGIT_SCALE + DIGIT_SCALE;
    rectangleFill(pPicture, pX, pY, width, 7 * DIGIT_SCALE, pColour);
    for (std::size_t i = 0; i < digits.size(); ++i)
        for (s32 bit = 0; bit < 15; ++bit)
            if ((DIGITS[digits[i] - '0'] >> (14 - bit)) & 1)
                rectangleFill(pPicture, pX + (static_cast<s32>(i) * 4 + 1 + bit % 3) * DIGIT_SCALE,
                              pY + (1 + bit / 3) * DIGIT_SCALE, DIGIT_SCALE, DIGIT_SCALE, {255, 255, 255});
}
} // namespace

u8 znCFairness::Layer::alphaGet(s32 pX, s32 pY) const
{
    const s32 x = pX - mLeft;
    const s32 y = pY - mTop;
    if (x < 0 || y < 0 || x >= mWidth || y >= mHeight)
        return 0;
    return mPixels[4 * (static_cast<std::size_t>(y) * static_cast<std::size_t>(mWidth) + static_cast<std::size_t>(x)) +
                   3];
}

bool znCFairness::measure(const std::string& pScene)
{
    mGame.open(pScene);
    znIHogLevel* level = znIHogLevel::levelGet();
    if (level == nullptr || level->levelNameGet() != pScene)
        return false;
    for (znCEntity* subScene : level->entitiesWithKindGet<znCSubSceneComponent>())
        subSceneMeasure(*subScene, subScene->componentGet<znCSubSceneComponent>()->indexGet());
    return true;
}

void znCFairness::subSceneMeasure(znCEntity& pSubScene, s32 pIndex)
{
    const s32 width = znCAppSettings::instanceGet()->s32Get("appCanvasW");
    const s32 height = znCAppSettings::instanceGet()->s32Get("appCanvasH");
    znSPicture canvas(width, height);
    for (std::size_t i = 3; i < canvas.mPixels.size(); i += 4)
        canvas.mPixels[i] = 255;
    std::vector<Layer> layers;
    Layer layer;
    if (layerMake(pSubScene, layer))
        layers.push_back(layer);
    for (znINode* child : pSubScene.childrenGet())
        if (auto* entity = dynamic_cast<znCEntity*>(child); entity != nullptr && layerMake(*entity, layer))
            layers.push_back(layer);
    for (Layer& each : layers)
    {
        each.mLeft += width / 2;
        each.mTop += height / 2;
        layerPaint(each, canvas);
    }
    const std::size_t before = mObjects.size();
    for (std::size_t i = 0; i < layers.size(); ++i)
        if (isObject(*layers[i].mEntity))
            objectMeasure(layers, i, pIndex, canvas);
    if (mObjects.size() > before)
        mCanvases.emplace_back(pIndex, std::move(canvas));
}

// Relative to the middle of the canvas.
bool znCFairness::layerMake(znCEntity& pEntity, Layer& pLayer) const
{
    const auto* sprite = pEntity.componentGet<znCSpriteComponent>();
    const znCBrushPtr brush = sprite != nullptr ? sprite->brushGet() : nullptr;
    const znCGraphicsTexture* texture =
        brush != nullptr && brush->textureGet() != nullptr ? brush->textureGet()->graphicsTextureGet() : nullptr;
    const auto found = texture != nullptr ? mGame.mPlatform.mDraw.mTextures.find(texture->idGet())
                                          : mGame.mPlatform.mDraw.mTextures.end();
    if (found == mGame.mPlatform.mDraw.mTextures.end() || found->second.mFormat == S3E_DRAW_ALPHA_8)
        return false;
    const znPoint pos = pEntity.posRelativeToAncestorGet(znIHogLevel::levelGet());
    pLayer = {&pEntity,
              pos.mX - brush->widthGet() / 2,
              pos.mY - brush->heightGet() / 2,
              brush->widthGet(),
              brush->heightGet(),
              {},
              isPressable(pEntity)};
    const s32 bytes = found->second.mFormat == S3E_DRAW_RGB_888 ? 3 : 4;
    for (s32 y = 0; y < pLayer.mHeight; ++y)
        for (s32 x = 0; x < pLayer.mWidth; ++x)
        {
            const auto at =
                static_cast<std::size_t>(((brush->yGet() + y) * found->second.mWidth + brush->xGet() + x) * bytes);
            const u8* pixel = &found->second.mPixels[at];
            pLayer.mPixels.insert(pLayer.mPixels.end(), pixel, pixel + 3);
            pLayer.mPixels.push_back(bytes == 4 ? pixel[3] : 255);
        }
    return true;
}

void znCFairness::layerPaint(const Layer& pLayer, znSPicture& pCanvas)
{
    const u8* source = pLayer.mPixels.data();
    for (s32 y = pLayer.mTop; y < pLayer.mTop + pLayer.mHeight; ++y)
        for (s32 x = pLayer.mLeft; x < pLayer.mLeft + pLayer.mWidth; ++x, source += 4)
            if (pCanvas.holds(x, y))
                for (s32 i = 0; i < 3; ++i)
                    pCanvas.at(x, y)[i] =
                        static_cast<u8>(std::min(255, source[i] + pCanvas.at(x, y)[i] * (255 - source[3]) / 255));
}

void znCFairness::objectMeasure(const std::vector<Layer>& pLayers, std::size_t pIndex, s32 pSubScene,
                                znSPicture& pCanvas)
{
    const Layer& own = pLayers[pIndex];
    Object object;
    object.mName = own.mEntity->nameGet();
    object.mSubScene = pSubScene;
    std::vector<bool> mask(pCanvas.mPixels.size() / 4);
    s32 opaque = 0;
    s32 pressable = 0;
    s32 taken = 0;
    std::map<std::string, s32> takers;
    s32 right = std::numeric_limits<s32>::min();
    s32 bottom = right;
    object.mLeft = object.mTop = std::numeric_limits<s32>::max();
    for (s32 y = own.mTop; y < own.mTop + own.mHeight; ++y)
        for (s32 x = own.mLeft; x < own.mLeft + own.mWidth; ++x)
        {
            const auto above = [&](auto pTest)
            {
                return std::any_of(pLayers.begin() + static_cast<std::ptrdiff_t>(pIndex) + 1, pLayers.end(), pTest);
            };
            const u8 alpha = own.alphaGet(x, y);
            pressable += alpha > 0;
            if (alpha > 0)
                for (std::size_t i = pLayers.size() - 1; i > pIndex; --i)
                    if (pLayers[i].mPressable && pLayers[i].alphaGet(x, y) > 0)
                    {
                        ++taken;
                        ++takers[pLayers[i].mEntity->nameGet()];
                        break;
                    }
            if (alpha < OPAQUE)
                continue;
            ++opaque;
            if (!pCanvas.holds(x, y) || above([&](const Layer& pOther) { return pOther.alphaGet(x, y) >= OPAQUE; }))
                continue;
            mask[static_cast<std::size_t>(y * pCanvas.mWidth + x)] = true;
            ++object.mArea;
            object.mLeft = std::min(object.mLeft, x);
            object.mTop = std::min(object.mTop, y);
            right = std::max(right, x);
            bottom = std::max(bottom, y);
        }
    if (object.mArea > 0)
    {
        object.mWidth = right - object.mLeft + 1;
        object.mHeight = bottom - object.mTop + 1;
        colourMeasure(mask, pCanvas, object);
    }
    else
        object.mLeft = std::max(own.mLeft, 0), object.mTop = std::max(own.mTop, 0);
    object.mInSight = opaque > 0 ? static_cast<double>(object.mArea) / opaque : 0.0;
    object.mOverlap = pressable > 0 ? static_cast<double>(taken) / pressable : 0.0;
    for (const auto& [name, pixels] : takers)
        if (object.mTaker.empty() || pixels > takers[object.mTaker])
            object.mTaker = name;
    const s32 middleX = own.mLeft + own.mWidth / 2 - pCanvas.mWidth / 2;
    const s32 middleY = own.mTop + own.mHeight / 2 - pCanvas.mHeight / 2;
    judge(object, std::abs(middleX) <= SAFE_X && middleY <= SAFE_BOTTOM);
    mObjects.push_back(object);
}

void znCFairness::colourMeasure(const std::vector<bool>& pMask, znSPicture& pCanvas, Object& pObject) const
{
    const auto masked = [&](s32 pX, s32 pY)
    {
        return pCanvas.holds(pX, pY) && pMask[static_cast<std::size_t>(pY * pCanvas.mWidth + pX)];
    };
    Mean inside;
    Mean outside;
    double across = 0.0;
    s32 crossings = 0;
    for (s32 y = pObject.mTop - RING; y < pObject.mTop + pObject.mHeight + RING; ++y)
        for (s32 x = pObject.mLeft - RING; x < pObject.mLeft + pObject.mWidth + RING; ++x)
        {
            if (!pCanvas.holds(x, y))
                continue;
            (masked(x, y) ? inside : outside).add(labGet(pCanvas.at(x, y)));
            if (!masked(x, y))
                continue;
            constexpr std::array<std::array<s32, 2>, 4> WAYS = {{{1, 0}, {-1, 0}, {0, 1}, {0, -1}}};
            for (const auto& [stepX, stepY] : WAYS)
            {
                const s32 inX = x - stepX * OUTLINE_INSIDE;
                const s32 inY = y - stepY * OUTLINE_INSIDE;
                const s32 outX = x + stepX * OUTLINE_OUTSIDE;
                const s32 outY = y + stepY * OUTLINE_OUTSIDE;
                if (masked(x + stepX, y + stepY) || masked(outX, outY) || !masked(inX, inY) ||
                    !pCanvas.holds(outX, outY))
                    continue;
                across += distanceGet(labGet(pCanvas.at(inX, inY)), labGet(pCanvas.at(outX, outY)));
                ++crossings;
            }
        }
    pObject.mContrast = std::fabs(inside.get()[0] - outside.get()[0]);
    pObject.mColour = distanceGet(inside.get(), outside.get());
    pObject.mOutline = crossings > 0 ? across / crossings : pObject.mColour;
}

void znCFairness::judge(Object& pObject, bool pSafe)
{
    const auto warn = [&pObject](bool pUnfair, const std::string& pText)
    {
        if (pUnfair)
            pObject.mWarnings.push_back(pText);
    };
    warn(pObject.mInSight < IN_SIGHT_LEAST, "mostly covered");
    warn(pObject.mArea > 0 && (std::min(pObject.mWidth, pObject.mHeight) < SIDE_LEAST || pObject.mArea < AREA_LEAST),
         "too small");
    warn(pObject.mArea > 0 && pObject.mOutline < OUTLINE_LEAST && pObject.mColour < COLOUR_LEAST,
         "the colour of its surroundings");
    warn(pObject.mOverlap > OVERLAP_MOST, "presses go to another object: " + pObject.mTaker);
    warn(!pSafe, "not on every screen: off the middle of 4:3, or under the panel");
}

bool znCFairness::picturesWrite(const std::filesystem::path& pStart) const
{
    bool written = true;
    for (const auto& [index, canvas] : mCanvases)
    {
        znSPicture picture = canvas;
        for (std::size_t i = 0; i < mObjects.size(); ++i)
        {
            const Object& object = mObjects[i];
            if (object.mSubScene != index)
                continue;
            const std::array<u8, 3> colour =
                object.mWarnings.empty() ? std::array<u8, 3>{0, 110, 40} : std::array<u8, 3>{200, 0, 20};
            frameDraw(picture, object.mLeft - 3, object.mTop - 3, object.mWidth + 6, object.mHeight + 6, colour);
            numberDraw(picture, object.mLeft - 3, object.mTop - 3, static_cast<s32>(i) + 1, colour);
        }
        const std::string tail = index == 0 ? ".png" : "-" + std::to_string(index) + ".png";
        written = znNPng::write(pStart.string() + tail, picture) && written;
    }
    return written;
}
