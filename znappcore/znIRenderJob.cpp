#include "znappcore/znIRenderJob.h"

#include "znappcore/src/znCRenderJobSprites.h"
#include "znappcore/src/znCRenderJobText.h"

#include <algorithm>
#include <new>

namespace
{
constexpr std::size_t BLOCK_BYTES = std::max(sizeof(znCRenderJobSprites), sizeof(znCRenderJobText));

struct FreeBlock
{
    FreeBlock* mNext;
};

FreeBlock* sFreeBlocks = nullptr; // freed by freeJobsRelease()
} // namespace

void* znIRenderJob::operator new(std::size_t pBytes)
{
    if (pBytes > BLOCK_BYTES)
        throw std::bad_alloc(); // a kind of job that BLOCK_BYTES doesn't know
    if (sFreeBlocks == nullptr)
        return ::operator new(BLOCK_BYTES);
    FreeBlock* block = sFreeBlocks;
    sFreeBlocks = block->mNext;
    return block;
}

void znIRenderJob::operator delete(void* pJob)
{
    if (pJob != nullptr)
        sFreeBlocks = ::new (pJob) FreeBlock{sFreeBlocks};
}

void znIRenderJob::freeJobsRelease()
{
    while (sFreeBlocks != nullptr)
    {
        FreeBlock* block = sFreeBlocks;
        sFreeBlocks = block->mNext;
        ::operator delete(block);
    }
}
