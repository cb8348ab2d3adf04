#include "qwxcolorcombobox.h"

#include "colormodel.h"
#include "sharedmodelonitem_p.h"

#include <dlgbridge/core/qtcontrolmodels.h>

namespace dbr {

namespace {

// What every colour combo passes: the by-layer, by-block and true colours of
// the controller, no varies row, no size of its own.
constexpr int comboFlags = 3;

// The dialog's colour model, made by the first colour combo that asks.
ColorModel* sharedModel(qwxWindow& parent)
{
    QtControlModels* models = parent.models();
    if (!models || !models->guiController || !models->dialogFactory)
        return nullptr;
    if (!models->colorModel)
        models->colorModel = std::make_unique<ColorModel>(*models->guiController, *models->dialogFactory, comboFlags,
                                                          false, QSize(-1, -1));
    return models->colorModel.get();
}

} // namespace

class qwxColorComboBoxPrivate
{
public:
    qwxColorComboBoxPrivate(qwxWindow& control, ColorModel* shared)
        : model(shared)
        , shown(control, shared)
    {}

    ColorModel* const model;
    OdCmColor color;
    SharedModelOnItem shown;
};

qwxColorComboBox::qwxColorComboBox(const OdString& name, qwxWindow& parent)
    : qwxControl(name, parent)
    , d(std::make_unique<qwxColorComboBoxPrivate>(*this, sharedModel(parent)))
{}

qwxColorComboBox::~qwxColorComboBox() = default;

void qwxColorComboBox::setColor(unsigned long value)
{
    if (!d->model)
        return;
    OdCmColor color;
    color.setColor(static_cast<std::uint32_t>(value));
    setColor(color);
}

void qwxColorComboBox::setColor(const OdCmColor& color)
{
    if (!d->model)
        return;
    // The model's own current row is left alone: the item decides what to do with its property.
    setQmlProperty("currentIndex", d->model->getOrAddColor(color));
}

OdCmColor& qwxColorComboBox::color() const
{
    bool ok = false;
    const int index = getQmlProperty("currentIndex").toInt(&ok);
    d->color = ok && d->model ? d->model->color(index) : OdCmColor();
    return d->color;
}

ColorModel* qwxColorComboBox::model() const
{
    return d->model;
}

} // namespace dbr
