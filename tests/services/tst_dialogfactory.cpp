#include <support/itemwindow.h>
#include <support/paths.h>

#include <dlgbridge/services/idialogfactory.h>

#include <quickhost/quickhost.h>

#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTest>
#include <QTimer>

#include <oa/OaApp.h>
#include <qut/qtconversions.h>

#include <memory>

using namespace dbr;
using namespace dbr::test;

namespace {

// wx's name of a button code, so that rows read as the flags they mean.
QString codeName(int code)
{
    switch (code) {
    case wxOK: return QStringLiteral("wxOK");
    case wxYES: return QStringLiteral("wxYES");
    case wxNO: return QStringLiteral("wxNO");
    case wxCANCEL: return QStringLiteral("wxCANCEL");
    }
    return QString::number(code);
}

QString describe(const std::vector<MessageButtonInfo>& buttons)
{
    QStringList parts;
    for (const MessageButtonInfo& button : buttons)
        parts.append(QStringLiteral("%1 %2").arg(qut::toQt(button.label), codeName(button.code)));
    return parts.join(QStringLiteral(", "));
}

// Records every box as "title|message|extraText|style|buttons" and answers with a fixed pair.
class RecordingFactory : public quickhost::QuickDialogFactory
{
public:
    using IDialogFactory::showMessage;
    using QuickDialogFactory::QuickDialogFactory;

    std::pair<int, bool> showMessage(OdString title, OdString message, OdString extraText, EMessageStyle style,
                                     const std::vector<MessageButtonInfo>& buttons, wxWindow* parent) const override
    {
        boxes.append(QStringLiteral("%1|%2|%3|%4|%5")
                         .arg(qut::toQt(title), qut::toQt(message), qut::toQt(extraText))
                         .arg(int(style))
                         .arg(describe(buttons)));
        parents.append(parent);
        return answer;
    }

    std::optional<OdCmColor> chooseColor(wxWindow*, const OdCmColor& current, unsigned int options) const override
    {
        askedColor = current;
        askedOptions = options;
        return chosen;
    }

    std::pair<int, bool> answer{wxNO, true};
    std::optional<OdCmColor> chosen;
    mutable QStringList boxes;
    mutable QList<wxWindow*> parents;
    mutable OdCmColor askedColor;
    mutable unsigned int askedOptions = 0;
};

using MessageButtons = std::vector<MessageButtonInfo>;
using MessageCall = std::function<std::pair<int, bool>(const IDialogFactory&, wxWindow*)>;

// The visible message box, if there is one.
QQuickItem* shownMessageBox()
{
    for (QWindow* window : QGuiApplication::topLevelWindows()) {
        auto* quickWindow = qobject_cast<QQuickWindow*>(window);
        if (!quickWindow || !quickWindow->isVisible())
            continue;
        for (QQuickItem* item : quickWindow->contentItem()->childItems())
            if (item->objectName() == QLatin1String("MessageBox"))
                return item;
    }
    return nullptr;
}

QQuickItem* findItem(QQuickItem* root, const QString& name)
{
    for (QQuickItem* child : root->childItems()) {
        if (child->objectName() == name)
            return child;
        if (QQuickItem* found = findItem(child, name))
            return found;
    }
    return nullptr;
}

// Once the box is shown, notes "title|message|details|labels" into seen and
// presses the button with the given index, or closes the window for -1.
void answerWhenShown(QString& seen, int buttonIndex)
{
    QTimer::singleShot(0, [&seen, buttonIndex] {
        QQuickItem* box = shownMessageBox();
        if (!box || !QTest::qWaitForWindowExposed(box->window()))
            return;
        const auto text = [box](const QString& name) { return findItem(box, name)->property("text").toString(); };
        QStringList labels;
        for (int index = 0; findItem(box, QStringLiteral("messageButton%1").arg(index)); ++index)
            labels.append(text(QStringLiteral("messageButton%1").arg(index)));
        seen = QStringList{box->window()->title(), text(QStringLiteral("messageText")),
                           text(QStringLiteral("detailsText")), labels.join(QLatin1Char(','))}
                   .join(QLatin1Char('|'));
        if (QQuickItem* button = findItem(box, QStringLiteral("messageButton%1").arg(buttonIndex)))
            clickItem(button);
        else
            box->window()->close();
    });
}

} // namespace

Q_DECLARE_METATYPE(MessageButtons)
Q_DECLARE_METATYPE(MessageCall)

