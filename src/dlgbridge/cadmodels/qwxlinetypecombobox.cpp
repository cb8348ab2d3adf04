#include "qwxlinetypecombobox.h"

#include "linetypemodel.h"
#include "sharedmodelonitem_p.h"

#include <dlgbridge/core/qtcontrolmodels.h>

#include <ca/CaApp.h>

namespace dbr {

namespace {

// The dialog's line type model, made by the first line type combo that asks,
// on the current drawing and following the documents from then on.
LineTypeModel* sharedModel(qwxWindow& parent)
{
    OdDbDatabasePtr database = ca::curDb();
    QtControlModels* models = parent.models();
    if (!models || !models->guiController || !models->dialogFactory)
        return nullptr;
    if (!models->lineTypeModel) {
        const LineTypeModelParams params{database, OdDbObjectId::kNull, 0, 1};
        models->lineTypeModel = std::make_unique<LineTypeModel>(params, *models->guiController, *models->dialogFactory,
                                                                QSize(-1, -1), RegisterWithDocManager);
    }
    return models->lineTypeModel.get();
}

} // namespace

class qwxLineTypeComboBoxPrivate
{
public:
    qwxLineTypeComboBoxPrivate(qwxWindow& control, LineTypeModel* shared)
        : model(shared)
        , shown(control, shared)
    {}

    LineTypeModel* const model;
    SharedModelOnItem shown;
};

qwxLineTypeComboBox::qwxLineTypeComboBox(const OdString& name, qwxWindow& parent)
    : qwxControl(name, parent)
    , d(std::make_unique<qwxLineTypeComboBoxPrivate>(*this, sharedModel(parent)))
{}

qwxLineTypeComboBox::~qwxLineTypeComboBox() = default;

void qwxLineTypeComboBox::setSelection(const OdDbObjectId& id)
{
    if (!d->model)
        return;
    if (const std::optional<int> row = d->model->getLineTypeIndex(id))
        setQmlProperty("currentIndex", *row);
}

OdDbObjectId qwxLineTypeComboBox::getLinetype() const
{
    bool ok = false;
    const int index = getQmlProperty("currentIndex").toInt(&ok);
    const LineTypeObject* row = ok && d->model ? d->model->getLineType(index) : nullptr;
    return row ? row->objectId() : OdDbObjectId::kNull;
}

LineTypeModel* qwxLineTypeComboBox::model() const
{
    return d->model;
}

} // namespace dbr
