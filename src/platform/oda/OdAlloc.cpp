#include "OdAlloc.h"

#include <atomic>
#include <cstdlib>

namespace {
std::atomic<std::size_t> liveBlocks{0};
}

void* odrxAlloc(std::size_t size)
{
    void* block = std::malloc(size);
    if (block)
        ++liveBlocks;
    return block;
}

void odrxFree(void* block)
{
    if (!block)
        return;
    --liveBlocks;
    std::free(block);
}

std::size_t odrxLiveBlocks()
{
    return liveBlocks;
}
