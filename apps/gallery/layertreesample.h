#pragma once

#include "gallerysample.h"

// The layers of a drawing: a sorted tree of groups and layers with client data,
// tool tips on hover, renaming in place (refused for a locked layer), a drag
// that moves a layer to another group, a filter field, and a multiple
// selection read back on OK.
class LayerTreeSample : public GallerySample
{
public:
    int run(dbr::quickhost::QuickHost& host, const SampleOptions& options, QTextStream& out) override;
};
