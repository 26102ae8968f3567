#pragma once

#include <cstddef>

// The heap in use and the number of allocations of the whole process: the program's own
// allocation functions replace the C library's, for Qt too.
struct HeapCount
{
    std::size_t bytesHeld;
    std::size_t allocations;
};

HeapCount heapCount();
