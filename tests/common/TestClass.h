// Several QtTest classes in one program: ctest runs each in a process of its own, and the whole stack
// below them is linked once.
//
// A class's source names it in its last line but one, before the .moc file is included:
//
//   QUORLIN_TEST_CLASS(ContRxPageTest)
//
//   DeviceTest ContRxPageTest              runs that class, or CContRxPageTest
//   DeviceTest ContRxPageTest stops -v2    one function of it, with an option of QtTest
//   DeviceTest                             runs all classes, one after the other
//
// What a test needs as a process of its own, because the end of the process is the test, is a
// function that is called in place of a class. The application object exists already:
//
//   int EndWhileBusy(const QStringList &arguments);
//   QUORLIN_TEST_PROCESS(EndWhileBusy)     // DeviceTest EndWhileBusy exit
//
// A program's exit code is the number of failures, or what the function returns.
#pragma once

#include <functional>

#include <QObject>
#include <QStringList>

bool AddTestClass(const char *name, std::function<QObject *()> make);
bool AddTestProcess(const char *name, std::function<int(const QStringList &)> run);

#define QUORLIN_TEST_CLASS(Class)                                                                  \
    static const bool s_is##Class##Added =                                                         \
        AddTestClass(#Class, []() -> QObject * { return new Class; });

#define QUORLIN_TEST_PROCESS(Function)                                                             \
    static const bool s_is##Function##Added = AddTestProcess(#Function, Function);
