#include <dlgbridge/controls/qwxgenericvalidator.h>
#include <dlgbridge/controls/qwxtextvalidator.h>
#include <dlgbridge/core/qmlchildlist.h>

#include <QQuickItem>
#include <QTemporaryDir>
#include <QTest>

#include <qut/qtconversions.h>

#include "support/itemwindow.h"
#include "support/logrecorder.h"
#include "support/paths.h"
#include "support/qmlfixture.h"
#include "support/testdialog.h"
#include "support/testhost.h"

#include <quickhost/quickhost.h>

#include <wx/defs.h>

using namespace dbr;
using namespace dbr::test;

namespace {

const QByteArray controlsQml = R"(
import QtQuick 2.15
import Arvela.Components 1.0

DialogAV {
    width: 320
    height: 400
    Column {
        TextField { objectName: "name" }
        CheckBox { objectName: "snap"; text: "Snap" }
        SpinBox { objectName: "count"; to: 10 }
        ComboBox { objectName: "kind"; model: ["a", "b", "c"] }
        ComboBox { objectName: "path"; editable: true; model: ["x", "y"] }
        Label { objectName: "caption"; text: "idle" }
        ToggleButton { objectName: "mode"; model: ["A", "B"] }
    }
}
)";

// The variables of dialog code, one of each kind a generic validator serves.
struct Variables
{
    bool flag = false;
    int number = 0;
    wxString text;

    qwxGenericValidator validatorFor(const QVariant& value)
    {
        switch (value.userType()) {
        case QMetaType::Bool: return qwxGenericValidator(&flag);
        case QMetaType::Int: return qwxGenericValidator(&number);
        default: return qwxGenericValidator(&text);
        }
    }
    void set(const QVariant& value)
    {
        flag = value.toBool();
        number = value.toInt();
        text = qut::wxFromQt(value.toString());
    }
    QVariant get(int type) const
    {
        switch (type) {
        case QMetaType::Bool: return flag;
        case QMetaType::Int: return number;
        default: return qut::toQt(text);
        }
    }
};

} // namespace

class tst_Validators : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_qml = std::make_unique<QmlFixture>();
        m_host = std::make_unique<TestHost>(m_qml->loadData(controlsQml));
        m_host->populate();
    }
    void cleanup()
    {
        m_host.reset();
        m_qml.reset();
    }
    void generic_transfersBothWays_data();
    void generic_transfersBothWays();
    void generic_unsupportedPair_logsAndTransfersNothing_data();
    void generic_unsupportedPair_logsAndTransfersNothing();
    void withoutControlOrVariable_failsSilently();
    void copy_writesTheSameVariable();
    void text_servesOnlyTextControls();
    void dialog_showsTheVariablesAndReadsThemBackBeforeBeforeOk();
    void dialogDestroyed_neverTouchesItsVariablesAgain();

private:
    qwxControl& control(const char* name) { return *m_host->list().child<qwxControl>(name); }
    // The control of that name, validated over the variable of variables that holds value.
    qwxControl& validated(const char* name, Variables& variables, const QVariant& value)
    {
        variables.set(value);
        qwxControl& target = control(name);
        target.SetValidator(variables.validatorFor(value));
        return target;
    }
    QObject* item(const char* name) const { return m_host->root()->findChild<QObject*>(QLatin1String(name)); }

    std::unique_ptr<QmlFixture> m_qml;
    std::unique_ptr<TestHost> m_host;
};

void tst_Validators::generic_transfersBothWays_data()
{
    QTest::addColumn<QByteArray>("control");
    QTest::addColumn<QByteArray>("property");
    QTest::addColumn<QVariant>("variable");
    QTest::addColumn<QVariant>("edited");
    // Bool and int both ways run in the dialog test below, on the check box, spin box and choice.
    QTest::newRow("string, text") << QByteArray("name") << QByteArray("text") << QVariant("abc") << QVariant("xyz");
    QTest::newRow("string, combo entry") << QByteArray("path") << QByteArray("editText") << QVariant("y")
                                         << QVariant("typed");
    QTest::newRow("string, label") << QByteArray("caption") << QByteArray("text") << QVariant("done")
                                   << QVariant("later");
}

void tst_Validators::generic_transfersBothWays()
{
    QFETCH(QByteArray, control);
    QFETCH(QByteArray, property);
    QFETCH(QVariant, variable);
    QFETCH(QVariant, edited);
    Variables variables;
    qwxControl& target = validated(control.constData(), variables, variable);

    QVERIFY(target.GetValidator()->TransferToWindow());
    QCOMPARE(item(control.constData())->property(property.constData()), variable);
    item(control.constData())->setProperty(property.constData(), edited);
    QVERIFY(target.GetValidator()->TransferFromWindow());
    QCOMPARE(variables.get(variable.userType()), edited);
}