class tst_DialogFactory : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void buttonsFromButtonStyle_outOfRangeIsOk();
    void helpers_makeOneAbstractCallWithStyleButtonsAndEmptyExtraText_data();
    void helpers_makeOneAbstractCallWithStyleButtonsAndEmptyExtraText();
    void dlgColor_asksWithPlainRgbAndReturnsAnOpaqueColourOrNothing();
    void errorAndMessageDialogs_reachTheApplicationsFactoryOnlyWhenThereIsOne();
    void baseFaker_destroysTheFunctionWithoutCallingIt();
    void quickMessageBox_answersWithThePressedButton_data();
    void quickMessageBox_answersWithThePressedButton();
    void quickFaker_answersEveryBoxWithoutShowingUntilUnset();
    void quickFaker_mayUnsetItselfWhileAnswering();

private:
    QQmlEngine m_engine;
};

// The named styles' rows are checked through the helpers and the shown box below.
void tst_DialogFactory::buttonsFromButtonStyle_outOfRangeIsOk()
{
    QCOMPARE(describe(buttonsFromButtonStyle(static_cast<MessageButtonStyle>(7))), QStringLiteral("&OK wxOK"));
}

void tst_DialogFactory::helpers_makeOneAbstractCallWithStyleButtonsAndEmptyExtraText_data()
{
    QTest::addColumn<MessageCall>("call");
    QTest::addColumn<bool>("passesParent");
    QTest::addColumn<QString>("box");

    const auto answered = [](int code) { return std::pair<int, bool>(code, true); };
    QTest::newRow("info") << MessageCall([=](const IDialogFactory& factory, wxWindow* parent) {
        return answered(factory.showInfoMessage("T", "M", parent, YesNo));
    }) << true << "T|M||0|&Yes wxYES, &No wxNO";
    QTest::newRow("warning") << MessageCall([=](const IDialogFactory& factory, wxWindow* parent) {
        return answered(factory.showWarningMessage("T", "M", parent, OkCancel));
    }) << true << "T|M||1|&OK wxOK, &Cancel wxCANCEL";
    QTest::newRow("error, defaults") << MessageCall([=](const IDialogFactory& factory, wxWindow*) {
        return answered(factory.showErrorMessage("T", "M"));
    }) << false << "T|M||3|&OK wxOK";
    QTest::newRow("extra text, whole pair") << MessageCall([](const IDialogFactory& factory, wxWindow* parent) {
        return factory.showMessage("T", "M", "More", Info, OkCancel, parent);
    }) << true << "T|M|More|0|&OK wxOK, &Cancel wxCANCEL";
}

void tst_DialogFactory::helpers_makeOneAbstractCallWithStyleButtonsAndEmptyExtraText()
{
    QFETCH(MessageCall, call);
    QFETCH(bool, passesParent);
    QFETCH(QString, box);

    RecordingFactory factory(m_engine);
    factory.answer = {wxNO, true};
    int parentStandIn = 0;
    auto* parent = reinterpret_cast<wxWindow*>(&parentStandIn);

    QCOMPARE(call(factory, parent), (std::pair<int, bool>(wxNO, true)));
    QCOMPARE(factory.boxes, QStringList{box});
    QCOMPARE(factory.parents, QList<wxWindow*>{passesParent ? parent : nullptr});
}

void tst_DialogFactory::dlgColor_asksWithPlainRgbAndReturnsAnOpaqueColourOrNothing()
{
    RecordingFactory factory(m_engine);
    OdCmColor chosen;
    chosen.setRGB(200, 100, 50);
    factory.chosen = chosen;

    const std::optional<wxColour> colour = factory.dlgColor(nullptr, wxColour(10, 20, 30, 128), 7);
    QVERIFY(colour);
    QCOMPARE(colour->GetRGBA(), wxColour(200, 100, 50, wxALPHA_OPAQUE).GetRGBA());
    QCOMPARE(factory.askedColor.colorMethod(), OdCmColor::kByColor);
    QCOMPARE((QList<int>{factory.askedColor.red(), factory.askedColor.green(), factory.askedColor.blue()}),
             (QList<int>{10, 20, 30}));
    QCOMPARE(factory.askedOptions, 7u);

    factory.chosen.reset();
    QVERIFY(!factory.dlgColor(nullptr, *wxRED, 0));
}

void tst_DialogFactory::errorAndMessageDialogs_reachTheApplicationsFactoryOnlyWhenThereIsOne()
{
    RecordingFactory factory(m_engine);
    oa::OaApp::s_app = nullptr;
    showErrorDialog(wxS("lost"));
    showMessageDialog(wxS("lost"));

    oa::OaApp app(nullptr, &factory);
    oa::OaApp::s_app = &app;
    showErrorDialog(wxS("Disk full"));
    showMessageDialog(wxS("Saved"));

    QCOMPARE(factory.boxes, (QStringList{"Error|Disk full||3|&OK wxOK", "Info|Saved||0|&OK wxOK"}));
    QCOMPARE(factory.parents, (QList<wxWindow*>{nullptr, nullptr}));
}

