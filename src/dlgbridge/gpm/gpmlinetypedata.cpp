#include "gpmlinetypedata.h"

#include "rxmembers_p.h"

#include <dlgbridge/cadmodels/linetypemodel.h>

#include <ca/CaApp.h>
#include <oa/OaApp.h>
#include <oa/Property.h>

namespace dbr {

DBR_GPM_DEFINE_RX_MEMBERS(GPMLineTypeData, GPMPropertyDataBase, "GPMLineTypeData")

namespace {

// A QObject child of the item, for the same reason as its list models: QML
// lets go of the item only once its QObject part is destroyed. It leaves the
// document manager when it goes.
LineTypeModel* newLineTypeModel(QObject& item)
{
    const oa::OaApp* app = oa::OaApp::s_app;
    if (!app || !app->guiController() || !app->dialogFactory())
        return nullptr;
    const LineTypeModelParams params{OdDbDatabasePtr(ca::curDb()), OdDbObjectId::kNull, 0, 1};
    auto* model =
        new LineTypeModel(params, *app->guiController(), *app->dialogFactory(), QSize(-1, -1), RegisterWithDocManager);
    model->setParent(&item);
    return model;
}

} // namespace

struct GPMLineTypeData::Private
{
    int initialLineTypeIndex = 0;
    LineTypeModel* model;
};

GPMLineTypeData::GPMLineTypeData(const oa::Property& property)
    : GPMPropertyDataBase(property)
    , d(new Private{0, newLineTypeModel(*this)})
{
    tdx::PropertyValue value;
    if (!readValue(value, true) || !checkTyped(value, tdx::PropertyValue::kObjectId) || !d->model)
        return;
    if (const std::optional<int> row = d->model->getLineTypeIndex(value.toObjectId()))
        d->initialLineTypeIndex = *row;
}

GPMLineTypeData::~GPMLineTypeData() = default;

QString GPMLineTypeData::type() const
{
    return QStringLiteral("linetype");
}

QAbstractListModel* GPMLineTypeData::lineTypeModel() const
{
    return d->model;
}

int GPMLineTypeData::initialLineTypeIndex() const
{
    return d->initialLineTypeIndex;
}

void GPMLineTypeData::setCurrentLineType(int index)
{
    const LineTypeObject* row = d->model ? d->model->getLineType(index) : nullptr;
    if (row)
        writeValue(tdx::PropertyValue(row->objectId()));
}

} // namespace dbr