void tst_Validators::generic_unsupportedPair_logsAndTransfersNothing_data()
{
    QTest::addColumn<QByteArray>("control");
    QTest::addColumn<QVariant>("variable");
    QTest::addColumn<bool>("toWindow");
    QTest::addColumn<QString>("message");
    QTest::newRow("bool to toggle")
        << QByteArray("mode") << QVariant(true) << true
        << R"((bool) No valid control found for transfer to window. Control:  "mode"  -  "qwxToggleButton")";
    QTest::newRow("bool from toggle")
        << QByteArray("mode") << QVariant(true) << false
        << R"((bool) No valid control found for transfer from window. Control: "mode"  -  "qwxToggleButton")";
    QTest::newRow("int to combo")
        << QByteArray("path") << QVariant(1) << true
        << R"((int) No valid control found for transfer to window. Control: "path"  -  "qwxComboBox")";
    QTest::newRow("int from label")
        << QByteArray("caption") << QVariant(1) << false
        << R"((int) No valid control found for transfer from window. Control: "caption"  -  "qwxStaticText")";
    QTest::newRow("string to check box")
        << QByteArray("snap") << QVariant("on") << true
        << R"((string) No valid control found for transfer to window. Control: "snap"  -  "qwxCheckBox")";
    QTest::newRow("string from spin")
        << QByteArray("count") << QVariant("4") << false
        << R"((string) No valid control found for transfer from window. Control: "count"  -  "qwxSpinCtrl")";
}

void tst_Validators::generic_unsupportedPair_logsAndTransfersNothing()
{
    QFETCH(QByteArray, control);
    QFETCH(QVariant, variable);
    QFETCH(bool, toWindow);
    QFETCH(QString, message);
    Variables variables;
    qwxControl& target = validated(control.constData(), variables, variable);
    const QVariantMap before = {{"text", item(control.constData())->property("text")},
                                {"currentIndex", item(control.constData())->property("currentIndex")},
                                {"checked", item(control.constData())->property("checked")}};

    QTest::ignoreMessage(QtWarningMsg, qPrintable(message));
    IValidator& validator = *target.GetValidator();
    QVERIFY(!(toWindow ? validator.TransferToWindow() : validator.TransferFromWindow()));
    QCOMPARE(variables.get(variable.userType()), variable);
    for (auto property = before.begin(); property != before.end(); ++property)
        QCOMPARE(item(control.constData())->property(qPrintable(property.key())), property.value());
}

void tst_Validators::withoutControlOrVariable_failsSilently()
{
    LogRecorder log;
    int number = 4;
    qwxGenericValidator unbound(&number);
    QVERIFY(!unbound.TransferToWindow());
    QVERIFY(!unbound.TransferFromWindow());
    wxString text = "kept";
    qwxTextValidator unboundText(wxFILTER_NONE, &text);
    QVERIFY(!unboundText.TransferFromWindow());

    control("count").SetValidator(qwxGenericValidator(static_cast<int*>(nullptr)));
    QVERIFY(!control("count").GetValidator()->TransferToWindow());
    QVERIFY(!control("count").GetValidator()->TransferFromWindow());
    QCOMPARE(log.lines(), QStringList());
    QCOMPARE(number, 4);
    QCOMPARE(text, wxString("kept"));
}

void tst_Validators::copy_writesTheSameVariable()
{
    int number = 0;
    const qwxGenericValidator original(&number);
    const std::unique_ptr<IValidator> clone(original.clone());
    QVERIFY(!clone->GetWindow());

    control("count").SetValidator(qwxGenericValidator(original));
    item("count")->setProperty("value", 6);
    control("count").TransferDataFromWindow();
    QCOMPARE(number, 6);
    clone->SetWindow(&control("kind"));
    item("kind")->setProperty("currentIndex", 2);
    QVERIFY(clone->TransferFromWindow());
    QCOMPARE(number, 2);
}

void tst_Validators::text_servesOnlyTextControls()
{
    wxString text = "first";
    LogRecorder log;
    QTest::ignoreMessage(QtWarningMsg, "qwxTextValidator::qwxTextValidator style param 4 not implemented");
    const qwxTextValidator validator(wxFILTER_ALPHA, &text);
    control("name").SetValidator(validator);
    control("path").SetValidator(validator);

    control("name").TransferDataToWindow();
    QCOMPARE(item("name")->property("text").toString(), QStringLiteral("first"));
    QVERIFY(!control("path").GetValidator()->TransferToWindow());
    item("path")->setProperty("editText", "ignored");
    QVERIFY(!control("path").GetValidator()->TransferFromWindow());
    item("name")->setProperty("text", "second");
    QVERIFY(control("name").GetValidator()->TransferFromWindow());
    QCOMPARE(text, wxString("second"));
    QCOMPARE(log.lines().size(), 1); // the style is told once, not by each copy
}

