#include "quickdialogfactory.h"

#include "linetypefile.h"
#include "quickguicontroller.h"

#include <QDebug>
#include <QEventLoop>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickWindow>

#include <wx/defs.h>
#include <wx/intl.h>

#include <oda/OdDbDatabase.h>
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

// One modal item of the kit on screen, in a window of its own, and the loop
// that waits for its answer: the item's answer signal gives it, and its
// dismissed(), Escape or closing the window gives none.
class ModalItemRun : public QObject
{
    Q_OBJECT

public:
    // answerSignal is SIGNAL(answered(int)) or SIGNAL(chosen(QVariant)).
    ModalItemRun(QQmlEngine& engine, const char* type, const QVariantMap& properties, const char* answerSignal)
    {
        QQmlComponent component(&engine);
        component.setData(QByteArray("import Arvela.Components 1.0\n") + type + " {}\n", QUrl());
        m_item.reset(qobject_cast<QQuickItem*>(component.createWithInitialProperties(properties)));
        if (!m_item) {
            qWarning().noquote() << "The" << type << "can't be shown:" << component.errorString();
            return;
        }
        const bool intAnswer = QByteArray(answerSignal).contains("(int)");
        connect(m_item.get(), answerSignal, this, intAnswer ? SLOT(onIntAnswer(int)) : SLOT(onAnswer(QVariant)));
        connect(m_item.get(), SIGNAL(dismissed()), this, SLOT(onDismissed()));
        // By name: the signal's argument type is private to Qt Quick.
        connect(&m_window, SIGNAL(closing(QQuickCloseEvent*)), this, SLOT(onDismissed()));
        m_item->setParentItem(m_window.contentItem());
        m_item->setSize(QSizeF(m_item->implicitWidth(), m_item->implicitHeight()));
        m_window.resize(m_item->size().toSize());
        m_window.setTitle(properties.value(QStringLiteral("title")).toString());
        m_window.setModality(Qt::ApplicationModal);
    }

    bool isReady() const { return m_item != nullptr; }

    // The answer, or nothing when the item was dismissed or couldn't be made.
    std::optional<QVariant> exec()
    {
        if (!m_item)
            return std::nullopt;
        m_window.show();
        m_item->forceActiveFocus();
        m_loop.exec();
        m_window.hide();
        return m_answer;
    }

private Q_SLOTS:
    void onIntAnswer(int code) { finish(code); }
    void onAnswer(const QVariant& answer) { finish(answer); }
    void onDismissed() { finish(std::nullopt); }

private:
    void finish(std::optional<QVariant> answer)
    {
        if (!m_loop.isRunning())
            return;
        m_answer = std::move(answer);
        m_loop.exit();
    }

    std::optional<QVariant> m_answer;
    QEventLoop m_loop;
    QQuickWindow m_window;
    // Declared after the window, so it leaves the scene before the window goes.
    std::unique_ptr<QQuickItem> m_item;
};

// The colour dialog's way of naming a colour: 0 by block, 256 by layer, 1 to
// 255 the index table, -1 a true colour.
constexpr int trueColorIndex = -1;

int dialogIndexOf(const OdCmColor& color)
{
    switch (color.colorMethod()) {
    case OdCmColor::kByLayer:
    case OdCmColor::kByBlock:
    case OdCmColor::kByACI: return color.colorIndex();
    default: return trueColorIndex;
    }
}

QVariantList indexPalette()
{
    QVariantList palette{QColor()};
    for (std::uint16_t index = 1; index <= 255; ++index) {
        const std::uint32_t rgb = OdCmColor::lookUpRGB(index);
        palette.append(QColor(QRgb(rgb)));
    }
    return palette;
}

std::optional<OdCmColor> colorOfAnswer(const QVariant& answer)
{
    const QVariantMap chosen = answer.toMap();
    bool ok = false;
    const int index = chosen.value(QStringLiteral("index")).toInt(&ok);
    if (!ok || index < trueColorIndex || index > 256)
        return std::nullopt;
    OdCmColor color;
    if (index == trueColorIndex) {
        const QColor rgb = chosen.value(QStringLiteral("color")).value<QColor>();
        if (!rgb.isValid())
            return std::nullopt;
        color.setRGB(uchar(rgb.red()), uchar(rgb.green()), uchar(rgb.blue()));
    } else {
        color.setColorIndex(std::uint16_t(index));
    }
    return color;
}

} // namespace

