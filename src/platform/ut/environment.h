#pragma once

#include <oda/OdString.h>

namespace ut {

// The value of an environment variable, empty when it is not set.
OdString getEnvironment(const OdString& name);
// A path with the platform's separators, each run of separators made one.
OdString correctSlashes(const OdString& path);

} // namespace ut
