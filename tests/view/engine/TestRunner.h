// Runs several test objects in one program.
//
// Each source of a test program names its test class with QUORLIN_TEST_OBJECT; the program's exit
// code is the number of failures of all of them. Arguments go to each object as QtTest knows them.
#pragma once

#include <functional>

#include <QObject>

bool AddTestObject(std::function<QObject *()> make);

#define QUORLIN_TEST_OBJECT(Class)                                                                 \
    static const bool s_is##Class##Added = AddTestObject([]() -> QObject * { return new Class; });
