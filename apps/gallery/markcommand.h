#pragma once

#include <dlgbridge/hosting/commandcontextdialogcontroller.h>

#include <QObject>
#include <QStringList>
#include <QVariantList>

#include <memory>

namespace ca {
class CaApp;
}

namespace dbr {
class CommandContextDialogDisabler;
class CommandContextDialogSession;
namespace quickhost {
class QuickCommandLine;
}
} // namespace dbr

// What the MARK panel sees: its buttons type at the command line, as the user would.
class MarkOptionsController : public dbr::CommandContextDialogController
{
    Q_OBJECT
    Q_PROPERTY(QString shape READ shape NOTIFY shapeChanged)

public:
    QString shape() const { return m_shape; }
    void setShape(const QString& shape);

    Q_INVOKABLE void chooseShape(const QString& shape);
    Q_INVOKABLE void done();

Q_SIGNALS:
    void shapeChanged();

private:
    QString m_shape;
};

// The marks placed so far, as the drawing area shows them.
class MarkDrawing : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QVariantList marks READ marks NOTIFY marksChanged)

public:
    QVariantList marks() const { return m_marks; }
    void add(const QString& shape, double x, double y);

Q_SIGNALS:
    void marksChanged();

private:
    QVariantList m_marks;
};

// A drawing command as the application writes it: MARK places crosses,
// circles and squares. While it runs it offers its shapes in a command context
// dialog, which greys out while the command waits for a point.
class MarkCommand
{
public:
    MarkCommand(dbr::quickhost::QuickCommandLine& commandLine, ca::CaApp& app, MarkDrawing& drawing);
    ~MarkCommand();

    // What the command code saw, in order.
    QStringList seen;

private:
    void start();
    void askShape();
    void askPoint();
    bool placeAt(const QString& point);
    void end(const QString& how);

    dbr::quickhost::QuickCommandLine& m_commandLine;
    ca::CaApp& m_app;
    MarkDrawing& m_drawing;
    std::shared_ptr<MarkOptionsController> m_options;
    std::shared_ptr<dbr::CommandContextDialogSession> m_session;
    std::shared_ptr<dbr::CommandContextDialogDisabler> m_waitingForPoint;
};
