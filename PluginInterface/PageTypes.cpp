#include "PluginInterface/PageTypes.h"

#include <QMetaType>

#include "View/Rx/NrContRxDockWidgetV7.h"
#include "View/Rx/NrRssiDockWidgetV7.h"

void RegisterPageTypes()
{
    qRegisterMetaType<CNrRssiDockWidgetV7 *>("CNrRssiDockWidgetV7*");
    qRegisterMetaType<CNrContRxDockWidgetV7 *>("CNrContRxDockWidgetV7*");
}
