#pragma once

#include "gallerysample.h"

// The layer properties dialog: CAD value combos sharing their models.
class LayerSample : public GallerySample
{
public:
    int run(dbr::quickhost::QuickHost& host, const SampleOptions& options, QTextStream& out) override;
};
