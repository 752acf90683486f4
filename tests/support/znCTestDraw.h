#ifndef TESTS_SUPPORT_ZNCTESTDRAW_H
#define TESTS_SUPPORT_ZNCTESTDRAW_H

// The petrelDraw table, recorded: the textures that exist, with their pixels, and the runs of each frame. Nothing is
// drawn. Streams are copied at flush and no earlier, so that one that dies too soon is seen by AddressSanitizer.
// What a caller does against the contract (an unknown texture, a vertex count that is no multiple of 4, present without
// flush ...) goes into mFaults, which a test expects to be empty.

#include "zncore/impl/platform/s3eExtensions.h"
#include <map>
#include <string>
#include <vector>

class znCTestDraw
{
public:
    struct Texture
    {
        s32 mFormat;
        s32 mWidth;
        s32 mHeight;
        std::vector<u8> mPixels; // rows without gaps; empty when it was made without recording
        s32 mUpdateCount = 0;
    };

    struct Run
    {
        u32 mTexture;
        u32 mBlend;
        u32 mColour;
        s32 mVertexCount;
        std::vector<float> mPositions;
        std::vector<float> mUvs;   // empty when there were none
        std::vector<u32> mColours; // empty when mColour counts
        bool mUnchanged;           // said to be those of the flush before
    };

    // --- for the test ---
    bool mPresent = true;   // s3eExtGetHash finds the table
    bool mRecording = true; // off: runs are counted only, nothing is allocated, and new textures keep no pixels
    s32 mSizeLimit = 8192;
    s32 mCreateFailCount = 0; // so many of the next textureCreate calls fail; -1: all
    std::map<u32, Texture> mTextures;
    std::vector<Run> mFrame;     // what was flushed since the last clear
    std::vector<Run> mPresented; // the frame that was presented last
    u32 mClearColour = 0;
    s32 mClearCount = 0;
    s32 mFlushCount = 0;
    s32 mPresentCount = 0;
    s32 mRunCount = 0;    // since the start
    s32 mVertexCount = 0; // since the start
    std::vector<std::string> mFaults;

    // --- for the table ---
    u32 textureCreate(s32 pFormat, s32 pWidth, s32 pHeight, const void* pPixels, s32 pPitch);
    s3eResult textureUpdate(u32 pTexture, s32 pX, s32 pY, s32 pWidth, s32 pHeight, const void* pPixels, s32 pPitch);
    void textureFree(u32 pTexture);
    void clear(u32 pColour);
    void runAdd(const s3eDrawRun* pRun);
    void flush();
    void present();
    s3eResult pixelsRead(s32 pX, s32 pY, s32 pWidth, s32 pHeight, void* pPixels); // the clear colour everywhere

private:
    void runCheck(const s3eDrawRun& pRun);
    void unchangedCheck();

    std::vector<s3eDrawRun> mQueued;
    std::vector<Run> mFlushed; // by the flush before
    u32 mNextTexture = 1;
};

#endif
