// A click from a QML button's signal to a handler bound by object name, against
// a direct connection of the same signal to a slot that calls a lambda.
#include "support/benchmain.h"
#include "support/benchtree.h"

#include <QMetaMethod>
#include <QQmlComponent>
#include <QQmlEngine>

#include <benchmark/benchmark.h>

#include <functional>

namespace dbr::bench {

namespace {

class LambdaSlot : public QObject
{
    Q_OBJECT
public:
    explicit LambdaSlot(std::function<void()> function)
        : m_function(std::move(function))
    {}
public Q_SLOTS:
    void fire() { m_function(); }

private:
    std::function<void()> m_function;
};

// A dialog root with one kit button, and its clicked() signal ready to emit.
class ButtonScene
{
public:
    ButtonScene()
    {
        m_engine.addImportPath(QStringLiteral(DLGBRIDGE_QML_IMPORT_DIR));
        QQmlComponent component(&m_engine);
        component.setData("import Arvela.Components 1.0\nDialogAV { Button { objectName: \"wxID_OK\" } }", QUrl());
        m_root.reset(component.create());
        button = m_root->findChild<QObject*>(QStringLiteral("wxID_OK"));
        clicked = button->metaObject()->method(button->metaObject()->indexOfSignal("clicked()"));
    }

    QObject& root() { return *m_root; }
    QObject* button = nullptr;
    QMetaMethod clicked;

private:
    QQmlEngine m_engine;
    std::unique_ptr<QObject> m_root;
};

void clickThroughWrapper(benchmark::State& state)
{
    ButtonScene scene;
    BenchHost host(scene.root());
    host.list().populate(scene.root());
    int clicks = 0;
    host.list().connectToClickEvent("wxID_OK", [&clicks](qwxCommandEvent&) { ++clicks; });
    for (auto _ : state)
        scene.clicked.invoke(scene.button);
    benchmark::DoNotOptimize(clicks);
}

void clickThroughLambda(benchmark::State& state)
{
    ButtonScene scene;
    int clicks = 0;
    LambdaSlot slot([&clicks] { ++clicks; });
    QObject::connect(scene.button, SIGNAL(clicked()), &slot, SLOT(fire()));
    for (auto _ : state)
        scene.clicked.invoke(scene.button);
    benchmark::DoNotOptimize(clicks);
}

} // namespace

void registerBenchmarks()
{
    benchmark::RegisterBenchmark("click/ours", clickThroughWrapper);
    benchmark::RegisterBenchmark("click/qt", clickThroughLambda);
}

} // namespace dbr::bench

#include "bench_click.moc"
