#include <dlgbridge/controls/qwxdragdrop.h>
#include <dlgbridge/controls/qwximagelist.h>
#include <dlgbridge/controls/qwxsizer.h>
#include <dlgbridge/controls/qwxtimer.h>
#include <dlgbridge/core/qmlchildlist.h>

#include <QSignalSpy>
#include <QTest>

#include <wx/image.h>

#include "support/qmlfixture.h"
#include "support/testhost.h"

using namespace dbr;
using namespace dbr::test;

namespace {

wxBitmap filledBitmap(unsigned char red, int width = 2, int height = 2)
{
    wxImage image(width, height);
    image.SetRGB(wxRect(0, 0, width, height), red, 0, 0);
    return wxBitmap(image);
}

enum class Placeholder { Insert, GetItem, SetSizeHints, Layout, GetSize, GetSizer, DropSource, DoDragDrop };

class FlaggingData : public qwxDataObject
{
public:
    explicit FlaggingData(bool& destroyed)
        : m_destroyed(destroyed)
    {}
    ~FlaggingData() override { m_destroyed = true; }

private:
    bool& m_destroyed;
};

} // namespace

Q_DECLARE_METATYPE(Placeholder)

class tst_SmallServices : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void timer_ticksReachTheHandlersOfItsId();
    void timer_withoutListTicksGoNowhere();
    void imageList_indexesItsImages();
    void placeholders_logAndAnswerNeutrally_data();
    void placeholders_logAndAnswerNeutrally();
    void dropTarget_deletesTheDataItIsGiven();
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
    QCOMPARE(seven.GetId(), 7);
    QVERIFY(!seven.IsRunning());
    seven.Start(5);
    eight.Start(5);
    QVERIFY(seven.IsRunning());
    QTRY_VERIFY(heardBySeven.size() >= 2 && heardByAll.contains(8));
    seven.Stop();
    eight.Stop();
    QVERIFY(!seven.IsRunning());

    for (const auto& tick : heardBySeven)
        QCOMPARE(tick, qMakePair(7, static_cast<qwxWindow*>(&owner)));
    QVERIFY(heardByAll.contains(7));

    // Once the connections are gone, a tick has nowhere to go.
    list.resetCallbacks();
    const int heard = heardByAll.size();
    QTest::ignoreMessage(QtCriticalMsg, "No timer helper initialized 7");
    list.onTimer(7);
    QCOMPARE(heardByAll.size(), heard);
}

void tst_SmallServices::timer_withoutListTicksGoNowhere()
{
    QTest::ignoreMessage(QtCriticalMsg, "Invalid parent for qwx timer");
    qwxTimer timer(static_cast<qwxWindow*>(nullptr), 7);
    QCOMPARE(timer.GetId(), 7);
    QVERIFY(!timer.IsRunning());
    timer.Start(1);
    QVERIFY(timer.IsRunning());
    QTest::qWait(5);
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

    qwxImageList copy = list;
    QCOMPARE(copy.Add(filledBitmap(40)), 3);
    QVERIFY(list.getImage(3).isNull());
}

void tst_SmallServices::placeholders_logAndAnswerNeutrally_data()
{
    QTest::addColumn<Placeholder>("placeholder");
    QTest::addColumn<QString>("message");

    QTest::newRow("Insert") << Placeholder::Insert << "qwxSizer::Insert : stub";
    QTest::newRow("GetItem") << Placeholder::GetItem << "qwxSizer::GetItem : stub";
    QTest::newRow("SetSizeHints") << Placeholder::SetSizeHints << "qwxSizer::SetSizeHints : stub";
    QTest::newRow("Layout") << Placeholder::Layout << "qwxSizer::Layout : stub";
    QTest::newRow("GetSize names the sizer") << Placeholder::GetSize << "qwxSizer::GetSize : stub";
    QTest::newRow("GetSizer") << Placeholder::GetSizer << "qwxSizer::GetSizer : stub";
    QTest::newRow("drop source") << Placeholder::DropSource << "qwxDropSource::qwxDropSource: stub + ownership?";
    QTest::newRow("DoDragDrop") << Placeholder::DoDragDrop << "qwxDropSource::DoDragDrop: stub";
}

void tst_SmallServices::placeholders_logAndAnswerNeutrally()
{
    QFETCH(Placeholder, placeholder);
    QFETCH(QString, message);

    TestHost host;
    qwxSizer sizer;
    qwxSizerItem item;
    qwxTextDataObject text("dragged");
    if (placeholder == Placeholder::DoDragDrop)
        QTest::ignoreMessage(QtDebugMsg, "qwxDropSource::qwxDropSource: stub + ownership?");
    QTest::ignoreMessage(QtDebugMsg, qPrintable(message));
    switch (placeholder) {
    case Placeholder::Insert: QCOMPARE(sizer.Insert(0, &host), nullptr); break;
    case Placeholder::GetItem: QCOMPARE(sizer.GetItem(0), nullptr); break;
    case Placeholder::SetSizeHints: sizer.SetSizeHints(&host); break;
    case Placeholder::Layout: sizer.Layout(); break;
    case Placeholder::GetSize: QCOMPARE(item.GetSize(), wxSize(0, 0)); break;
    case Placeholder::GetSizer: QCOMPARE(item.GetSizer(), nullptr); break;
    case Placeholder::DropSource: qwxDropSource(text, host); break;
    case Placeholder::DoDragDrop: QCOMPARE(qwxDropSource(text, host).DoDragDrop(0), 0); break;
    }
}

void tst_SmallServices::dropTarget_deletesTheDataItIsGiven()
{
    qwxDropTarget target;
    bool destroyed = false;
    QTest::ignoreMessage(QtDebugMsg, "qwxDropTarget::SetDataObject: stub");
    target.SetDataObject(new FlaggingData(destroyed));
    QVERIFY(destroyed);
    QTest::ignoreMessage(QtDebugMsg, "qwxDropTarget::SetDataObject: stub");
    target.SetDataObject(nullptr);
}

QTEST_MAIN(tst_SmallServices)
#include "tst_smallservices.moc"
