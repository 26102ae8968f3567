#pragma once

#include <cstddef>

// What the whole process holds and has asked for: the program's own allocation
// functions replace the C library's, for Qt too.
struct HeapCount
{
    std::size_t bytesHeld;
    std::size_t allocations;
};

HeapCount heapCount();
