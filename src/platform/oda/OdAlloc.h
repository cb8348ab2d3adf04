#pragma once

#include <cstddef>

// Stand-in for the SDK's allocator of runtime objects. Null when out of memory.
void* odrxAlloc(std::size_t size);
void odrxFree(void* block);

// Not in the SDK: blocks from odrxAlloc not yet freed, so that tests can tell
// when runtime objects die.
std::size_t odrxLiveBlocks();
