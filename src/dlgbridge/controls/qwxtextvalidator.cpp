#include "qwxtextvalidator.h"

#include "qwxtextctrl.h"

#include <QDebug>

namespace dbr {

class qwxTextValidatorPrivate
{
public:
    wxString* value = nullptr;
};

qwxTextValidator::qwxTextValidator()
    : d(std::make_unique<qwxTextValidatorPrivate>())
{}

qwxTextValidator::qwxTextValidator(wxTextValidatorStyle style, wxString* value)
    : qwxTextValidator()
{
    d->value = value;
    if (style != 0)
        qWarning().noquote()
            << QStringLiteral("qwxTextValidator::qwxTextValidator style param %1 not implemented").arg(int(style));
}

qwxTextValidator::~qwxTextValidator() = default;

bool qwxTextValidator::TransferToWindow()
{
    auto* text = dynamic_cast<qwxTextCtrl*>(control());
    if (!text || !d->value)
        return false;
    text->SetValue(*d->value);
    return true;
}

bool qwxTextValidator::TransferFromWindow()
{
    auto* text = dynamic_cast<qwxTextCtrl*>(control());
    if (!text || !d->value)
        return false;
    *d->value = text->GetValue();
    return true;
}

IValidator* qwxTextValidator::clone() const
{
    auto* copy = new qwxTextValidator();
    copy->d->value = d->value;
    return copy;
}

} // namespace dbr
