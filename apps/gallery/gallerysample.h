#pragma once

#include <QString>

class QTextStream;

namespace dbr::quickhost {
class QuickHost;
}

struct SampleOptions
{
    // Without a display a script plays the sample through its real QML items.
    bool scripted = false;
    QString screenshotPath;
};

// One sample of the gallery: dialog code written as the application writes it,
// with the script that plays it offscreen.
class GallerySample
{
public:
    virtual ~GallerySample() = default;

    // Runs the sample to its end and writes what its dialog code saw to out.
    // Returns the process's exit code: a scripted run fails when it did not
    // end as its script meant or left no screenshot.
    virtual int run(dbr::quickhost::QuickHost& host, const SampleOptions& options, QTextStream& out) = 0;
};
