#include "tests/support/allocationCount.h"

#if defined(__SANITIZE_ADDRESS__)
#define COUNT_BY_SANITIZER 1
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
#define COUNT_BY_SANITIZER 1
#endif
#endif

namespace
{
std::size_t sCount = 0;
}

std::size_t allocationCountGet()
{
    return sCount;
}

#ifdef COUNT_BY_SANITIZER

// Operators of our own would hide a delete that doesn't match its new.
#include <sanitizer/allocator_interface.h>

namespace
{
void allocated(const volatile void*, std::size_t)
{
    ++sCount;
}

void freed(const volatile void*) {}

[[maybe_unused]] const int sInstalled = __sanitizer_install_malloc_and_free_hooks(allocated, freed);
} // namespace

#else

#include <cstdlib>
#include <new>

namespace
{
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

void* operator new(std::size_t pBytes, const std::nothrow_t&) noexcept
{
    return allocate(pBytes, 1);
}

void* operator new[](std::size_t pBytes, const std::nothrow_t&) noexcept
{
    return allocate(pBytes, 1);
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

#endif
