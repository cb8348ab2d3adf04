#pragma once

#include <QPointer>
#include <QVariant>

#include <memory>

class QObject;
class QStringList;

namespace dbr {

class qwxWindow;

// The entries that a control's item declares as its "model", and the model the
// wrapper shows there instead. The item outlives the wrapper (a new populate
// makes a new wrapper for it), so it gets its declared entries back before the
// model goes: it never reads a freed model, and the next wrapper reads the
// declared entries as the first one did.
class ModelOnItemBase
{
public:
    explicit ModelOnItemBase(qwxWindow& control);
    Q_DISABLE_COPY(ModelOnItemBase)

protected:
    ~ModelOnItemBase() = default;

    QStringList declaredStrings() const;
    void show(QObject* model);
    void takeBack(const QObject* model);

private:
    qwxWindow& m_control;
    QVariant m_declared;
    // Only for giving the declared entries back; every access searches anew.
    QPointer<QObject> m_showing;
};

template<typename Model>
class ModelOnItem : public ModelOnItemBase
{
public:
    // makeModel gets the declared entries.
    template<typename MakeModel>
    ModelOnItem(qwxWindow& control, MakeModel makeModel)
        : ModelOnItemBase(control)
        , m_model(makeModel(declaredStrings()))
    {
        show(m_model.get());
    }

    ~ModelOnItem() { takeBack(m_model.get()); }

    Model& operator*() const { return *m_model; }
    Model* operator->() const { return m_model.get(); }

private:
    std::unique_ptr<Model> const m_model;
};

} // namespace dbr
