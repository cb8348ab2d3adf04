#include "qmltimerhelper_p.h"
