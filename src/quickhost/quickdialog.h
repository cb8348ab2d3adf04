#pragma once

#include <dlgbridge/services/iwxqtdialog.h>
#include <quickhost/quickhost_export.h>

#include <QObject>

#include <memory>

class QQmlEngine;
class QQuickWindow;

namespace dbr {
class BaseDialogController;
}

namespace dbr::quickhost {

class QuickDialogPrivate;

// The application's side of a dialog: its QML in a Qt Quick window, and a
// modal loop. The root's accepted() and rejected() ask the controller and end
// the dialog only when it agrees; applied() leaves the dialog open, as an Apply
// button does, for the handlers of the dialog code. Closing the window asks as
// Cancel does, with or without content.
class DLGBRIDGE_QUICKHOST_EXPORT QuickDialog : public QObject, public IWxQtDialog
{
    Q_OBJECT

public:
    QuickDialog(QQmlEngine& engine, const QUrl& url, BaseDialogController* controller);
    ~QuickDialog() override;

    void Show() override;
    int ShowModal() override;
    void Hide(int returnCode) override;
    int GetReturnCode() override;
    bool IsModal() override;
    void EndModal(int returnCode) override;
    void hostOperationA() override;
    void hostOperationB() override;
    void SetTitle(const QString& title) override;
    bool isReady() override;
    bool waitForExposed() override;
    void aboutToBeDestroyed() override;
    QUrl sourceUrl() override;
    QObject* root() override;
    wxWindow* wx() override;
    QQmlEngine* engine() override;

    QQuickWindow& window() const;
    // Instantiates the QML anew and tells the controller, as after an edit of the file.
    void reload();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private Q_SLOTS:
    void onAccepted();
    void onRejected();

private:
    void connectRoot();
    // True when the dialog ended.
    bool requestEnd(int returnCode);

    std::unique_ptr<QuickDialogPrivate> const d;
};

} // namespace dbr::quickhost
