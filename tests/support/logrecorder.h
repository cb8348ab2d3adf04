#pragma once

#include <QStringList>
#include <QtGlobal>

namespace dbr::test {

// Records every logged line while alive, then hands it on to the handler that
// was installed before (QtTest's, so QTest::ignoreMessage keeps working).
// Lets a test show that a line was *not* logged.
class LogRecorder
{
public:
    LogRecorder();
    ~LogRecorder();
    Q_DISABLE_COPY(LogRecorder)

    const QStringList& lines() const { return m_lines; }
    bool contains(const QString& text) const;

private:
    static void record(QtMsgType type, const QMessageLogContext& context, const QString& message);

    QStringList m_lines;
    QtMessageHandler m_previous = nullptr;
};

} // namespace dbr::test
