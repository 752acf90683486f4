#ifndef TESTS_ZNAPPCORE_ZNCPRESENTATIONTEST_H
#define TESTS_ZNAPPCORE_ZNCPRESENTATIONTEST_H

// Fixture of what shows pictures: the test platform, the graphics layer, the renderer, the brush manager and the
// component factory, brought up and taken down in the order of the program.

#include "media/znNGraphics.h"
#include "tests/support/znCTestCore.h"
#include "tests/support/znNTestImages.h"
#include "znappcore/src/znCBrushManager.h"
#include "znappcore/src/znCComponentFactory.h"
#include "znappcore/znINode.h"
#include "znappcore/znIRenderer.h"
#include "zncore/znCResourceName.h"

#include <gtest/gtest.h>

class znCPresentationTest : public testing::Test
{
protected:
    static constexpr s32 MAX_SPRITES = 1024;

    znCPresentationTest()
    {
        znNGraphics::initialise();
        znINode::staticVectorsCreate();
        znIRenderer::create(MAX_SPRITES, MAX_SPRITES);
        znCBrushManager::create();
        znCComponentFactory::create();
    }

    ~znCPresentationTest() override
    {
        znCBrushManager::destroy();
        znIRenderer::destroy();
        znCComponentFactory::destroy();
        znINode::staticVectorsDestroy();
        znNGraphics::terminate();
        EXPECT_EQ(mCore.mPlatform.mDraw.mFaults, std::vector<std::string>());
        EXPECT_TRUE(mCore.mPlatform.mDraw.mTextures.empty());
    }

    // An image of a uniform colour but for the alpha, which pAlpha gives row by row: '.' 0, '-' 1, anything else 255.
    void imageSet(const std::string& pName, s32 pWidth, s32 pHeight, const std::string& pAlpha)
    {
        znNTestImages::Bytes pixels;
        for (s32 i = 0; i < pWidth * pHeight; ++i)
        {
            const char alpha = pAlpha[static_cast<std::size_t>(i) % pAlpha.size()];
            pixels.insert(pixels.end(), {10, 20, 30, static_cast<u8>(alpha == '.' ? 0 : alpha == '-' ? 1 : 255)});
        }
        const znNTestImages::Bytes file = znNTestImages::pngMake(pWidth, pHeight, pixels);
        mCore.mPlatform.mFiles.fileSet(pName, std::string(file.begin(), file.end()));
    }

    static znCBrushPtr brushGet(const std::string& pName, bool pHitMap = false)
    {
        return znCBrushManager::instanceGet()->brushGet(znCResourceName(pName, 0), pHitMap);
    }

    // The log's lines that were written since the last call.
    std::string logTake() { return mCore.mPlatform.logTake(); }

    znCTestCore mCore;
};

#endif
