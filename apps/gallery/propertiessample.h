#pragma once

#include "gallerysample.h"

// A property panel over one wall of a drawing: its properties in three
// categories, each shown and edited by the item its type's factory makes.
class PropertiesSample : public GallerySample
{
public:
    int run(dbr::quickhost::QuickHost& host, const SampleOptions& options, QTextStream& out) override;
};
