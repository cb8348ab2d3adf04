#include "lineweightcombo.h"

#include <dlgbridge/cadmodels/lineweightmodel.h>
#include <dlgbridge/services/iguicontroller.h>

#include <oa/OaApp.h>

LineWeightCombo::LineWeightCombo(const OdString& name, dbr::qwxWindow& parent)
    : dbr::qwxControl(name, parent)
    , m_model(std::make_unique<dbr::LineWeightModel>(*oa::OaApp::s_app->guiController(), dbr::LineWeightModelParams(),
                                                     QSize(-1, -1)))
{
    setQmlProperty("model", QVariant::fromValue<QObject*>(m_model.get()));
}

LineWeightCombo::~LineWeightCombo()
{
    if (QObject* item = findObjectIfAny(); item && item->property("model").value<QObject*>() == m_model.get())
        item->setProperty("model", QVariant());
}

void LineWeightCombo::setLineWeight(OdDb::LineWeight weight)
{
    if (const std::optional<int> row = m_model->getLineWeightIndex(weight))
        m_model->onChangeCurrentComboIndex(*row);
}

OdDb::LineWeight LineWeightCombo::lineWeight() const
{
    const dbr::LineWeightObject* row = m_model->getLineWeight(m_model->getCurrentIndex());
    return row ? row->lineWeight() : OdDb::kLnWtByLwDefault;
}

dbr::LineWeightModel& LineWeightCombo::model() const
{
    return *m_model;
}
