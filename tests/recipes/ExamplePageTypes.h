// The page classes of the example, made known to Qt's type system. Given to the form's constructor,
// on the GUI thread.
#pragma once

void RegisterExamplePageTypes();
