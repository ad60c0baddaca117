#include "Support/FilePathRecordSentry.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

#include "tests/common/TestClass.h"

class FilePathRecordSentryTest : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_folder.reset(new QTemporaryDir); }

    void missingSettingsFileGivesAnEmptyPath()
    {
        CFilePathRecordSentry record(SettingsFile());
        QCOMPARE(record.GetLastPath(), QString());
    }

    void emptySettingsFileGivesAnEmptyPath()
    {
        Put("");
        CFilePathRecordSentry record(SettingsFile());
        QCOMPARE(record.GetLastPath(), QString());
    }

    void brokenSettingsFileGivesAnEmptyPath()
    {
        Put(QByteArray("\xFF\xFE") + '\0' + "[Last User Open Path\nlast_open_path = /tmp");
        CFilePathRecordSentry record(SettingsFile());
        QCOMPARE(record.GetLastPath(), QString());
    }

    void pathIsReadFromItsSectionAndKey()
    {
        Put("[Last User Open Path]\nlast_open_path = /home/rf/captures\n");
        CFilePathRecordSentry record(SettingsFile());
        QCOMPARE(record.GetLastPath(), QString("/home/rf/captures"));
    }

    void destructionSavesThePath()
    {
        {
            CFilePathRecordSentry record(SettingsFile());
            record.SetLastPath(QString::fromUtf8("/home/rf/Me\xC3\x9Fwerte 5G"));
            QVERIFY(!QFile::exists(SettingsFile()));
        }
        QCOMPARE(Bytes(), QByteArray("\xEF\xBB\xBF[Last User Open Path]\r\n"
                                     "last_open_path = /home/rf/Me\xC3\x9Fwerte 5G\r\n"));
        CFilePathRecordSentry record(SettingsFile());
        QCOMPARE(record.GetLastPath(), QString::fromUtf8("/home/rf/Me\xC3\x9Fwerte 5G"));
    }

    void savingKeepsOtherSettings()
    {
        Put("[Other]\nkey = 1\n");
        {
            CFilePathRecordSentry record(SettingsFile());
            record.SetLastPath("/tmp");
        }
        QVERIFY(Bytes().contains("[Other]\r\nkey = 1\r\n"));
        QVERIFY(Bytes().contains("last_open_path = /tmp\r\n"));
    }

    void missingFolderOfTheSettingsFileIsCreated()
    {
        const QString file = m_folder->filePath("bin/../configs/User_Latest_Settings.txt");
        {
            CFilePathRecordSentry record(file);
            record.SetLastPath("/tmp");
        }
        CFilePathRecordSentry record(file);
        QCOMPARE(record.GetLastPath(), QString("/tmp"));
    }

    void pathThatCannotBeSavedIsLostWithoutAWord()
    {
        Put("a file, where the settings want a folder");
        {
            CFilePathRecordSentry record(SettingsFile() + "/configs/settings.txt");
            record.SetLastPath("/tmp");
        }
        QCOMPARE(Bytes(), QByteArray("a file, where the settings want a folder"));
        CFilePathRecordSentry record(SettingsFile() + "/configs/settings.txt");
        QCOMPARE(record.GetLastPath(), QString());
    }

    void defaultSettingsFileLiesBesideTheProgramFolder()
    {
        QCOMPARE(CFilePathRecordSentry::DefaultSettingsFile(),
                 QCoreApplication::applicationDirPath() + "/../configs/User_Latest_Settings.txt");
    }

private:
    QString SettingsFile() const { return m_folder->filePath("settings.txt"); }

    void Put(const QByteArray &bytes)
    {
        QFile file(SettingsFile());
        QVERIFY(file.open(QIODevice::WriteOnly));
        QCOMPARE(file.write(bytes), qint64(bytes.size()));
    }

    QByteArray Bytes() const
    {
        QFile file(SettingsFile());
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    QScopedPointer<QTemporaryDir> m_folder;
};

QUORLIN_TEST_CLASS(FilePathRecordSentryTest)
#include "FilePathRecordSentryTest.moc"
