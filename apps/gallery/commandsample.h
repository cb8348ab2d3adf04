#pragma once

#include "gallerysample.h"

// A drawing command at the host's command line: MARK offers its shapes in a
// command context dialog beside the command line, greys it out while it waits
// for a point, and ends with Done or the panel's close button.
class CommandSample : public GallerySample
{
public:
    int run(dbr::quickhost::QuickHost& host, const SampleOptions& options, QTextStream& out) override;
};
