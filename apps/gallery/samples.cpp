#include "samples.h"

#include "printsample.h"

const std::vector<SampleEntry>& gallerySamples()
{
    static const std::vector<SampleEntry> samples = {
        {"print", "a print dialog: validators, a notebook, a context menu, a timer",
         [] { return std::make_unique<PrintSample>(); }},
    };
    return samples;
}
