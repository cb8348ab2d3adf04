#pragma once

#include "gallerysample.h"

// The drawings of a project in a report list: columns, rows with client data,
// a selection made by the dialog code, a search field, a sorting heading,
// ctrl-click, a layout renamed in its cell, a double click and a right click
// handled after the view's own handlers, and a check list of options.
class DrawingListSample : public GallerySample
{
public:
    int run(dbr::quickhost::QuickHost& host, const SampleOptions& options, QTextStream& out) override;
};
