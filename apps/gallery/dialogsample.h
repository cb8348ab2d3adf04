#pragma once

#include "gallerysample.h"
#include "scriptplayer.h"

#include <QStringList>

#include <functional>
#include <vector>

namespace dbr {
class qwxDialog;
}

// The steps of a dialog sample's script, played by the given player.
using SampleSteps = std::function<std::vector<ScriptPlayer::Step>(ScriptPlayer&)>;

// Runs a loaded dialog modally, played by its script when the options ask,
// then writes what its code saw (seen, read afterwards), the sample's own
// results and how the dialog ended. Returns the exit code: a scripted run must
// end with OK and leave its screenshot.
int runDialogSample(dbr::qwxDialog& dialog, const QStringList& seen, const SampleSteps& steps,
                    const SampleOptions& options, QTextStream& out, const std::function<void(QTextStream&)>& results);
