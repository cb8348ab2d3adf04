#pragma once

#include <functional>
#include <memory>
#include <vector>

class GallerySample;

struct SampleEntry
{
    const char* name;
    const char* summary;
    std::function<std::unique_ptr<GallerySample>()> make;
};

// Every sample of the gallery; the first one runs when none is named.
const std::vector<SampleEntry>& gallerySamples();
