#include "qwxtextvalidator.h"

#include "qwxtextctrl.h"

#include <QDebug>

namespace dbr {

class qwxTextValidatorPrivate
{
public:
    wxString* value;
};

qwxTextValidator::qwxTextValidator(wxTextValidatorStyle style, wxString* value)
    : d(std::make_unique<qwxTextValidatorPrivate>(qwxTextValidatorPrivate{value}))
{
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

// A clone points at the same variable and has no control until it is set.
IValidator* qwxTextValidator::clone() const
{
    return new qwxTextValidator(wxFILTER_NONE, d->value);
}

} // namespace dbr
