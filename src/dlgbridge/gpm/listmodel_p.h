#pragma once

#include <QObject>

#include <qut/stringlistmodel.h>

namespace dbr {

// An item's list model, as a QObject child of the item. QML lets go of an item
// only when its QObject part is destroyed, after the typed parts: a model held
// by those would be gone while a combo box still shows it.
inline qut::StringListModel* newChildListModel(QObject& item)
{
    auto* model = new qut::StringListModel;
    model->setParent(&item);
    return model;
}

} // namespace dbr
