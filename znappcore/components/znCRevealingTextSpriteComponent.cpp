#include "znappcore/components/znCRevealingTextSpriteComponent.h"

#include "zncore/debug/znIDebug.h"
#include "zncore/src/znCVariableTable.h"
#include "zncore/znNCoreUtils.h"

#include <algorithm>

namespace
{
constexpr s32 MS_PER_CHAR_DEFAULT = 1000;
}

void znCRevealingTextSpriteComponent::initialiseFromVariableTableDo(const znCVariableTable& pTable)
{
    znCTextSpriteComponent::initialiseFromVariableTableDo(pTable);
    mDelayedStart = pTable.strGet("delayedStart", "") == "true";
    mMsPerChar = std::max(0, pTable.s32Get("msPerChar", MS_PER_CHAR_DEFAULT));
    textSet(znCTextSpriteComponent::textGet());
}

void znCRevealingTextSpriteComponent::textSet(const std::string& pText)
{
    mFullText = pText;
    reset();
}

std::string znCRevealingTextSpriteComponent::fullTextGet() const
{
    return mFullText;
}

void znCRevealingTextSpriteComponent::reset()
{
    shownClear();
    mRunning = !mDelayedStart;
}

void znCRevealingTextSpriteComponent::trigger()
{
    ZN_ASSERT(!mRunning, "Already running.");
    if (mRunning)
        return;
    shownClear();
    mRunning = true;
}

void znCRevealingTextSpriteComponent::shownClear()
{
    mReadIndex = 0;
    mFinished = false;
    mAccumulatedMs = 0;
    mShownText.clear();
    znCTextSpriteComponent::textSet(mShownText);
}

void znCRevealingTextSpriteComponent::update(s32 pDeltaMs)
{
    znCTextSpriteComponent::update(pDeltaMs);
    if (!mRunning || mFinished)
        return;
    mAccumulatedMs = znNCoreUtils::s32Saturate(static_cast<s64>(mAccumulatedMs) + pDeltaMs);
    const std::size_t shown = mShownText.size();
    while (mAccumulatedMs > mMsPerChar && !mFinished)
    {
        mAccumulatedMs -= mMsPerChar;
        if (mReadIndex >= static_cast<s32>(mFullText.size()))
            mFinished = true;
        else
            characterTake();
    }
    if (mShownText.size() != shown)
        znCTextSpriteComponent::textSet(mShownText);
}

// A tag comes as a whole, so that it never shows half.
void znCRevealingTextSpriteComponent::characterTake()
{
    const std::size_t start = static_cast<std::size_t>(mReadIndex);
    const std::size_t tagEnd = mFullText[start] == '<' ? mFullText.find('>', start) : std::string::npos;
    std::size_t bytes;
    if (tagEnd != std::string::npos)
        bytes = tagEnd + 1 - start;
    else
        bytes = 1 + static_cast<std::size_t>(znNCoreUtils::leadingOnesBelowTop(static_cast<u8>(mFullText[start])));
    bytes = std::min(bytes, mFullText.size() - start);
    mShownText.append(mFullText, start, bytes);
    mReadIndex += static_cast<s32>(bytes);
}
