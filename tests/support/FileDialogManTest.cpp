#include "Support/FileDialogMan.h"

#include <functional>
#include <memory>

#include <QApplication>
#include <QFile>
#include <QFileDialog>
#include <QLineEdit>
#include <QTemporaryDir>
#include <QTimer>
#include <QtTest>

#include "tests/common/TestClass.h"

namespace {

using TGetFileName = QString (CFileDialogMan::*)(const QString &, const QString &);

}  // namespace

Q_DECLARE_METATYPE(TGetFileName)

class FileDialogManTest : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_folder.reset(new QTemporaryDir);
        m_start = m_folder->filePath("start");
        m_other = m_folder->filePath("other");
        QVERIFY(QDir().mkpath(m_start) && QDir().mkpath(m_other));
        QFile file(m_other + "/cal.ini");
        QVERIFY(file.open(QIODevice::WriteOnly));
        CFilePathRecordSentry(SettingsFile()).SetLastPath(m_start);
        m_dialogsSeen = 0;
    }

    void bothDialogsHaveTheirDefaultsAndStartInTheRememberedDirectory_data()
    {
        QTest::addColumn<TGetFileName>("getFileName");
        QTest::addColumn<QString>("caption");
        QTest::addColumn<int>("acceptMode");
        QTest::addColumn<int>("fileMode");
        QTest::newRow("save") << &CFileDialogMan::GetSaveFileName
                              << "Please choose the file to save" << int(QFileDialog::AcceptSave)
                              << int(QFileDialog::AnyFile);
        QTest::newRow("open") << &CFileDialogMan::GetOpenFileName
                              << "Please choose the file to open" << int(QFileDialog::AcceptOpen)
                              << int(QFileDialog::ExistingFile);
    }

    void bothDialogsHaveTheirDefaultsAndStartInTheRememberedDirectory()
    {
        QFETCH(TGetFileName, getFileName);
        QFETCH(QString, caption);
        QFETCH(int, acceptMode);
        QFETCH(int, fileMode);
        const bool isSave = acceptMode == QFileDialog::AcceptSave;
        CFileDialogMan dialogs(SettingsFile());
        InNextDialog([&](QFileDialog *dialog) {
            QCOMPARE(dialog->windowTitle(), caption);
            QCOMPARE(dialog->nameFilters(), (QStringList{"INI files (*.ini)", "All files (*)"}));
            QCOMPARE(dialog->defaultSuffix(), QString(isSave ? "ini" : ""));
            QCOMPARE(dialog->directory().path(), m_start);
            QCOMPARE(int(dialog->acceptMode()), acceptMode);
            QCOMPARE(int(dialog->fileMode()), fileMode);
            QVERIFY(dialog->isModal());
            dialog->reject();
        });
        QCOMPARE((dialogs.*getFileName)("", ""), QString());
        QCOMPARE(m_dialogsSeen, 1);
    }

    void givenCaptionAndFilterAreUsed_data()
    {
        QTest::addColumn<QString>("filter");
        QTest::addColumn<QStringList>("offered");
        QTest::addColumn<QString>("suffix");
        const auto row = [](const char *filter, const QStringList &offered, const char *suffix) {
            QTest::newRow(filter) << filter << offered << suffix;
        };
        row("Ini file (*.ini)|*.ini", {"Ini file (*.ini)"}, "ini");
        row("All files (*.*)|*.*", {"All files (*)"}, "");
        row("Logs|*.log; *.txt|All|*.*|", {"Logs (*.log *.txt)", "All (*)"}, "log");
        row("Logs (*.log);;All files (*)", {"Logs (*.log)", "All files (*)"}, "log");
    }

    void givenCaptionAndFilterAreUsed()
    {
        QFETCH(QString, filter);
        QFETCH(QStringList, offered);
        CFileDialogMan dialogs(SettingsFile());
        InNextDialog([&](QFileDialog *dialog) {
            QCOMPARE(dialog->windowTitle(), QString("Export"));
            QCOMPARE(dialog->nameFilters(), offered);
            QTEST(dialog->defaultSuffix(), "suffix");
            dialog->reject();
        });
        dialogs.GetSaveFileName("Export", filter);
        QCOMPARE(m_dialogsSeen, 1);
    }

    void cancelledDialogLeavesTheRememberedPathAsItWas()
    {
        {
            CFileDialogMan dialogs(SettingsFile());
            InNextDialog([&](QFileDialog *dialog) {
                dialog->setDirectory(m_other);
                dialog->reject();
            });
            QCOMPARE(dialogs.GetOpenFileName("", ""), QString());
            InNextDialog([&](QFileDialog *dialog) {
                QCOMPARE(dialog->directory().path(), m_start);
                dialog->reject();
            });
            QCOMPARE(dialogs.GetSaveFileName("", ""), QString());
            QCOMPARE(m_dialogsSeen, 2);
        }
        QCOMPARE(CFilePathRecordSentry(SettingsFile()).GetLastPath(), m_start);
    }

    void openedFileMakesItsDirectoryTheRememberedOne()
    {
        {
            CFileDialogMan dialogs(SettingsFile());
            ChooseInNextDialog(m_other + "/cal.ini");
            QCOMPARE(dialogs.GetOpenFileName("", ""), m_other + "/cal.ini");
            InNextDialog([&](QFileDialog *dialog) {
                QCOMPARE(dialog->directory().path(), m_other);
                dialog->reject();
            });
            dialogs.GetOpenFileName("", "");
            QCOMPARE(m_dialogsSeen, 2);
            QCOMPARE(CFilePathRecordSentry(SettingsFile()).GetLastPath(), m_start);
        }
        QCOMPARE(CFilePathRecordSentry(SettingsFile()).GetLastPath(), m_other);
    }

    void savedFileMakesItsDirectoryTheRememberedOne()
    {
        {
            CFileDialogMan dialogs(SettingsFile());
            ChooseInNextDialog(m_other + "/new.ini");
            QCOMPARE(dialogs.GetSaveFileName("", ""), m_other + "/new.ini");
            QCOMPARE(m_dialogsSeen, 1);
        }
        QCOMPARE(CFilePathRecordSentry(SettingsFile()).GetLastPath(), m_other);
        QVERIFY(!QFile::exists(m_other + "/new.ini"));
    }

    void emptySettingsFileGivesTheDialogsOwnStartDirectory()
    {
        QFile file(SettingsFile());
        QVERIFY(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
        file.close();
        QString ownDefault;
        InNextDialog([&](QFileDialog *dialog) {
            ownDefault = dialog->directory().path();
            dialog->reject();
        });
        QFileDialog::getOpenFileName();

        CFileDialogMan dialogs(SettingsFile());
        InNextDialog([&](QFileDialog *dialog) {
            QCOMPARE(dialog->directory().path(), ownDefault);
            dialog->reject();
        });
        dialogs.GetOpenFileName("", "");
        QCOMPARE(m_dialogsSeen, 2);
    }

    void dialogsObjectMayBeDestroyedWhileADialogIsOpen()
    {
        auto *dialogs = new CFileDialogMan(SettingsFile());
        InNextDialog([&](QFileDialog *dialog) {
            delete dialogs;
            Choose(dialog, m_other + "/cal.ini");
        });
        QCOMPARE(dialogs->GetOpenFileName("", ""), QString());
        QCOMPARE(m_dialogsSeen, 1);
        QCOMPARE(CFilePathRecordSentry(SettingsFile()).GetLastPath(), m_start);
    }

    void dialogBelongsToTheOutermostWindowAndOutlivesAFloatingPage()
    {
        QWidget tool;
        auto *page = new QWidget(&tool, Qt::Window);
        tool.show();
        page->show();
        QApplication::setActiveWindow(page);
        QCOMPARE(QApplication::activeWindow(), page);

        CFileDialogMan dialogs(SettingsFile());
        InNextDialog([&](QFileDialog *dialog) {
            QCOMPARE(dialog->parentWidget(), &tool);
            delete page;
            Choose(dialog, m_other + "/cal.ini");
        });
        QCOMPARE(dialogs.GetOpenFileName("", ""), m_other + "/cal.ini");
        QCOMPARE(m_dialogsSeen, 1);
    }

    void windowMayBeDestroyedWhileADialogOfItIsOpen_data() { AddDialogRows(); }

    void windowMayBeDestroyedWhileADialogOfItIsOpen()
    {
        QFETCH(TGetFileName, getFileName);
        auto *tool = new QWidget;
        tool->show();
        QApplication::setActiveWindow(tool);
        CFileDialogMan dialogs(SettingsFile());
        InNextDialog([&](QFileDialog *dialog) {
            QCOMPARE(dialog->parentWidget(), tool);
            delete tool;
        });
        QCOMPARE((dialogs.*getFileName)("", ""), QString());
        QCOMPARE(m_dialogsSeen, 1);
    }

private:
    static void AddDialogRows()
    {
        QTest::addColumn<TGetFileName>("getFileName");
        QTest::newRow("save") << &CFileDialogMan::GetSaveFileName;
        QTest::newRow("open") << &CFileDialogMan::GetOpenFileName;
    }

    QString SettingsFile() const { return m_folder->filePath("settings.txt"); }

    // Runs the steps in the next file dialog that opens. Whatever they find, no dialog stays open.
    void InNextDialog(std::function<void(QFileDialog *)> steps)
    {
        QTimer::singleShot(0, this, [this, steps] {
            QPointer<QFileDialog> dialog =
                qobject_cast<QFileDialog *>(QApplication::activeModalWidget());
            QVERIFY(dialog);
            ++m_dialogsSeen;
            steps(dialog);
            if (dialog && dialog->isVisible())
                dialog->reject();
        });
    }

    void ChooseInNextDialog(const QString &file)
    {
        InNextDialog([file](QFileDialog *dialog) { Choose(dialog, file); });
    }

    // As a user who types the whole path.
    static void Choose(QFileDialog *dialog, const QString &file)
    {
        dialog->findChild<QLineEdit *>("fileNameEdit")->setText(file);
        QMetaObject::invokeMethod(dialog, "accept");
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    QString m_start;
    QString m_other;
    int m_dialogsSeen = 0;
};

QUORLIN_TEST_CLASS(FileDialogManTest)
#include "FileDialogManTest.moc"
