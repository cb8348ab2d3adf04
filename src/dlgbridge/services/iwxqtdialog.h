#pragma once

#include <dlgbridge/dlgbridge_export.h>

#include <QUrl>

#include <cstdint>

class QObject;
class QQmlEngine;
class QString;
class wxWindow;

namespace dbr {

// How the application may resize a dialog; the values are the application's.
enum EResizable : std::int32_t {
    NotResizable = 0,
    Resizable = 1,
};

// Passed through to the application as given; the meaning of the fields is its own.
struct DialogOptions
{
    std::int32_t first = 0;
    std::int32_t second = 0;
    std::int32_t third = 0;
};

// The real dialog that the application builds for a QML address: it owns the
// window and the QML, and runs the modal loop.
class DLGBRIDGE_EXPORT IWxQtDialog
{
public:
    virtual ~IWxQtDialog();
    virtual void Show() = 0;
    virtual int ShowModal() = 0;
    virtual void Hide(int returnCode) = 0;
    virtual int GetReturnCode() = 0;
    virtual bool IsModal() = 0;
    virtual void EndModal(int returnCode) = 0;
    virtual void hostOperationA() = 0;
    virtual void hostOperationB() = 0;
    virtual void SetTitle(const QString& title) = 0;
    virtual bool isReady() = 0;
    virtual bool waitForExposed() = 0;
    virtual void aboutToBeDestroyed() = 0;
    virtual QUrl sourceUrl() = 0;
    virtual QObject* root() = 0;
    virtual wxWindow* wx() = 0;
    virtual QQmlEngine* engine() = 0;
};

} // namespace dbr
