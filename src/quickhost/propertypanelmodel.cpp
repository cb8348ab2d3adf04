#include "propertypanelmodel.h"

#include <dlgbridge/gpm/avrxobjectimpl.h>
#include <dlgbridge/gpm/factoryfunction.h>
#include <dlgbridge/gpm/gpmcategoryitem.h>
#include <dlgbridge/gpm/gpmunknowntypedata.h>

#include <oa/Property.h>

#include <algorithm>

namespace dbr::quickhost {

namespace {

struct Row
{
    AvSmartPtr<GPMCategoryItem> category;
    AvSmartPtr<GPMTreeData> item;
};

AvSmartPtr<GPMTreeData> itemFor(const oa::Property& property)
{
    if (const AvSmartPtr<FactoryFunction> factory = FactoryFunction::queryX(property.type())) {
        if (AvSmartPtr<GPMTreeData> item = factory->create(property))
            return item;
    }
    return AvRxObjectImpl<GPMUnknownTypeData>::createObject(property);
}

} // namespace

struct PropertyPanelModel::Private
{
    std::vector<Row> rows;
};

PropertyPanelModel::PropertyPanelModel(QObject* parent)
    : QAbstractListModel(parent)
    , d(new Private)
{}

PropertyPanelModel::~PropertyPanelModel() = default;

void PropertyPanelModel::addCategory(const oa::PropertyCategory& category,
                                     const std::vector<const oa::Property*>& properties)
{
    const int count = int(std::count_if(properties.begin(), properties.end(), [](auto* p) { return p != nullptr; }));
    if (count == 0)
        return;
    const AvSmartPtr<GPMCategoryItem> heading = AvRxObjectImpl<GPMCategoryItem>::createObject(category);
    const auto at = std::find_if(d->rows.begin(), d->rows.end(), [&heading](const Row& row) {
        return row.category->sortWeight() > heading->sortWeight();
    });
    const int first = int(at - d->rows.begin());
    std::vector<Row> added;
    for (const oa::Property* property : properties) {
        if (property)
            added.push_back({heading, itemFor(*property)});
    }
    beginInsertRows(QModelIndex(), first, first + count - 1);
    d->rows.insert(d->rows.begin() + first, added.begin(), added.end());
    endInsertRows();
}

void PropertyPanelModel::clear()
{
    // The items go after the views have let go of their rows.
    std::vector<Row> gone;
    beginResetModel();
    gone.swap(d->rows);
    endResetModel();
}

GPMTreeData* PropertyPanelModel::item(int row) const
{
    return row >= 0 && size_t(row) < d->rows.size() ? d->rows[size_t(row)].item.get() : nullptr;
}

int PropertyPanelModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : int(d->rows.size());
}

QVariant PropertyPanelModel::data(const QModelIndex& index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid))
        return QVariant();
    const Row& row = d->rows[size_t(index.row())];
    switch (role) {
    case ItemRole: return QVariant::fromValue<QObject*>(row.item.get());
    case Qt::DisplayRole:
    case CategoryRole: return row.category->label();
    case CategoryItemRole: return QVariant::fromValue<QObject*>(row.category.get());
    default: return QVariant();
    }
}

QHash<int, QByteArray> PropertyPanelModel::roleNames() const
{
    return {{ItemRole, "item"}, {CategoryRole, "category"}, {CategoryItemRole, "categoryItem"}};
}

} // namespace dbr::quickhost
