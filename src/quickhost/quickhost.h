#pragma once

#include "quickdialogfactory.h"
#include "quickguicontroller.h"
#include <quickhost/quickhost_export.h>

#include <QQmlEngine>

#include <oa/OaApp.h>

namespace dbr::quickhost {

// The reference application: one QML engine that reaches the component kit,
// the GUI controller and the dialog factory built on it, and the application
// object, installed as oa::OaApp::s_app for the host's lifetime.
class DLGBRIDGE_QUICKHOST_EXPORT QuickHost
{
public:
    // An installed host finds the installed component kit by itself; the
    // given import paths come before it (a build tree's kit, say).
    explicit QuickHost(const QStringList& importPaths = {});
    ~QuickHost();

    QQmlEngine& engine() { return m_engine; }
    QuickGuiController& guiController() { return m_guiController; }
    QuickDialogFactory& dialogFactory() { return m_dialogFactory; }

private:
    Q_DISABLE_COPY(QuickHost)

    QQmlEngine m_engine;
    QuickGuiController m_guiController;
    QuickDialogFactory m_dialogFactory;
    oa::OaApp m_app;
};

} // namespace dbr::quickhost
