#include "tests/support/allocationCount.h"

#include <cstdlib>
#include <new>

namespace
{
std::size_t sCount = 0;

void* allocate(std::size_t pBytes, std::size_t pAlignment)
{
    ++sCount;
    const std::size_t bytes = (pBytes + pAlignment - 1) / pAlignment * pAlignment;
    void* memory = pAlignment <= alignof(std::max_align_t)
                       ? std::malloc(pBytes > 0 ? pBytes : 1)
                       : std::aligned_alloc(pAlignment, bytes > 0 ? bytes : pAlignment);
    if (memory == nullptr)
        std::abort();
    return memory;
}
} // namespace

std::size_t allocationCountGet()
{
    return sCount;
}

void* operator new(std::size_t pBytes)
{
    return allocate(pBytes, 1);
}

void* operator new[](std::size_t pBytes)
{
    return allocate(pBytes, 1);
}

void* operator new(std::size_t pBytes, std::align_val_t pAlignment)
{
    return allocate(pBytes, static_cast<std::size_t>(pAlignment));
}

void* operator new[](std::size_t pBytes, std::align_val_t pAlignment)
{
    return allocate(pBytes, static_cast<std::size_t>(pAlignment));
}

void operator delete(void* pMemory) noexcept
{
    std::free(pMemory);
}

void operator delete[](void* pMemory) noexcept
{
    std::free(pMemory);
}

void operator delete(void* pMemory, std::size_t) noexcept
{
    std::free(pMemory);
}

void operator delete[](void* pMemory, std::size_t) noexcept
{
    std::free(pMemory);
}

void operator delete(void* pMemory, std::align_val_t) noexcept
{
    std::free(pMemory);
}

void operator delete[](void* pMemory, std::align_val_t) noexcept
{
    std::free(pMemory);
}

void operator delete(void* pMemory, std::size_t, std::align_val_t) noexcept
{
    std::free(pMemory);
}

void operator delete[](void* pMemory, std::size_t, std::align_val_t) noexcept
{
    std::free(pMemory);
}
