#ifndef ZNAPPCORE_ZNIRENDERJOB_H
#define ZNAPPCORE_ZNIRENDERJOB_H

#include "znappcore/znCUniqueId.h"
#include "zncore/znTypes.h"

#include <cstddef>

class znIRenderer;

// A run of consecutive sprites or texts of a frame: the material changes, or font changes, from mFirst to mLast, both
// included. Made while the frame is gathered, executed and deleted at its end. The memory of deleted jobs is kept for
// the next frame's, so that drawing takes nothing from the heap.
class znIRenderJob
{
public:
    // One id a class, made from its name.
    virtual const znCUniqueId& typeIdGet() const = 0;
    virtual void execute() = 0;
    virtual ~znIRenderJob() = default;

    void lastIncrement() { ++mLast; }

    znIRenderJob(const znIRenderJob&) = delete;
    znIRenderJob& operator=(const znIRenderJob&) = delete;

    // All kinds of job share one list of free blocks, each as large as the largest kind.
    static void* operator new(std::size_t pBytes);
    static void operator delete(void* pJob);
    // Gives the memory of all deleted jobs back to the heap.
    static void freeJobsRelease();

protected:
    znIRenderJob(znIRenderer* pRenderer, s32 pIndex) : mRenderer(pRenderer), mFirst(pIndex), mLast(pIndex) {}

    znIRenderer* mRenderer; // outlives the job
    s32 mFirst;
    s32 mLast;
};

#endif
