#include "PluginInterface/PageTypes.h"

#include <QMetaType>

#include "View/Rx/NrContRxDockWidgetV7.h"
#include "View/Rx/NrRsrpForceDockWidgetV7.h"
#include "View/Rx/NrRsrpNormalDockWidgetV7.h"

void RegisterPageTypes()
{
    qRegisterMetaType<CNrContRxDockWidgetV7 *>("CNrContRxDockWidgetV7*");
    qRegisterMetaType<CNrRsrpForceDockWidgetV7 *>("CNrRsrpForceDockWidgetV7*");
    qRegisterMetaType<CNrRsrpNormalDockWidgetV7 *>("CNrRsrpNormalDockWidgetV7*");
}
