#ifndef TOOLS_AUTHOR_ZNCFAIRNESS_H
#define TOOLS_AUTHOR_ZNCFAIRNESS_H

// How findable the objects of a scene are. The scene's pictures are put together the way the game paints them, without
// animations, particles and the panel; then each object is held against what surrounds and covers it.

#include "tools/author/znCAuthorGame.h"
#include "tools/author/znNPng.h"

#include <string>
#include <vector>

class znCEntity;

class znCFairness
{
public:
    // Below these a player would call an object unfair.
    static constexpr double IN_SIGHT_LEAST = 0.5; // share of its pixels that nothing covers
    static constexpr s32 SIDE_LEAST = 20;         // canvas units, the shorter side of what is in sight
    static constexpr s32 AREA_LEAST = 300;        // canvas units squared in sight
    static constexpr double OUTLINE_LEAST = 9.0;  // see mOutline
    static constexpr double COLOUR_LEAST = 8.0;   // see mColour
    static constexpr double OVERLAP_MOST = 0.3;
    // What every screen shows: the middle of 4:3, above the panel.
    static constexpr s32 SAFE_X = 512;
    static constexpr s32 SAFE_BOTTOM = 260;

    struct Object
    {
        std::string mName;
        s32 mSubScene = 0;
        double mInSight = 0.0; // 0 to 1, of its opaque pixels
        s32 mWidth = 0;        // of what is in sight
        s32 mHeight = 0;
        s32 mArea = 0;
        double mContrast = 0.0; // of lightness between it and its surroundings, 0 to 100
        double mColour = 0.0;   // distance of the two mean colours (CIE 1976)
        double mOutline = 0.0;  // the same, across its outline, on average
        double mOverlap = 0.0;  // share of the pixels where a press would go to another object
        std::string mTaker;     // the one that most of these go to; "": none
        std::vector<std::string> mWarnings;
        s32 mLeft = 0, mTop = 0; // of what is in sight, in the picture
    };

    explicit znCFairness(const std::filesystem::path& pData) : mGame(pData)
    {
        mGame.mPlatform.mDraw.mRecording = true; // which keeps the pixels of textures
    }

    // False if there is no such scene.
    bool measure(const std::string& pScene);
    const std::vector<Object>& objectsGet() const { return mObjects; }
    // One for the room and each close-up that holds objects: frames around them, red ones with a warning, with their
    // number in the list, from 1.
    bool picturesWrite(const std::filesystem::path& pStart) const;

private:
    // A sprite as it lies on the canvas.
    struct Layer
    {
        const znCEntity* mEntity;
        s32 mLeft, mTop, mWidth, mHeight;
        std::vector<u8> mPixels; // R, G, B multiplied by alpha, A
        bool mPressable;

        u8 alphaGet(s32 pX, s32 pY) const;
    };

    void subSceneMeasure(znCEntity& pSubScene, s32 pIndex);
    bool layerMake(znCEntity& pEntity, Layer& pLayer) const;
    static void layerPaint(const Layer& pLayer, znSPicture& pCanvas);
    void objectMeasure(const std::vector<Layer>& pLayers, std::size_t pIndex, s32 pSubScene, znSPicture& pCanvas);
    void colourMeasure(const std::vector<bool>& pMask, znSPicture& pCanvas, Object& pObject) const;
    static void judge(Object& pObject, bool pSafe);

    znCAuthorGame mGame;
    std::vector<Object> mObjects;
    std::vector<std::pair<s32, znSPicture>> mCanvases;
};

#endif
