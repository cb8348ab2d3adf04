#include <dlgbridge/controls/qwxdragdrop.h>
#include <dlgbridge/controls/qwximagelist.h>
#include <dlgbridge/controls/qwxsizer.h>
#include <dlgbridge/controls/qwxtimer.h>
#include <dlgbridge/core/ieventhandler.h>
#include <dlgbridge/core/qmlchildlist.h>
#include <dlgbridge/core/qwxevent.h>

#include <QTest>

#include <functional>

#include <wx/image.h>

#include "support/testhost.h"
#include "support/testvalidator.h"

using namespace dbr;
using namespace dbr::test;

namespace {

wxBitmap filledBitmap(unsigned char red, int width = 2, int height = 2)
{
    wxImage image(width, height);
    image.SetRGB(wxRect(0, 0, width, height), red, 0, 0);
    return wxBitmap(image);
}

// Notes its own destruction, to show that a placeholder frees what it is given.
template<typename Base>
class Flagging : public Base
{
public:
    explicit Flagging(bool& destroyed)
        : m_destroyed(destroyed)
    {}
    ~Flagging() override { m_destroyed = true; }

private:
    bool& m_destroyed;
};

// What the placeholders are called on.
struct Stubs
{
    TestHost host;
    TestControl control{"first", host};
    qwxSizerItem item;
    qwxTextDataObject text{"dragged"};
};
using Call = std::function<void(Stubs&)>;

} // namespace

Q_DECLARE_METATYPE(Call)

class tst_SmallServices : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void timer_ticksReachTheHandlersOfItsId();
    void imageList_indexesItsImages();
    void placeholders_logAndAnswerNeutrally_data();
    void placeholders_logAndAnswerNeutrally();
};

void tst_SmallServices::timer_ticksReachTheHandlersOfItsId()
{
    TestHost host;
    QmlChildList& list = host.list();
    TestControl owner("owner", host);
    QList<QPair<int, qwxWindow*>> heardBySeven;
    QList<int> heardByAll;
    list.connectToTimerEvent(owner, 7, [&](qwxTimerEvent& event) {
        heardBySeven.append({event.getTimerId(), event.GetEventObject()});
    });
    list.connectToTimerEvent(host, -1, [&](qwxTimerEvent& event) { heardByAll.append(event.getTimerId()); });

    qwxTimer seven(&owner, 7);
    qwxTimer eight(&list, 8);
    seven.Start(5);
    eight.Start(5);
    QTRY_VERIFY(heardBySeven.size() >= 2 && heardByAll.contains(7) && heardByAll.contains(8));
    seven.Stop();
    eight.Stop();
    for (const auto& tick : heardBySeven)
        QCOMPARE(tick, qMakePair(7, static_cast<qwxWindow*>(&owner)));
}

void tst_SmallServices::imageList_indexesItsImages()
{
    qwxImageList list(16, 16, true, 1);
    QCOMPARE(list.Add(filledBitmap(10)), 0);
    QCOMPARE(list.Add(filledBitmap(20, 3, 1)), 1);
    QCOMPARE(list.Add(filledBitmap(30)), 2);
    QCOMPARE(list.getImage(1).size(), QSize(3, 1));
    QCOMPARE(qRed(list.getImage(2).pixel(1, 1)), 30);
    QVERIFY(list.getImage(-1).isNull());
    QVERIFY(list.getImage(3).isNull());
}

void tst_SmallServices::placeholders_logAndAnswerNeutrally_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QStringList>("messages");
    QTest::addColumn<Call>("call");

    const auto row = [](const char* name, const char* message, const Call& call, QtMsgType type = QtDebugMsg) {
        QTest::newRow(name) << int(type) << QStringList{message} << call;
    };
    row("window GetSizer", "qwxWindow::GetSizer : stub", [](Stubs& s) { QVERIFY(!s.control.GetSizer()); });
    row("PushEventHandler frees the handler", "qwxWindow::PushEventHandler : stub", [](Stubs& s) {
        bool destroyed = false;
        s.host.PushEventHandler(new Flagging<IEventHandler>(destroyed));
        QVERIFY(destroyed);
    });
    row("item GetSize names the sizer", "qwxSizer::GetSize : stub",
        [](Stubs& s) { QCOMPARE(s.item.GetSize(), wxSize(0, 0)); });
    QTest::newRow("DoDragDrop") << int(QtDebugMsg)
                                << QStringList{"qwxDropSource::qwxDropSource: stub + ownership?",
                                               "qwxDropSource::DoDragDrop: stub"}
                                << Call([](Stubs& s) { QCOMPARE(qwxDropSource(s.text, s.host).DoDragDrop(0), 0); });
    row("SetDataObject frees the data", "qwxDropTarget::SetDataObject: stub", [](Stubs&) {
        bool destroyed = false;
        qwxDropTarget().SetDataObject(new Flagging<qwxDataObject>(destroyed));
        QVERIFY(destroyed);
    });
    row("Validate", "IValidator::Validate: needs implementations", [](Stubs& s) {
        ValidatorJournal journal;
        QCOMPARE(JournalValidator(journal).Validate(&s.host), false);
    }, QtWarningMsg);
}

void tst_SmallServices::placeholders_logAndAnswerNeutrally()
{
    QFETCH(int, type);
    QFETCH(QStringList, messages);
    QFETCH(Call, call);

    Stubs stubs;
    for (const QString& message : messages)
        QTest::ignoreMessage(QtMsgType(type), qPrintable(message));
    call(stubs);
}

QTEST_MAIN(tst_SmallServices)
#include "tst_smallservices.moc"
