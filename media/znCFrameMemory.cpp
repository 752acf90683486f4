#include "media/znCFrameMemory.h"

#include <algorithm>

void znCFrameMemory::blockAdd(std::size_t pBytes)
{
    // As much again as all blocks so far, so that a growing frame needs few of them.
    const std::size_t bytes = std::max({pBytes, mCapacity, sBlockBytesMin});
    mBlocks.push_back(std::make_unique_for_overwrite<u8[]>(bytes));
    mNext = mBlocks.back().get();
    mLeft = bytes;
    mCapacity += bytes;
}

void znCFrameMemory::frameReset()
{
    if (mBlocks.size() > 1)
    {
        const std::size_t bytes = mCapacity;
        free();
        blockAdd(bytes);
    }
    if (!mBlocks.empty())
    {
        mNext = mBlocks.back().get();
        mLeft = mCapacity;
    }
}

void znCFrameMemory::free()
{
    mBlocks.clear();
    mNext = nullptr;
    mLeft = 0;
    mCapacity = 0;
}
