#include "environment.h"

#include <QString>

#include <qut/qtconversions.h>

namespace ut {

OdString getEnvironment(const OdString& name)
{
    return qut::odFromQt(qEnvironmentVariable(qut::toQt(name).toLocal8Bit().constData()));
}

OdString correctSlashes(const OdString& path)
{
    QString corrected = qut::toQt(path);
    corrected.replace(QLatin1Char('\\'), QLatin1Char('/'));
    while (corrected.contains(QLatin1String("//")))
        corrected.replace(QLatin1String("//"), QLatin1String("/"));
    return qut::odFromQt(corrected);
}

} // namespace ut
