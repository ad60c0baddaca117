#include "tests/recipes/ExamplePageTypes.h"

#include <QMetaType>

#include "tests/recipes/NrExampleDockWidgetV7.h"

void RegisterExamplePageTypes()
{
    qRegisterMetaType<CNrExampleDockWidgetV7 *>("CNrExampleDockWidgetV7*");
}
