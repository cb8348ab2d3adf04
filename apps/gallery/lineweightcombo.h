#pragma once

#include <dlgbridge/core/qwxcontrol.h>

#include <oda/OdDb.h>

#include <memory>

namespace dbr {
class LineWeightModel;
}

// The application's own wrapper of the kit's line weight combo: the library
// has none, since only the application makes line weight models. It makes one
// over the application's weights and shows it in its item, which lets go of
// it when the wrapper goes.
class LineWeightCombo : public dbr::qwxControl
{
public:
    LineWeightCombo(const OdString& name, dbr::qwxWindow& parent);
    ~LineWeightCombo() override;

    DBR_WRAPPER_TYPE(LineWeightCombo)

    void setLineWeight(OdDb::LineWeight weight);
    OdDb::LineWeight lineWeight() const;
    dbr::LineWeightModel& model() const;

private:
    std::unique_ptr<dbr::LineWeightModel> const m_model;
};
