#include "PluginInterface/PageTypes.h"

#include <QMetaType>

#include "View/Rx/NrContRxDockWidgetV7.h"
#include "View/Rx/NrRsrpForceDockWidgetV7.h"
#include "View/Rx/NrRsrpNormalDockWidgetV7.h"
#include "View/Rx/NrRssiDockWidgetV7.h"
#include "View/Tx/NrPuschTxForcedDockWidgetV7.h"
#include "View/Tx/NrPuschTxNormalDockWidgetV7.h"
#include "View/Tx/NrSingleToneTxDockWidgetV7.h"

void RegisterPageTypes()
{
    qRegisterMetaType<CNrRssiDockWidgetV7 *>("CNrRssiDockWidgetV7*");
    qRegisterMetaType<CNrContRxDockWidgetV7 *>("CNrContRxDockWidgetV7*");
    qRegisterMetaType<CNrRsrpForceDockWidgetV7 *>("CNrRsrpForceDockWidgetV7*");
    qRegisterMetaType<CNrRsrpNormalDockWidgetV7 *>("CNrRsrpNormalDockWidgetV7*");
    qRegisterMetaType<CNrSingleToneTxDockWidgetV7 *>("CNrSingleToneTxDockWidgetV7*");
    qRegisterMetaType<CNrPuschTxForcedDockWidgetV7 *>("CNrPuschTxForcedDockWidgetV7*");
    qRegisterMetaType<CNrPuschTxNormalDockWidgetV7 *>("CNrPuschTxNormalDockWidgetV7*");
}
