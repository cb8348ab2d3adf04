#include "linetypefile.h"

#include <QFile>
#include <QTextStream>

namespace dbr::quickhost {

namespace {

bool readPattern(const QString& line, OdArray<double>& dashes)
{
    const QStringList fields = line.split(QLatin1Char(','));
    if (fields.size() < 2 || fields.front().trimmed() != QLatin1String("A"))
        return false;
    for (int i = 1; i < fields.size(); ++i) {
        bool ok = false;
        const double length = fields[i].trimmed().toDouble(&ok);
        if (!ok)
            return false;
        dashes.append(length);
    }
    return true;
}

} // namespace

QList<LineTypeDefinition> readLineTypeDefinitions(QIODevice& file)
{
    QList<LineTypeDefinition> definitions;
    QTextStream stream(&file);
    LineTypeDefinition pending;
    bool hasHeader = false;
    while (!stream.atEnd()) {
        const QString line = stream.readLine().trimmed();
        if (line.isEmpty() || line.startsWith(QLatin1String(";;")))
            continue;
        if (line.startsWith(QLatin1Char('*'))) {
            const int comma = line.indexOf(QLatin1Char(','));
            pending = LineTypeDefinition{line.mid(1, comma < 0 ? -1 : comma - 1).trimmed(),
                                         comma < 0 ? QString() : line.mid(comma + 1).trimmed(),
                                         {}};
            hasHeader = !pending.name.isEmpty();
            continue;
        }
        if (hasHeader && readPattern(line, pending.dashes))
            definitions.append(pending);
        hasHeader = false;
    }
    return definitions;
}

const QList<LineTypeDefinition>& shippedLineTypes()
{
    static const QList<LineTypeDefinition> definitions = [] {
        QFile file(QStringLiteral(":/quickhost/linetypes.lin"));
        return file.open(QIODevice::ReadOnly | QIODevice::Text) ? readLineTypeDefinitions(file)
                                                                : QList<LineTypeDefinition>();
    }();
    return definitions;
}

} // namespace dbr::quickhost
