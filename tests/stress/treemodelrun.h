#pragma once

#include <memory>

namespace dbr::stress {

class Rng;
class TreeModelRunPrivate;

// A tree model under a fatal QAbstractItemModelTester, changed one random
// call at a time: inserts, moves, deletions, walks, resets and data writes.
class TreeModelRun
{
public:
    TreeModelRun();
    ~TreeModelRun();

    void step(Rng& rng);

private:
    std::unique_ptr<TreeModelRunPrivate> const d;
};

} // namespace dbr::stress
