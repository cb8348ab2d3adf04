#include "logrecorder.h"

namespace dbr::test {

namespace {
LogRecorder* s_current = nullptr;
} // namespace

LogRecorder::LogRecorder()
{
    Q_ASSERT(!s_current);
    s_current = this;
    m_previous = qInstallMessageHandler(&LogRecorder::record);
}

LogRecorder::~LogRecorder()
{
    qInstallMessageHandler(m_previous);
    s_current = nullptr;
}

bool LogRecorder::contains(const QString& text) const
{
    for (const QString& line : m_lines) {
        if (line.contains(text))
            return true;
    }
    return false;
}

void LogRecorder::record(QtMsgType type, const QMessageLogContext& context, const QString& message)
{
    s_current->m_lines.append(message);
    if (s_current->m_previous)
        s_current->m_previous(type, context, message);
}

} // namespace dbr::test
