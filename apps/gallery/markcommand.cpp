#include "markcommand.h"

#include <dlgbridge/hosting/commandcontextdialogsession.h>
#include <dlgbridge/hosting/commandline.h>

#include <quickhost/quickcommandline.h>

#include <QUrl>

#include <qut/qtconversions.h>

using dbr::quickhost::CommandPrompt;

namespace {
const QStringList shapes = {QStringLiteral("Cross"), QStringLiteral("Circle"), QStringLiteral("Square")};
}

void MarkOptionsController::setShape(const QString& shape)
{
    m_shape = shape;
    Q_EMIT shapeChanged();
}

void MarkOptionsController::chooseShape(const QString& shape)
{
    dbr::invokeCommandLineOption(this, qut::odFromQt(shape));
}

void MarkOptionsController::done()
{
    dbr::acceptCommandLine(this);
}

void MarkDrawing::add(const QString& shape, double x, double y)
{
    m_marks.append(QVariantMap{{QStringLiteral("shape"), shape}, {QStringLiteral("x"), x}, {QStringLiteral("y"), y}});
    Q_EMIT marksChanged();
}

MarkCommand::MarkCommand(dbr::quickhost::QuickCommandLine& commandLine, ca::CaApp& app, MarkDrawing& drawing)
    : m_commandLine(commandLine)
    , m_app(app)
    , m_drawing(drawing)
{
    m_commandLine.registerCommand(QStringLiteral("MARK"), [this] { start(); });
}

MarkCommand::~MarkCommand() = default;

void MarkCommand::start()
{
    m_options = std::make_shared<MarkOptionsController>();
    m_options->setShape(shapes.front());
    m_session = dbr::CommandContextDialogSession::create(m_app, QUrl(QStringLiteral("qrc:/gallery/MarkOptions.qml")),
                                                         m_options);
    seen << QStringLiteral("context dialog shown");
    askShape();
}

void MarkCommand::askShape()
{
    CommandPrompt prompt;
    prompt.text = QStringLiteral("Shape");
    prompt.options = shapes;
    prompt.defaultOption = m_options->shape();
    prompt.onOption = [this](const QString& shape) {
        m_options->setShape(shape);
        askPoint();
    };
    prompt.onEnter = [this] { end(QStringLiteral("ended")); };
    prompt.onCancel = [this] { end(QStringLiteral("cancelled")); };
    m_commandLine.setPrompt(std::move(prompt));
}

void MarkCommand::askPoint()
{
    // The panel's shapes mean nothing until the point is given.
    m_waitingForPoint = m_session->disable();
    seen << QStringLiteral("panel greyed out while the %1 waits for its centre").arg(m_options->shape().toLower());
    CommandPrompt prompt;
    prompt.text = QStringLiteral("Centre of the %1").arg(m_options->shape().toLower());
    prompt.onInput = [this](const QString& point) { return placeAt(point); };
    prompt.onCancel = [this] { end(QStringLiteral("cancelled")); };
    m_commandLine.setPrompt(std::move(prompt));
}

bool MarkCommand::placeAt(const QString& point)
{
    const QStringList coordinates = point.split(QLatin1Char(','));
    bool xRead = false;
    bool yRead = false;
    const double x = coordinates.value(0).toDouble(&xRead);
    const double y = coordinates.value(1).toDouble(&yRead);
    if (coordinates.size() != 2 || !xRead || !yRead)
        return false;
    m_drawing.add(m_options->shape(), x, y);
    seen << QStringLiteral("%1 placed at %2,%3").arg(m_options->shape().toLower()).arg(x).arg(y);
    m_waitingForPoint.reset();
    askShape();
    return true;
}

void MarkCommand::end(const QString& how)
{
    m_waitingForPoint.reset();
    m_session->close();
    seen << QStringLiteral("command %1, context dialog closed").arg(how);
    m_commandLine.endCommand();
}
