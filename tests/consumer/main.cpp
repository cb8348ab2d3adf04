// Runs a dialog through the installed host and QML module, as an application's
// GUI test does: a click on the check box, a click on OK, and the dialog code
// must have read the check. Exits with 0 only then.
#include <dlgbridge/controls/qwxcheckbox.h>
#include <dlgbridge/gpm/gpmtreedata.h>
#include <dlgbridge/hosting/qwxdialog.h>
#include <quickhost/quickhost.h>

#include <QFileInfo>
#include <QGuiApplication>
#include <QQmlComponent>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTest>
#include <QTimer>

#include <wx/defs.h>

#include <cstdio>

namespace {

constexpr int watchdogMs = 10000;

class AgreeDialog : public dbr::qwxDialog
{
public:
    bool agreed = false;

    bool beforeOk() override
    {
        agreed = dynamic_cast<dbr::qwxCheckBox&>(*FindWindow("agree")).GetValue();
        return true;
    }

    // The wrappers exist from here on, so the user may start.
    void onCreateWindow() override
    {
        QTimer::singleShot(0, this, [this] {
            if (!waitForExposed()) {
                std::fprintf(stderr, "The dialog never came on screen\n");
                return;
            }
            click("agree");
            click("wxID_OK");
        });
    }

private:
    void click(const char* name)
    {
        auto* item = root()->findChild<QQuickItem*>(QLatin1String(name));
        const QPointF centre = item->mapToScene(QPointF(item->width() / 2, item->height() / 2));
        QTest::mouseClick(item->window(), Qt::LeftButton, Qt::NoModifier, centre.toPoint());
    }
};

} // namespace

int main(int argc, char** argv)
{
    QGuiApplication app(argc, argv);
    // No import path: the installed host finds its module by itself.
    dbr::quickhost::QuickHost host;
    AgreeDialog dialog;
    dbr::wut::doLoadDialog(&dialog, nullptr, QUrl(QStringLiteral("qrc:/consumer/AgreeDialog.qml")), dbr::NotResizable,
                           {}, nullptr);
    if (!dialog.root()) {
        std::fprintf(stderr, "The dialog's QML did not load\n");
        return 1;
    }
    QTimer::singleShot(watchdogMs, &dialog, [&dialog] { dbr::EndModal(&dialog, wxID_ABORT); });

    const int code = dbr::ShowModal(&dialog);
    std::printf("ShowModal returned %d, check box read as %s\n", code, dialog.agreed ? "checked" : "unchecked");

    // Property items name their editors in the installed module.
    const QUrl editor = dbr::GPMTreeData::gpmComponentUrl(QStringLiteral("RealType.qml"));
    QQmlComponent component(&host.engine(), editor);
    const bool editorLoads = QFileInfo::exists(editor.toLocalFile()) && component.isReady();
    std::printf("The real number editor %s: %s\n", editorLoads ? "loads" : "does not load",
                qPrintable(editor.toLocalFile()));
    return code == wxID_OK && dialog.agreed && editorLoads ? 0 : 1;
}