void tst_DialogFactory::baseFaker_destroysTheFunctionWithoutCallingIt()
{
    RecordingFactory factory(m_engine);
    auto token = std::make_shared<int>(0);
    const std::weak_ptr<int> watch = token;
    bool called = false;

    factory.IDialogFactory::setupMessageBoxFaker(
        [token = std::move(token), &called](const wxString&, const wxString&, int, wxWindow*) {
            called = true;
            return wxYES;
        });

    QVERIFY(watch.expired());
    QCOMPARE(factory.showInfoMessage("T", "M"), wxNO);
    QVERIFY(!called);
}

void tst_DialogFactory::quickMessageBox_answersWithThePressedButton_data()
{
    QTest::addColumn<MessageButtons>("buttons");
    QTest::addColumn<QString>("extraText");
    QTest::addColumn<int>("press");
    QTest::addColumn<int>("code");
    QTest::addColumn<bool>("pressed");
    QTest::addColumn<QString>("seen");

    const MessageButtons cancelFirst{{"&Cancel", wxCANCEL}, {"&Retry", 32}};
    QTest::newRow("No, with details") << buttonsFromButtonStyle(YesNoCancel) << "Details" << 1 << wxNO << true
                                      << "Title|Message|Details|&Yes,&No,&Cancel";
    QTest::newRow("closed, Cancel's code")
        << cancelFirst << "" << -1 << wxCANCEL << false << "Title|Message||&Cancel,&Retry";
    QTest::newRow("closed, last button's code")
        << buttonsFromButtonStyle(YesNo) << "" << -1 << wxNO << false << "Title|Message||&Yes,&No";
    QTest::newRow("no buttons, OK") << MessageButtons() << "" << -1 << wxOK << false << "Title|Message||&OK";
}

void tst_DialogFactory::quickMessageBox_answersWithThePressedButton()
{
    QFETCH(MessageButtons, buttons);
    QFETCH(QString, extraText);
    QFETCH(int, press);
    QFETCH(int, code);
    QFETCH(bool, pressed);
    QFETCH(QString, seen);

    quickhost::QuickHost host(QStringList{qmlImportDir()});
    QString shown;
    answerWhenShown(shown, press);
    const std::pair<int, bool> answer = oa::OaApp::s_app->dialogFactory()->showMessage(
        "Title", "Message", qut::odFromQt(extraText), Warning, buttons, nullptr);

    QCOMPARE(shown, seen);
    QCOMPARE(answer, (std::pair<int, bool>(code, pressed)));
    QVERIFY(!shownMessageBox());
}

void tst_DialogFactory::quickFaker_answersEveryBoxWithoutShowingUntilUnset()
{
    quickhost::QuickHost host(QStringList{qmlImportDir()});
    QStringList asked;
    host.dialogFactory().setupMessageBoxFaker(
        [&asked](const wxString& title, const wxString& message, int style, wxWindow*) {
            asked.append(QStringLiteral("%1|%2|%3|%4")
                             .arg(qut::toQt(title), qut::toQt(message))
                             .arg(style)
                             .arg(shownMessageBox() ? "shown" : "hidden"));
            return wxYES;
        });

    showErrorDialog(wxS("Disk full"));
    QCOMPARE(host.dialogFactory().showWarningMessage("Replace?", "It exists", nullptr, YesNo), wxYES);
    QCOMPARE(asked, (QStringList{"Error|Disk full|3|hidden", "Replace?|It exists|1|hidden"}));

    host.dialogFactory().unsetMessageBoxFaker();
    QString shown;
    answerWhenShown(shown, 0);
    QCOMPARE(host.dialogFactory().showInfoMessage("Done", "Saved"), wxOK);
    QCOMPARE(shown, QStringLiteral("Done|Saved||&OK"));
    QCOMPARE(asked.size(), 2);
}

void tst_DialogFactory::quickFaker_mayUnsetItselfWhileAnswering()
{
    quickhost::QuickHost host(QStringList{qmlImportDir()});
    quickhost::QuickDialogFactory& factory = host.dialogFactory();
    // Answers one box, then lets them show: its captures are read after it has unset itself.
    factory.setupMessageBoxFaker(
        [&factory, answers = std::vector<int>{wxYES}](const wxString&, const wxString&, int, wxWindow*) {
            factory.unsetMessageBoxFaker();
            return answers.front();
        });

    QCOMPARE(factory.showWarningMessage("Replace?", "It exists", nullptr, YesNo), wxYES);
    QString shown;
    answerWhenShown(shown, 1);
    QCOMPARE(factory.showWarningMessage("Replace?", "It exists", nullptr, YesNo), wxNO);
    QCOMPARE(shown, QStringLiteral("Replace?|It exists||&Yes,&No"));
}

QTEST_MAIN(tst_DialogFactory)
#include "tst_dialogfactory.moc"
