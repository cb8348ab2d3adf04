#pragma once

#include <memory>
#include <vector>

namespace qut {

// One node of a tree that owns its subtree. Its address is its identity: it
// stays the same for the node's whole life, whatever moves around it.
template<typename T>
struct TreeItem
{
    // Null for a root and for a node not yet inserted.
    TreeItem* parent = nullptr;
    T data{};
    bool wantsToBeExpanded = false;
    // In row order.
    std::vector<std::unique_ptr<TreeItem>> children;
};

} // namespace qut
