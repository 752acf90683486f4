#include "media/znCFrameMemory.h"

#include <cstdint>
#include <cstring>

#include <gtest/gtest.h>

#include "tests/support/allocationCount.h"

namespace
{
// Takes pieces of growing size and fills each, so that a piece that overlaps another or leaves its block is seen.
void frameTake(znCFrameMemory* pMemory, s32 pPieces)
{
    std::vector<u8*> pieces;
    pieces.reserve(static_cast<std::size_t>(pPieces));
    const auto bytes = [](s32 pPiece)
    {
        return static_cast<std::size_t>(pPiece * 37 % 5000);
    };
    for (s32 i = 0; i < pPieces; ++i)
    {
        pieces.push_back(static_cast<u8*>(pMemory->take(bytes(i))));
        ASSERT_EQ(reinterpret_cast<std::uintptr_t>(pieces.back()) % znCFrameMemory::sAlignment, 0u);
        std::memset(pieces.back(), i, bytes(i));
    }
    for (s32 i = 0; i < pPieces; ++i)
        for (std::size_t at = 0; at < bytes(i); ++at)
            ASSERT_EQ(pieces[static_cast<std::size_t>(i)][at], static_cast<u8>(i));
}
} // namespace

TEST(znCFrameMemory, GrowsToTheFullestFrameAndThenTakesNothingFromTheHeap)
{
    znCFrameMemory memory;
    EXPECT_EQ(memory.capacityGet(), 0u);
    for (const s32 pieces : {3, 500, 2, 1})
    {
        frameTake(&memory, pieces);
        memory.frameReset();
    }
    const std::size_t capacity = memory.capacityGet();
    const std::size_t allocations = allocationCountGet();
    void* const first = memory.take(1);
    for (s32 frame = 0; frame < 10; ++frame)
    {
        memory.frameReset();
        EXPECT_EQ(memory.take(1), first);
        for (s32 i = 0; i < 500; ++i)
            memory.take(static_cast<std::size_t>(i * 37 % 5000));
    }
    EXPECT_EQ(allocationCountGet(), allocations);
    EXPECT_EQ(memory.capacityGet(), capacity);
    memory.free();
    EXPECT_EQ(memory.capacityGet(), 0u);
}
