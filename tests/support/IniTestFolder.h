#pragma once

// A folder of its own for one test of INI files, removed with the object.

#include <string>

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

class CIniTestFolder
{
public:
    std::string Path(const QString &name = "cal.ini") const
    {
        return m_folder.filePath(name).toStdString();
    }

    std::wstring WidePath(const QString &name = "cal.ini") const
    {
        return m_folder.filePath(name).toStdWString();
    }

    void Put(const QByteArray &bytes, const QString &name = "cal.ini") const
    {
        QFile file(m_folder.filePath(name));
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
            qFatal("can't prepare the file of a test");
    }

    // Null when there is no such file.
    QByteArray Bytes(const QString &name = "cal.ini") const
    {
        QFile file(m_folder.filePath(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    bool Exists(const QString &name = "cal.ini") const
    {
        return QFile::exists(m_folder.filePath(name));
    }

    QStringList Files() const
    {
        return QDir(m_folder.path())
            .entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    }

private:
    // In memory where the system has a place for that: a save waits for the disk, and the tests
    // save thousands of times.
    static QString Template()
    {
        const QString memory = "/dev/shm";
        return (QFileInfo(memory).isWritable() ? memory : QDir::tempPath()) + "/ini-test-XXXXXX";
    }

    QTemporaryDir m_folder{Template()};
};

// The text of the std::runtime_error that the call throws; empty when it throws none.
template <class TCall>
std::string FailureOf(TCall call)
{
    try {
        call();
    } catch (const std::runtime_error &failure) {
        return failure.what();
    }
    return {};
}
