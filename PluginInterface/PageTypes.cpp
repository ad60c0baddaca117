#include "PluginInterface/PageTypes.h"

#include <QMetaType>

#include "View/Rx/NrContRxDockWidgetV7.h"

void RegisterPageTypes()
{
    qRegisterMetaType<CNrContRxDockWidgetV7 *>("CNrContRxDockWidgetV7*");
}