namespace {

// Dialog code whose variables are members, as wx dialogs keep them.
class FormDialog : public TestDialog
{
public:
    wxString name = "Ground floor";
    bool snap = true;
    int count = 3;
    int kind = 2;
    // What beforeOk saw of the variables.
    QStringList seenByOk;

    bool beforeOk() override
    {
        seenByOk.append(QStringLiteral("%1 %2 %3 %4").arg(qut::toQt(name)).arg(snap).arg(count).arg(kind));
        return TestDialog::beforeOk();
    }
    void bindValidators(QmlChildList& list)
    {
        list.FindWindow("name")->SetValidator(qwxTextValidator(wxFILTER_NONE, &name));
        list.FindWindow("snap")->SetValidator(qwxGenericValidator(&snap));
        list.FindWindow("count")->SetValidator(qwxGenericValidator(&count));
        list.FindWindow("kind")->SetValidator(qwxGenericValidator(&kind));
    }
};

// The controls' QML as a file, since the application loads dialogs by address.
QUrl writeDialogQml(const QTemporaryDir& dir)
{
    QFile file(dir.filePath(QStringLiteral("FormDialog.qml")));
    if (!file.open(QIODevice::WriteOnly) || file.write(controlsQml) != controlsQml.size())
        return QUrl();
    return QUrl::fromLocalFile(file.fileName());
}

QVariantList shown(const TestDialog& dialog)
{
    return {dialog.item("name")->property("text"), dialog.item("snap")->property("checked"),
            dialog.item("count")->property("value"), dialog.item("kind")->property("currentIndex")};
}

} // namespace

void tst_Validators::dialog_showsTheVariablesAndReadsThemBackBeforeBeforeOk()
{
    quickhost::QuickHost host(QStringList{qmlImportDir()});
    QTemporaryDir dir;
    FormDialog dialog;
    QVERIFY(wut::doLoadDialog(&dialog, nullptr, writeDialogQml(dir), NotResizable, {}, nullptr));
    dialog.okVetoes = 1;
    dialog.bind = [&dialog](QmlChildList& list) { dialog.bindValidators(list); };
    dialog.script = [](TestDialog& form) {
        auto& self = static_cast<FormDialog&>(form);
        QCOMPARE(shown(form), (QVariantList{"Ground floor", true, 3, 2}));
        form.item("name")->setProperty("text", "Roof");
        clickItem(form.item("snap"));
        form.item("count")->setProperty("value", 9);
        form.item("kind")->setProperty("currentIndex", 0);
        clickItem(form.item("wxID_OK"));
        // Refused, yet the variables hold what the controls show.
        QVERIFY(form.IsModal());
        QCOMPARE(self.count, 9);
        form.item("count")->setProperty("value", 10);
        clickItem(form.item("wxID_OK"));
    };

    QCOMPARE(ShowModal(&dialog), wxID_OK);
    QCOMPARE(dialog.seenByOk, (QStringList{"Roof 0 9 0", "Roof 0 10 0"}));
    QCOMPARE(dialog.name, wxString("Roof"));
}

void tst_Validators::dialogDestroyed_neverTouchesItsVariablesAgain()
{
    quickhost::QuickHost host(QStringList{qmlImportDir()});
    QTemporaryDir dir;
    auto variables = std::make_unique<Variables>();
    auto dialog = std::make_unique<FormDialog>();
    QVERIFY(wut::doLoadDialog(dialog.get(), nullptr, writeDialogQml(dir), NotResizable, {}, nullptr));
    variables->number = 4;
    // The member goes with the dialog, the heap variables before it.
    dialog->bind = [&](QmlChildList& list) {
        list.FindWindow("name")->SetValidator(qwxTextValidator(wxFILTER_NONE, &dialog->name));
        list.FindWindow("count")->SetValidator(qwxGenericValidator(&variables->number));
        list.FindWindow("snap")->SetValidator(qwxGenericValidator(&variables->flag));
    };
    dialog->Show();
    QTRY_VERIFY(dialog->journal.contains(QStringLiteral("createDialog")));
    QCOMPARE(dialog->item("count")->property("value").toInt(), 4);

    // Under ASan a transfer into a freed variable or a destroyed member would abort here.
    variables.reset();
    dialog.reset();
    QTest::qWait(10);
}

QTEST_MAIN(tst_Validators)
#include "tst_validators.moc"
