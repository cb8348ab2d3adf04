#pragma once

#include "gallerysample.h"

// The print dialog: preview, a refused OK, a check, a title and an entry of its
// context menu, the plotter page with a plotter, a paper size and a style, the
// drawing page with more copies, Apply with its message box, OK.
class PrintSample : public GallerySample
{
public:
    int run(dbr::quickhost::QuickHost& host, const SampleOptions& options, QTextStream& out) override;
};
