#include "ivalidator.h"

#include "qwxcontrol.h"

#include <QDebug>

namespace dbr {

IValidator::~IValidator() = default;

void IValidator::SetWindow(qwxControl* control)
{
    m_control = control;
}

bool IValidator::Validate(qwxWindow*)
{
    qWarning("IValidator::Validate: needs implementations");
    return false;
}

QString IValidator::controlName() const
{
    return m_control ? m_control->wrappedObjectName() : QString();
}

} // namespace dbr
