#pragma once

#include <QStringList>
#include <QTest>

namespace dbr::test {

// Expects each line, in order, at the given level.
inline void expectMessages(QtMsgType type, const QStringList& lines)
{
    for (const QString& line : lines)
        QTest::ignoreMessage(type, qPrintable(line));
}

} // namespace dbr::test
