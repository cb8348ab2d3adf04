#pragma once

#include <dlgbridge/controls/modelonitem_p.h>

namespace dbr {

// A model that the wrapper shows on its item without owning it: the item gets
// its declared entries back when the wrapper goes, so that it lets go of the
// model before whoever owns it deletes it.
class SharedModelOnItem : public ModelOnItemBase
{
public:
    SharedModelOnItem(qwxWindow& control, QObject* model)
        : ModelOnItemBase(control)
        , m_model(model)
    {
        show(m_model);
    }
    ~SharedModelOnItem() { takeBack(m_model); }
    Q_DISABLE_COPY(SharedModelOnItem)

private:
    QObject* const m_model;
};

} // namespace dbr
