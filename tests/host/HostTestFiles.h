// Where the tests of the host find the built files, all relative to the test program.
#pragma once

#include <QCoreApplication>
#include <QDir>
#include <QString>

inline QString BuiltFile(const QString &path)
{
    return QDir::cleanPath(QCoreApplication::applicationDirPath() + "/../" + path);
}

inline QString FakePlugin(const QString &name)
{
    return BuiltFile("host_plugins/lib" + name + ".so");
}
