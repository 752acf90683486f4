#ifndef ZNAPPCORE_ANIMATINGSPRITE_ZNCANIMATIONTIMELINE_H
#define ZNAPPCORE_ANIMATINGSPRITE_ZNCANIMATIONTIMELINE_H

#include "znappcore/animatingSprite/znIKeyFrame.h"

#include <memory>
#include <string>
#include <vector>

// Key frames that follow one another, under a name.
class znCAnimationTimeline
{
public:
    explicit znCAnimationTimeline(const std::string& pName) : mName(pName) {}

    const std::string& nameGet() const { return mName; }
    s32 keyFrameCountGet() const { return static_cast<s32>(mKeyFrames.size()); }
    // pIndex from 0 to keyFrameCountGet() - 1.
    const znIKeyFrame& keyFrameGet(s32 pIndex) const { return *mKeyFrames[static_cast<std::size_t>(pIndex)]; }

    // For the reader of files.
    void keyFrameAdd(std::unique_ptr<znIKeyFrame> pKeyFrame) { mKeyFrames.push_back(std::move(pKeyFrame)); }
    void keyFrameReplace(s32 pIndex, std::unique_ptr<znIKeyFrame> pKeyFrame)
    {
        mKeyFrames[static_cast<std::size_t>(pIndex)] = std::move(pKeyFrame);
    }

private:
    std::vector<std::unique_ptr<znIKeyFrame>> mKeyFrames;
    std::string mName;
};

#endif
