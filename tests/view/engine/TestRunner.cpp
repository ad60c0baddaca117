#include "tests/view/engine/TestRunner.h"

#include <memory>
#include <vector>

#include <QApplication>
#include <QLoggingCategory>
#include <QtTest>

namespace {

std::vector<std::function<QObject *()>> &Objects()
{
    static std::vector<std::function<QObject *()>> objects;
    return objects;
}

}  // namespace

bool AddTestObject(std::function<QObject *()> make)
{
    Objects().push_back(std::move(make));
    return true;
}

int main(int argc, char *argv[])
{
    // Rules of the environment would outrule those that the log catcher sets.
    qunsetenv("QT_LOGGING_RULES");
    QApplication application(argc, argv);
    QLoggingCategory::setFilterRules("quorlin.*.debug=false");
    int failures = 0;
    for (const auto &make : Objects()) {
        const std::unique_ptr<QObject> object(make());
        failures += QTest::qExec(object.get(), argc, argv);
    }
    return failures;
}
