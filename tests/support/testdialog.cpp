#include "testdialog.h"

#include <dlgbridge/core/qmlchildlist.h>

#include <QTimer>

namespace dbr::test {

void TestDialog::resyncToUI()
{
    journal.append(QStringLiteral("resync"));
}

void TestDialog::doEventTableInit()
{
    journal.append(QStringLiteral("eventTable"));
    if (bind)
        bind(*qmlChildren(UseParentList));
    if (markEventTableLoaded)
        m_eventTableLoaded = true;
}

void TestDialog::onCreateWindow()
{
    journal.append(QStringLiteral("createWindow"));
    if (script)
        QTimer::singleShot(0, this, [this] { script(*this); });
}

bool TestDialog::beforeOk()
{
    journal.append(QStringLiteral("beforeOk"));
    if (okVetoes == 0)
        return true;
    --okVetoes;
    return false;
}

bool TestDialog::beforeCancel()
{
    journal.append(QStringLiteral("beforeCancel"));
    return true;
}

QObject* TestDialog::item(const char* name) const
{
    QObject* top = root();
    return top ? top->findChild<QObject*>(QLatin1String(name)) : nullptr;
}

void TestDialog::onCreateDialog(qwxInitDialogEvent&)
{
    journal.append(QStringLiteral("createDialog"));
}

void TestDialog::onReloadContent()
{
    journal.append(QStringLiteral("reloadContent"));
}

} // namespace dbr::test
