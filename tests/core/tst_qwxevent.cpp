#include <dlgbridge/core/qwxclientdata.h>
#include <dlgbridge/core/qwxevent.h>

#include <QTest>

using namespace dbr;

class tst_qwxEvent : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void clientData_isThePointerOfAVoidClientDataOnly();
    void keyEvent_data();
    void keyEvent();
};

void tst_qwxEvent::clientData_isThePointerOfAVoidClientDataOnly()
{
    int payload = 0;
    VoidClientData pointer(&payload);
    qwxStringClientData text("x");

    QCOMPARE(qwxListEvent(nullptr, &pointer, 4).GetClientData(), &payload);
    QCOMPARE(qwxListEvent(nullptr, &text).GetClientData(), nullptr);
    QCOMPARE(qwxListEvent(nullptr, &text).GetClientObject(), &text);
    QCOMPARE(qwxGridEvent(nullptr, &pointer, 2, 5, "cell").GetClientData(), &payload);
}

void tst_qwxEvent::keyEvent_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("modifiers");
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("unicode");
    QTest::addColumn<bool>("hasModifiers");
    QTest::addColumn<QString>("down"); // C, A, S for Control, Alt, Shift

    QTest::newRow("shifted letter") << int(Qt::Key_A) << int(Qt::ShiftModifier) << "A" << int('A') << true << "S";
    QTest::newRow("keypad digit") << int(Qt::Key_5) << int(Qt::KeypadModifier) << "5" << int('5') << false << "";
    QTest::newRow("keypad with control") << int(Qt::Key_5) << int(Qt::KeypadModifier | Qt::ControlModifier) << "" << 0
                                         << true << "C";
    QTest::newRow("two characters") << int(Qt::Key_unknown) << 0 << "ab" << 0 << false << "";
    QTest::newRow("non-ASCII character") << int(Qt::Key_Odiaeresis) << 0 << QString::fromUtf8("ö") << 0xF6 << false
                                         << "";
}

void tst_qwxEvent::keyEvent()
{
    QFETCH(int, key);
    QFETCH(int, modifiers);
    QFETCH(QString, text);
    QFETCH(int, unicode);
    QFETCH(bool, hasModifiers);
    QFETCH(QString, down);

    const qwxKeyEvent event(nullptr, key, modifiers, text);
    QCOMPARE(event.getKey(), key);
    QCOMPARE(int(event.GetUnicodeKey()), unicode);
    QCOMPARE(event.HasModifiers(), hasModifiers);
    QCOMPARE(event.ControlDown(), down.contains('C'));
    QCOMPARE(event.AltDown(), down.contains('A'));
    QCOMPARE(event.ShiftDown(), down.contains('S'));
}

QTEST_MAIN(tst_qwxEvent)
#include "tst_qwxevent.moc"
