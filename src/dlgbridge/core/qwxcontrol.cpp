#include "qwxcontrol.h"

#include "ivalidator.h"

#include <QColor>
#include <QDebug>

#include <qut/qtconversions.h>

namespace dbr {

class qwxControlPrivate
{
public:
    explicit qwxControlPrivate(const OdString& objectName)
        : name(qut::toQt(objectName))
    {}

    QString name;
    std::unique_ptr<IValidator> validator;
};

qwxControl::qwxControl(const OdString& name, qwxWindow& parent)
    : qwxWindow(&parent)
    , d(std::make_unique<qwxControlPrivate>(name))
{}

qwxControl::~qwxControl() = default;

void qwxControl::SetValidator(const IValidator& validator)
{
    d->validator.reset(validator.clone());
    d->validator->SetWindow(this);
}

IValidator* qwxControl::GetValidator()
{
    return d->validator.get();
}

void qwxControl::SetBackgroundColour(const wxColour& colour)
{
    if (!setQmlProperty("backgroundColor", QVariant::fromValue(qut::toQt(colour))))
        qWarning().noquote() << QStringLiteral("(%0) unable to set property backgroundColor").arg(wrappedObjectName());
}

void qwxControl::TransferDataToWindow()
{
    if (d->validator)
        d->validator->TransferToWindow();
}

void qwxControl::TransferDataFromWindow()
{
    if (d->validator)
        d->validator->TransferFromWindow();
}

QString qwxControl::wrappedObjectName() const
{
    return d->name;
}

QString qwxControl::bindControlName() const
{
    return wrappedObjectName();
}

qwxSizer* qwxControl::GetContainingSizer() const
{
    qDebug("qwxControl::GetContainingSizer : stub");
    return nullptr;
}

} // namespace dbr
