#pragma once

#include "qmlfixture.h"
#include "testhost.h"

namespace dbr::test {

// A file of tests/data loaded into a TestHost whose list is populated with the
// given custom types, as most wrapper tests start.
struct HostedQml
{
    explicit HostedQml(const QString& fileName, CustomTypes types = {})
        : host(qml.loadFile(fileName))
    {
        host.setCustomTypes(std::move(types));
        host.populate();
    }

    // The QML item of that name under the root.
    QObject* item(const char* name) const { return host.root()->findChild<QObject*>(QLatin1String(name)); }

    QmlFixture qml;
    TestHost host;
};

} // namespace dbr::test
