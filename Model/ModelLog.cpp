#include "Model/ModelLog.h"

Q_LOGGING_CATEGORY(lcModel, "quorlin.engine")
