#include "shownqml.h"

#include <QQmlComponent>

namespace dbr::bench {

ShownQml::ShownQml(const QByteArray& item)
{
    m_engine.addImportPath(QStringLiteral(DLGBRIDGE_QML_IMPORT_DIR));
    QQmlComponent component(&m_engine);
    component.setData("import QtQuick 2.15\nimport Arvela.Components 1.0\nItem { width: 400; height: 600\n" + item +
                          "\n}",
                      QUrl());
    m_root.reset(qobject_cast<QQuickItem*>(component.create()));
    m_root->setParentItem(m_window.contentItem());
    m_window.resize(400, 600);
    m_window.show();
    m_host = std::make_unique<Host>(m_root.get());
    settle();
}

ShownQml::~ShownQml()
{
    m_root->setParentItem(nullptr);
}

} // namespace dbr::bench
