#pragma once

#include <quickhost/quickhost_export.h>

#include <QAbstractListModel>

#include <memory>
#include <vector>

namespace oa {
class Property;
class PropertyCategory;
} // namespace oa

namespace dbr {
class GPMTreeData;
}

namespace dbr::quickhost {

// The rows of a property panel (the kit's "PropertyPanel"): each property
// shown by the item its type's factory makes, under the item of its category.
// Roles: "item" (the property's item), "category" (the category's label) and
// "categoryItem". The model holds its items; categories and properties are
// borrowed and must outlive it.
class DLGBRIDGE_QUICKHOST_EXPORT PropertyPanelModel : public QAbstractListModel
{
    Q_OBJECT

public:
    enum Role { ItemRole = Qt::UserRole + 1, CategoryRole, CategoryItemRole };

    explicit PropertyPanelModel(QObject* parent = nullptr);
    ~PropertyPanelModel() override;

    // The category's rows go after those of lighter or equal categories. A
    // property whose type has no factory is shown, not edited, by an item of
    // unknown type.
    void addCategory(const oa::PropertyCategory& category, const std::vector<const oa::Property*>& properties);
    void clear();

    // Null for a row out of range.
    GPMTreeData* item(int row) const;

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QHash<int, QByteArray> roleNames() const override;

private:
    Q_DISABLE_COPY(PropertyPanelModel)

    struct Private;
    std::unique_ptr<Private> const d;
};

} // namespace dbr::quickhost
