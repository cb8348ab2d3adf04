#pragma once

#include "quickcommandline.h"
#include "quickdialogfactory.h"
#include "quickguicontroller.h"
#include <quickhost/quickhost_export.h>

#include <QQmlEngine>

#include <ca/CaApp.h>
#include <oda/OdApDocument.h>

namespace dbr::quickhost {

// The reference application: one QML engine that reaches the component kit,
// the GUI controller and the dialog factory built on it, the command line,
// installed as the input processor, the documents, with one drawing open from
// the start, and the application object, installed as oa::OaApp::s_app, both
// for the host's lifetime.
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
    QuickCommandLine& commandLine() { return m_commandLine; }
    ca::CaApp& application() { return m_app; }
    OdApDocManager& documents() { return m_documents; }

private:
    Q_DISABLE_COPY(QuickHost)

    QQmlEngine m_engine;
    QuickGuiController m_guiController;
    QuickDialogFactory m_dialogFactory;
    QuickCommandLine m_commandLine;
    OdApDocManager m_documents;
    ca::CaApp m_app;
};

} // namespace dbr::quickhost
