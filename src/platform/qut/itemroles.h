#pragma once

// Stand-in for the application's shared item model roles.
namespace qut {

// The role through which a view asks whether a tree node wants to be expanded.
// Kept clear of the tree control's own roles (Qt::UserRole to Qt::UserRole + 10).
int getWantsToBeExpandedRole();

} // namespace qut
