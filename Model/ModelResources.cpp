#include "Model/ModelResources.h"

#include <QtGlobal>

void InitModelResources()
{
    Q_INIT_RESOURCE(Model);
}
