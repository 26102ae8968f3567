#include "heapcounter.h"

#include <atomic>
#include <cerrno>
#include <cstdlib>
#include <malloc.h>

// The C library's functions under their internal names, which remain callable.
extern "C" {
void *__libc_malloc(std::size_t size);
void *__libc_calloc(std::size_t count, std::size_t size);
void *__libc_realloc(void *block, std::size_t size);
void *__libc_memalign(std::size_t alignment, std::size_t size);
void __libc_free(void *block);
}

namespace {

std::atomic<std::size_t> s_bytesHeld {0};
std::atomic<std::size_t> s_allocations {0};

void *counted(void *block)
{
    if (block != nullptr) {
        s_bytesHeld.fetch_add(malloc_usable_size(block), std::memory_order_relaxed);
        s_allocations.fetch_add(1, std::memory_order_relaxed);
    }
    return block;
}

void release(void *block)
{
    if (block != nullptr) {
        s_bytesHeld.fetch_sub(malloc_usable_size(block), std::memory_order_relaxed);
    }
}

} // namespace

HeapCount heapCount()
{
    return {s_bytesHeld.load(), s_allocations.load()};
}

// Parameters are named as in the C library. operator new of libstdc++ and of Qt calls these
// functions, too.
extern "C" {

void *malloc(std::size_t size)
{
    return counted(__libc_malloc(size));
}

void *calloc(std::size_t nmemb, std::size_t size)
{
    return counted(__libc_calloc(nmemb, size));
}

void *realloc(void *ptr, std::size_t size)
{
    const std::size_t before = ptr != nullptr ? malloc_usable_size(ptr) : 0;
    void *moved = __libc_realloc(ptr, size);
    if (moved != nullptr || size == 0) {
        s_bytesHeld.fetch_sub(before, std::memory_order_relaxed);
    }
    return counted(moved);
}

void *memalign(std::size_t alignment, std::size_t size)
{
    return counted(__libc_memalign(alignment, size));
}

void *aligned_alloc(std::size_t alignment, std::size_t size)
{
    return memalign(alignment, size);
}

int posix_memalign(void **memptr, std::size_t alignment, std::size_t size)
{
    *memptr = memalign(alignment, size);
    return *memptr != nullptr ? 0 : ENOMEM;
}

void free(void *ptr)
{
    release(ptr);
    __libc_free(ptr);
}

} // extern "C"
