#ifndef MEDIA_ZNCFRAMEMEMORY_H
#define MEDIA_ZNCFRAMEMEMORY_H

// Scratch memory for one frame: pieces are taken one after another and all given back at once. It grows to the most
// that a frame ever took and from then on takes nothing from the heap. Pieces never move within their frame.

#include <cstddef>
#include <memory>
#include <vector>

#include "zncore/znTypes.h"

class znCFrameMemory
{
public:
    static constexpr std::size_t sAlignment = 16;

    // Never null; valid until frameReset. Not cleared.
    void* take(std::size_t pBytes)
    {
        const std::size_t bytes = (pBytes + sAlignment - 1) & ~(sAlignment - 1);
        if (bytes > mLeft || mNext == nullptr)
            blockAdd(bytes);
        u8* piece = mNext;
        mNext += bytes;
        mLeft -= bytes;
        return piece;
    }

    // Ends the frame: every piece is invalid. A frame that needed several blocks leaves one of their sum.
    void frameReset();

    // Gives all memory back to the heap.
    void free();

    // Bytes held, whether taken or not.
    std::size_t capacityGet() const { return mCapacity; }

private:
    static constexpr std::size_t sBlockBytesMin = 64 * 1024;

    void blockAdd(std::size_t pBytes);

    std::vector<std::unique_ptr<u8[]>> mBlocks;
    u8* mNext = nullptr; // in the last block
    std::size_t mLeft = 0;
    std::size_t mCapacity = 0;
};

#endif
