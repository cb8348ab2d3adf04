#pragma once

#include "genericlistmodel.h"

namespace qut {

// Stand-in for the application's list of strings for QML.
class StringListModel : public GenericListModel<QString>
{
public:
    using GenericListModel::GenericListModel;
};

} // namespace qut
