#include "samples.h"

#include "commandsample.h"
#include "drawinglistsample.h"
#include "layersample.h"
#include "layertreesample.h"
#include "printsample.h"
#include "propertiessample.h"

const std::vector<SampleEntry>& gallerySamples()
{
    static const std::vector<SampleEntry> samples = {
        {"print", "a print dialog: validators, a notebook, a context menu, a timer",
         [] { return std::make_unique<PrintSample>(); }},
        {"tree", "a layer tree: sorting, a filter, tool tips, renaming in place, drag and drop, a multiple selection",
         [] { return std::make_unique<LayerTreeSample>(); }},
        {"list", "a report list of drawings: columns, search, sorting, editing a cell, a check list of options",
         [] { return std::make_unique<DrawingListSample>(); }},
        {"command", "a drawing command with its options in a command context dialog beside the command line",
         [] { return std::make_unique<CommandSample>(); }},
        {"properties", "a property panel: texts, numbers with units and choices edited through their property items",
         [] { return std::make_unique<PropertiesSample>(); }},
        {"layer",
         "a layer's properties: colour, line type and line weight combos, the colour dialog, loading line types",
         [] { return std::make_unique<LayerSample>(); }},
    };
    return samples;
}
