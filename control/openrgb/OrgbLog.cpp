#include "OrgbLog.h"

Q_LOGGING_CATEGORY(lcOpenRgb, "norvalex.openrgb")