class QuickDialogFactoryPrivate
{
public:
    explicit QuickDialogFactoryPrivate(QQmlEngine& qmlEngine)
        : engine(qmlEngine)
    {}

    QQmlEngine& engine;
    MessageBoxFaker faker;
    ColorDialogFaker colorFaker;
    LineTypeLoaderFaker lineTypeFaker;
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
    const int dismissed = closeCode(shown);
    ModalItemRun run(d->engine, "MessageBox", properties, SIGNAL(answered(int)));
    if (!run.isReady())
        return {dismissed, false};
    const std::optional<QVariant> answer = run.exec();
    return answer ? std::pair<int, bool>{answer->toInt(), true} : std::pair<int, bool>{dismissed, false};
}

void QuickDialogFactory::setupColorDialogFaker(ColorDialogFaker faker)
{
    d->colorFaker = std::move(faker);
}

void QuickDialogFactory::setupLineTypeLoaderFaker(LineTypeLoaderFaker faker)
{
    d->lineTypeFaker = std::move(faker);
}

std::optional<OdCmColor> QuickDialogFactory::chooseColor(wxWindow*, const OdCmColor& current,
                                                         unsigned int options) const
{
    if (d->colorFaker) {
        const ColorDialogFaker faker = d->colorFaker;
        return faker(current, options);
    }
    QVariantMap properties;
    properties.insert(QStringLiteral("title"), qut::toQt(wxGetTranslation("Select Color")));
    properties.insert(QStringLiteral("palette"), indexPalette());
    properties.insert(QStringLiteral("options"), options);
    if (!(options & QuickGuiController::DialogVaries)) {
        properties.insert(QStringLiteral("currentIndex"), dialogIndexOf(current));
        properties.insert(QStringLiteral("currentColor"), QColor(current.red(), current.green(), current.blue()));
    }
    ModalItemRun run(d->engine, "ColorDialog", properties, SIGNAL(chosen(QVariant)));
    const std::optional<QVariant> answer = run.exec();
    return answer ? colorOfAnswer(*answer) : std::nullopt;
}

bool QuickDialogFactory::loadLineTypes(wxWindow*, OdDbDatabase* database, OdArray<OdString>& names, const wxString&,
                                       const OdString&)
{
    if (!database)
        return false;
    QList<LineTypeDefinition> offered;
    for (const LineTypeDefinition& definition : shippedLineTypes()) {
        if (database->getLinetypeId(qut::odFromQt(definition.name)).isNull())
            offered.append(definition);
    }
    QStringList offeredNames;
    QVariantList rows;
    for (const LineTypeDefinition& definition : qAsConst(offered)) {
        offeredNames.append(definition.name);
        rows.append(QVariantMap{{QStringLiteral("name"), definition.name},
                                {QStringLiteral("description"), definition.description}});
    }
    std::optional<QStringList> picked;
    if (d->lineTypeFaker) {
        const LineTypeLoaderFaker faker = d->lineTypeFaker;
        picked = faker(offeredNames);
    } else {
        QVariantMap properties;
        properties.insert(QStringLiteral("title"), qut::toQt(wxGetTranslation("Load Line Types")));
        properties.insert(QStringLiteral("lineTypes"), rows);
        ModalItemRun run(d->engine, "LoadLineTypesDialog", properties, SIGNAL(chosen(QVariant)));
        if (const std::optional<QVariant> answer = run.exec())
            picked = answer->toStringList();
    }
    if (!picked)
        return false;
    for (const LineTypeDefinition& definition : qAsConst(offered)) {
        if (!picked->contains(definition.name))
            continue;
        const OdString name = qut::odFromQt(definition.name);
        database->addLinetype(name, qut::odFromQt(definition.description), definition.dashes);
        names.append(name);
    }
    return true;
}

} // namespace dbr::quickhost

#include "quickdialogfactory.moc"
