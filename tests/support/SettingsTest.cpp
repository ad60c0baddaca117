#include "Support/Settings.h"

#include <memory>

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QtTest>

#include "tests/common/TestClass.h"

namespace {

constexpr char kKey[] = "compare/columns";

}  // namespace

class SettingsTest : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_folder.reset(new QTemporaryDir); }

    void theFileIsThatOfTheToolWhateverTheHostIsCalled()
    {
        const QByteArray before = qgetenv("XDG_CONFIG_HOME");
        qputenv("XDG_CONFIG_HOME", m_folder->path().toUtf8());
        const QString host = QCoreApplication::applicationName();
        QCoreApplication::setApplicationName(QStringLiteral("SomeHost"));
        QCOMPARE(CSettings::DefaultFile(), m_folder->filePath("quorlin-rf/settings.ini"));
        QCoreApplication::setApplicationName(host);
        qputenv("XDG_CONFIG_HOME", before);
    }

    void anUnknownKeyHasNoValue() { QVERIFY(!CSettings(File()).Value(kKey).isValid()); }

    void theNextSessionFindsWhatWasSaved()
    {
        {
            CSettings settings(File());
            settings.SetValue(kKey, QStringList{"route", "field"});
            QVERIFY(settings.Save());
        }
        QCOMPARE(CSettings(File()).Value(kKey).toStringList(), (QStringList{"route", "field"}));
    }

    void withNothingToSaveASaveIsGoodAndMakesNoFile()
    {
        QVERIFY(CSettings(File()).Save());
        QVERIFY(!QFile::exists(File()));
    }

    void valuesThatAreSetReachTheDiskAtTheEnd()
    {
        {
            CSettings settings(File());
            settings.SetValue(kKey, 7);
        }
        QCOMPARE(CSettings(File()).Value(kKey).toInt(), 7);
    }

    void whatAnotherProcessHasWrittenStays()
    {
        CSettings settings(File());
        settings.SetValue(kKey, 1);
        Put("[other]\nkey=2\n");
        QVERIFY(settings.Save());
        QCOMPARE(CSettings(File()).Value("other/key").toInt(), 2);
        QCOMPARE(CSettings(File()).Value(kKey).toInt(), 1);
    }

    // A folder in the place of the file: nobody can write it, root neither.
    void aFileThatCannotBeWrittenHoldsForTheSession()
    {
        QVERIFY(QDir().mkpath(File()));
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("settings are not saved"));
        CSettings settings(File());
        settings.SetValue(kKey, 3);
        QVERIFY(!settings.Save());
        QCOMPARE(settings.Value(kKey).toInt(), 3);
    }

    // Qt parses a section late: a line without a key is a section of its own to begin with.
    void aFileThatIsNoIniFileIsKeptBesideANewOne_data()
    {
        QTest::addColumn<QByteArray>("broken");
        QTest::newRow("half a section") << QByteArray("no key here\n[half");
        QTest::newRow("a line without a key") << QByteArray("{\"version\": 1, \"pa");
    }

    void aFileThatIsNoIniFileIsKeptBesideANewOne()
    {
        QFETCH(QByteArray, broken);
        Put(broken);
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("settings are no INI file"));
        CSettings settings(File());
        settings.SetValue(kKey, 4);
        QVERIFY(settings.Save());
        QCOMPARE(CSettings(File()).Value(kKey).toInt(), 4);
        QCOMPARE(Bytes(File() + ".broken"), broken);
    }

private:
    QString File() const { return m_folder->filePath("quorlin-rf/settings.ini"); }

    void Put(const QByteArray &bytes)
    {
        QVERIFY(QDir().mkpath(m_folder->filePath("quorlin-rf")));
        QFile file(File());
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }
    static QByteArray Bytes(const QString &path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    std::unique_ptr<QTemporaryDir> m_folder;
};

QUORLIN_TEST_CLASS(SettingsTest)
#include "SettingsTest.moc"
