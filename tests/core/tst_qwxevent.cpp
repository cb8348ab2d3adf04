#include <dlgbridge/controls/qwxclientdata.h>
#include <dlgbridge/core/qwxevent.h>

#include <QTest>

using namespace dbr;

namespace {

enum class Value { None, Bool, Int, String };

qwxCommandEvent commandEvent(Value kind, qwxClientData* client)
{
    switch (kind) {
    case Value::Bool: return qwxCommandEvent(nullptr, true);
    case Value::Int: return qwxCommandEvent(nullptr, 3, client);
    case Value::String: return qwxCommandEvent(nullptr, wxString("abc"), client);
    case Value::None: break;
    }
    return qwxCommandEvent(nullptr);
}

} // namespace

Q_DECLARE_METATYPE(Value)

class tst_qwxEvent : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void commandEvent_answersOnlyFromItsOwnValue_data();
    void commandEvent_answersOnlyFromItsOwnValue();
    void clientData_isThePointerOfAVoidClientDataOnly();
    void keyEvent_data();
    void keyEvent();
};

void tst_qwxEvent::commandEvent_answersOnlyFromItsOwnValue_data()
{
    QTest::addColumn<Value>("kind");
    QTest::addColumn<int>("selection");
    QTest::addColumn<bool>("checked");
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("hasClient");

    QTest::newRow("nothing") << Value::None << 0 << false << "" << false;
    QTest::newRow("bool") << Value::Bool << 0 << true << "" << false;
    QTest::newRow("int") << Value::Int << 3 << false << "" << true;
    QTest::newRow("string") << Value::String << 0 << false << "abc" << true;
}

void tst_qwxEvent::commandEvent_answersOnlyFromItsOwnValue()
{
    QFETCH(Value, kind);
    QFETCH(int, selection);
    QFETCH(bool, checked);
    QFETCH(QString, text);
    QFETCH(bool, hasClient);

    qwxStringClientData client("row");
    qwxCommandEvent moved = commandEvent(kind, &client);
    const qwxCommandEvent event = std::move(moved);
    QCOMPARE(event.GetSelection(), selection);
    QCOMPARE(event.IsChecked(), checked);
    QCOMPARE(event.GetString(), wxString(text.toStdWString()));
    QCOMPARE(event.GetClientObject(), hasClient ? &client : nullptr);
}

void tst_qwxEvent::clientData_isThePointerOfAVoidClientDataOnly()
{
    int payload = 0;
    VoidClientData pointer(&payload);
    qwxStringClientData text("x");

    QCOMPARE(qwxListEvent(nullptr, &pointer, 4).GetClientData(), &payload);
    QCOMPARE(qwxListEvent(nullptr, &text).GetClientData(), nullptr);
    QCOMPARE(qwxListEvent(nullptr, &text).GetClientObject(), &text);
    QCOMPARE(qwxListEvent(nullptr, nullptr).GetClientData(), nullptr);
    QCOMPARE(qwxGridEvent(nullptr, &pointer, 2, 5, "cell").GetClientData(), &payload);
    QCOMPARE(qwxGridEvent(nullptr, &text).GetClientData(), nullptr);
}

void tst_qwxEvent::keyEvent_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("modifiers");
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("unicode");
    QTest::addColumn<bool>("hasModifiers");
    QTest::addColumn<QString>("down"); // C, A, S for Control, Alt, Shift

    QTest::newRow("plain letter") << int(Qt::Key_A) << 0 << "a" << int('a') << false << "";
    QTest::newRow("shifted letter") << int(Qt::Key_A) << int(Qt::ShiftModifier) << "A" << int('A') << true << "S";
    QTest::newRow("keypad digit") << int(Qt::Key_5) << int(Qt::KeypadModifier) << "5" << int('5') << false << "";
    QTest::newRow("keypad with control") << int(Qt::Key_5) << int(Qt::KeypadModifier | Qt::ControlModifier) << "" << 0
                                         << true << "C";
    QTest::newRow("alt") << int(Qt::Key_F) << int(Qt::AltModifier) << "f" << int('f') << true << "A";
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
