#pragma once

#include <dlgbridge/dlgbridge_export.h>

#include <QString>

namespace dbr {

class qwxControl;
class qwxWindow;

// Moves a value of dialog code into its control and back.
class DLGBRIDGE_EXPORT IValidator
{
public:
    IValidator() = default;
    IValidator(const IValidator& other) = default;
    IValidator& operator=(const IValidator& other) = default;
    virtual ~IValidator();

    virtual bool TransferToWindow() = 0;
    virtual bool TransferFromWindow() = 0;
    virtual void SetWindow(qwxControl* control);
    virtual bool Validate(qwxWindow* parent);
    virtual IValidator* clone() const = 0;

    qwxControl* control() { return m_control; }
    const qwxControl* control() const { return m_control; }
    qwxControl* GetWindow() const { return m_control; }
    // The object name of the validated control; empty without one.
    QString controlName() const;

private:
    qwxControl* m_control = nullptr;
};

} // namespace dbr
