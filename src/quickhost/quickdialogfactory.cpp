#include "quickdialogfactory.h"

#include <QDebug>
#include <QEventLoop>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickWindow>

#include <wx/defs.h>

#include <qut/qtconversions.h>

#include <algorithm>

namespace dbr::quickhost {

namespace {

// What a box answers when it is closed without a button.
int closeCode(const std::vector<MessageButtonInfo>& buttons)
{
    const bool hasCancel = std::any_of(buttons.begin(), buttons.end(),
                                       [](const MessageButtonInfo& button) { return button.code == wxCANCEL; });
    return hasCancel ? wxCANCEL : buttons.back().code;
}

// One message box on screen and the loop that waits for its answer.
class MessageBoxRun : public QObject
{
    Q_OBJECT

public:
    MessageBoxRun(QQmlEngine& engine, const QVariantMap& properties, int closeCode)
        : m_closeCode(closeCode)
        , m_answer(closeCode)
    {
        QQmlComponent component(&engine);
        component.setData("import Arvela.Components 1.0\nMessageBox {}\n", QUrl());
        m_item.reset(qobject_cast<QQuickItem*>(component.createWithInitialProperties(properties)));
        if (!m_item) {
            qWarning().noquote() << "The message box can't be shown:" << component.errorString();
            return;
        }
        connect(m_item.get(), SIGNAL(answered(int)), this, SLOT(onAnswered(int)));
        connect(m_item.get(), SIGNAL(dismissed()), this, SLOT(onDismissed()));
        // By name: the signal's argument type is private to Qt Quick.
        connect(&m_window, SIGNAL(closing(QQuickCloseEvent*)), this, SLOT(onDismissed()));
        m_item->setParentItem(m_window.contentItem());
        m_item->setSize(QSizeF(m_item->implicitWidth(), m_item->implicitHeight()));
        m_window.resize(m_item->size().toSize());
        m_window.setTitle(properties.value(QStringLiteral("title")).toString());
        m_window.setModality(Qt::ApplicationModal);
    }

    std::pair<int, bool> exec()
    {
        if (!m_item)
            return {m_answer, false};
        m_window.show();
        m_item->forceActiveFocus();
        m_loop.exec();
        m_window.hide();
        return {m_answer, m_pressed};
    }

private Q_SLOTS:
    void onAnswered(int code) { finish(code, true); }
    void onDismissed() { finish(m_closeCode, false); }

private:
    void finish(int code, bool pressed)
    {
        if (!m_loop.isRunning())
            return;
        m_answer = code;
        m_pressed = pressed;
        m_loop.exit();
    }

    const int m_closeCode;
    int m_answer;
    bool m_pressed = false;
    QEventLoop m_loop;
    QQuickWindow m_window;
    // Declared after the window, so it leaves the scene before the window goes.
    std::unique_ptr<QQuickItem> m_item;
};

} // namespace

class QuickDialogFactoryPrivate
{
public:
    explicit QuickDialogFactoryPrivate(QQmlEngine& qmlEngine)
        : engine(qmlEngine)
    {}

    QQmlEngine& engine;
    MessageBoxFaker faker;
};

QuickDialogFactory::QuickDialogFactory(QQmlEngine& engine)
    : d(std::make_unique<QuickDialogFactoryPrivate>(engine))
{}

QuickDialogFactory::~QuickDialogFactory() = default;

void QuickDialogFactory::setupMessageBoxFaker(MessageBoxFaker faker)
{
    d->faker = std::move(faker);
}

void QuickDialogFactory::unsetMessageBoxFaker()
{
    d->faker = nullptr;
}

std::pair<int, bool> QuickDialogFactory::showMessage(OdString title, OdString message, OdString extraText,
                                                     EMessageStyle style, const std::vector<MessageButtonInfo>& buttons,
                                                     wxWindow* parent) const
{
    if (d->faker) {
        // A faker may unset itself while it answers, so it runs as a copy.
        const MessageBoxFaker faker = d->faker;
        return {faker(qut::wxFromOd(title), qut::wxFromOd(message), style, parent), true};
    }

    const std::vector<MessageButtonInfo> shown = buttons.empty() ? buttonsFromButtonStyle(Ok) : buttons;
    QVariantList buttonList;
    for (const MessageButtonInfo& button : shown)
        buttonList.append(
            QVariantMap{{QStringLiteral("label"), qut::toQt(button.label)}, {QStringLiteral("code"), button.code}});
    QVariantMap properties;
    properties.insert(QStringLiteral("title"), qut::toQt(title));
    properties.insert(QStringLiteral("message"), qut::toQt(message));
    properties.insert(QStringLiteral("details"), qut::toQt(extraText));
    properties.insert(QStringLiteral("messageStyle"), int(style));
    properties.insert(QStringLiteral("buttons"), buttonList);
    MessageBoxRun run(d->engine, properties, closeCode(shown));
    return run.exec();
}

// The colour and line type dialogs come with the CAD value models; until then
// the user "cancels" both.
std::optional<OdCmColor> QuickDialogFactory::chooseColor(wxWindow*, const OdCmColor&, unsigned int) const
{
    return std::nullopt;
}

bool QuickDialogFactory::loadLineTypes(wxWindow*, OdDbDatabase*, OdArray<OdString>&, const wxString&, const OdString&)
{
    return false;
}

} // namespace dbr::quickhost

#include "quickdialogfactory.moc"
