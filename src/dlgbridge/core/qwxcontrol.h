#pragma once

#include "qwxwindow.h"

#include <memory>

namespace dbr {

class qwxControlPrivate;

// Base of every wrapper a dialog holds as a child: the wrapper of the QML item
// with its object name, with an optional validator.
class DLGBRIDGE_EXPORT qwxControl : public qwxWindow
{
public:
    qwxControl(const OdString& name, qwxWindow& parent);
    ~qwxControl() override;

    void SetValidator(const IValidator& validator) override;
    void SetBackgroundColour(const wxColour& colour) override;
    void TransferDataToWindow() override;
    void TransferDataFromWindow() override;
    QString wrappedObjectName() const override;
    QString bindControlName() const override;
    virtual IValidator* GetValidator();

    qwxSizer* GetContainingSizer() const;

private:
    std::unique_ptr<qwxControlPrivate> const d;
};

} // namespace dbr
