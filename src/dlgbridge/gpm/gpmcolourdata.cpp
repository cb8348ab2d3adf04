#include "gpmcolourdata.h"

#include "rxmembers_p.h"

#include <dlgbridge/cadmodels/colormodel.h>

#include <oa/OaApp.h>
#include <oa/Property.h>

namespace dbr {

DBR_GPM_DEFINE_RX_MEMBERS(GPMColourData, GPMPropertyDataBase, "GPMColourData")

namespace {

// The flags both colour combos pass: by layer and by block, and true colours.
constexpr int colourFlags = 3;

// A QObject child of the item, for the same reason as its list models: QML
// lets go of the item only once its QObject part is destroyed.
ColorModel* newColourModel(QObject& item)
{
    const oa::OaApp* app = oa::OaApp::s_app;
    if (!app || !app->guiController() || !app->dialogFactory())
        return nullptr;
    auto* model = new ColorModel(*app->guiController(), *app->dialogFactory(), colourFlags, false, QSize(-1, -1));
    model->setParent(&item);
    return model;
}

} // namespace

struct GPMColourData::Private
{
    int initialColorIndex = 0;
    ColorModel* model;
};

GPMColourData::GPMColourData(const oa::Property& property)
    : GPMPropertyDataBase(property)
    , d(new Private{0, newColourModel(*this)})
{
    tdx::PropertyValue value;
    if (!readValue(value, true))
        return;
    OdCmColor colour;
    if (!tdx::Props::getValue(value, colour)) {
        logTypedFailure();
        return;
    }
    if (d->model)
        d->initialColorIndex = d->model->getOrAddColor(colour);
}

GPMColourData::~GPMColourData() = default;

QString GPMColourData::type() const
{
    return QStringLiteral("colour");
}

QAbstractListModel* GPMColourData::colorModel() const
{
    return d->model;
}

int GPMColourData::initialColorIndex() const
{
    return d->initialColorIndex;
}

void GPMColourData::setCurrentColor(int index)
{
    if (!d->model)
        return;
    startWrite();
    tdx::PropertyValue value;
    tdx::Props::setValue(value, d->model->color(index));
    finishWrite(value);
}

} // namespace dbr
