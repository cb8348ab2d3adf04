// Opening a dialog (load, wrap, bind handlers, first onInitDialog) against
// loading the same QML in the same engine and handling what it posted.
#include "support/benchmain.h"

#include <dlgbridge/core/qmlchildlist.h>
#include <dlgbridge/hosting/qwxdialog.h>

#include <quickhost/quickhost.h>

#include <QCoreApplication>
#include <QQmlComponent>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTemporaryDir>
#include <QTextStream>

#include <benchmark/benchmark.h>

namespace dbr::bench {

namespace {

// Dialog code that binds a handler to every control, as ported dialogs do.
class BenchDialog : public qwxDialog
{
public:
    using qwxDialog::qwxDialog;

    bool initialised = false;

    void doEventTableInit() override
    {
        QmlChildList* children = qmlChildren(UseParentList);
        children->connectToClickEvent("wxID_ANY", [](qwxCommandEvent&) {});
        children->connectToCheckBoxEvent("wxID_ANY", [](qwxCommandEvent&) {});
        setInitDialogFunctor([this](qwxInitDialogEvent&) { initialised = true; });
    }
};

// A dialog file with the given number of controls, half buttons, half check boxes.
class DialogFile
{
public:
    explicit DialogFile(int controls)
    {
        QFile file(m_dir.filePath(QStringLiteral("dialog.qml")));
        file.open(QIODevice::WriteOnly);
        QTextStream qml(&file);
        qml << "import QtQuick 2.15\nimport QtQuick.Layouts 1.15\nimport Arvela.Components 1.0\n"
            << "DialogAV {\n  width: 400; height: 300\n  GridLayout {\n    columns: 10\n";
        for (int i = 0; i < controls; ++i) {
            qml << (i % 2 ? "    CheckBox" : "    Button") << " { objectName: \"control" << i << "\"; text: \"" << i
                << "\" }\n";
        }
        qml << "  }\n}\n";
        m_url = QUrl::fromLocalFile(file.fileName());
    }

    const QUrl& url() const { return m_url; }

private:
    QTemporaryDir m_dir;
    QUrl m_url;
};

template<typename Condition>
void processEventsUntil(Condition done)
{
    while (!done())
        QCoreApplication::processEvents();
}

std::unique_ptr<QQuickItem> loadAlone(QQmlEngine& engine, const QUrl& url)
{
    QQmlComponent component(&engine, url);
    return std::unique_ptr<QQuickItem>(qobject_cast<QQuickItem*>(component.create()));
}

// The application of one benchmark, with the file compiled once so that every
// measured round costs the same: it must go before the Qt application does.
struct Application
{
    explicit Application(const DialogFile& file) { loadAlone(engine(), file.url()); }

    quickhost::QuickHost host{{QStringLiteral(DLGBRIDGE_QML_IMPORT_DIR)}};
    QQmlEngine& engine() { return host.engine(); }
};

void openOnItem(benchmark::State& state, int controls)
{
    DialogFile file(controls);
    Application application(file);
    for (auto _ : state) {
        std::unique_ptr<QQuickItem> item = loadAlone(application.engine(), file.url());
        BenchDialog dialog(item.get());
        processEventsUntil([&] { return dialog.initialised; });
    }
}

void loadQml(benchmark::State& state, int controls)
{
    DialogFile file(controls);
    Application application(file);
    for (auto _ : state) {
        std::unique_ptr<QQuickItem> item = loadAlone(application.engine(), file.url());
        // What the QML posted is handled in the one turn of the loop that any opened QML gets.
        QCoreApplication::processEvents();
    }
}

void openHosted(benchmark::State& state, int controls)
{
    DialogFile file(controls);
    Application application(file);
    for (auto _ : state) {
        BenchDialog dialog;
        wut::doLoadDialog(&dialog, nullptr, file.url(), NotResizable, {}, nullptr);
        dialog.Show();
        processEventsUntil([&] { return dialog.initialised; });
    }
}

void showQmlInWindow(benchmark::State& state, int controls)
{
    DialogFile file(controls);
    Application application(file);
    for (auto _ : state) {
        QQuickWindow window;
        std::unique_ptr<QQuickItem> item = loadAlone(application.engine(), file.url());
        item->setParentItem(window.contentItem());
        window.show();
        QCoreApplication::processEvents();
    }
}

} // namespace

void registerBenchmarks()
{
    for (int controls : {10, 100, 1000}) {
        const std::string size = std::to_string(controls);
        benchmark::RegisterBenchmark(("open/" + size + "/ours").c_str(), openOnItem, controls)
            ->Unit(benchmark::kMicrosecond);
        benchmark::RegisterBenchmark(("open/" + size + "/qt").c_str(), loadQml, controls)
            ->Unit(benchmark::kMicrosecond);
        benchmark::RegisterBenchmark(("openInWindow/" + size + "/ours").c_str(), openHosted, controls)
            ->Unit(benchmark::kMicrosecond);
        benchmark::RegisterBenchmark(("openInWindow/" + size + "/qt").c_str(), showQmlInWindow, controls)
            ->Unit(benchmark::kMicrosecond);
    }
}

} // namespace dbr::bench
