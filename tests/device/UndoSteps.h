// A calibration page with undo: its actions, its keys, and the DUT's flash as the witness.
//
//   CUndoSession session(kAptPage);
//   QVERIFY(session.IsRead());
//   session.Edit(7, "paHighPaGain", 0, 3, "18.5");
//   session.PressUndo();                        // Ctrl+Z, where the focus is
//   QCOMPARE(session.Written(), session.Flash());
#pragma once

#include <memory>

#include <QAction>
#include <QDialogButtonBox>
#include <QLabel>
#include <QListWidget>
#include <QMainWindow>
#include <QStatusBar>
#include <QTemporaryDir>

#include "tests/device/CalibrationSession.h"
#include "tests/device/FlashFile.h"

// The flash file, while it lives.
class CFlashFolder
{
public:
    CFlashFolder() { qputenv("VOND_SIM_FLASH", Path().toUtf8()); }
    ~CFlashFolder() { qunsetenv("VOND_SIM_FLASH"); }
    QString Path() const { return m_folder.filePath("dut.flash"); }
    QString File(const QString &name) const { return m_folder.filePath(name); }

private:
    QTemporaryDir m_folder;
};

// A session's own flash, or another one; made before the session.
class COwnFlash
{
protected:
    COwnFlash() : m_own(std::make_unique<CFlashFolder>()), m_folder(*m_own) {}
    explicit COwnFlash(const CFlashFolder &folder) : m_folder(folder) {}
    const CFlashFolder &Folder() const { return m_folder; }

private:
    std::unique_ptr<CFlashFolder> m_own;
    const CFlashFolder &m_folder;
};

// Answers the next dialog of Copy record: checks rows, and presses a button. texts: what it lists.
inline void AnswerCopy(const QVector<int> &rows, QDialogButtonBox::StandardButton button,
                       QStringList *texts = nullptr)
{
    auto *timer = new QTimer(qApp);
    QObject::connect(timer, &QTimer::timeout, timer, [=] {
        auto *dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget());
        auto *list = dialog ? dialog->findChild<QListWidget *>("m_listTargets") : nullptr;
        if (!list)
            return;
        timer->stop();
        timer->deleteLater();
        for (int i = 0; texts && i < list->count(); ++i)
            texts->append(list->item(i)->text());
        for (const int row : rows)
            list->item(row)->setCheckState(Qt::Checked);
        QTest::mouseClick(dialog->findChild<QDialogButtonBox *>("m_buttons")->button(button),
                          Qt::LeftButton);
    });
    timer->start(0);
}

class CUndoSession : private COwnFlash, public CCalibrationSession
{
public:
    explicit CUndoSession(const QString &page, const QString &profile = "handset")
        : CCalibrationSession(page, profile)
    {
    }
    // With a flash that is there.
    CUndoSession(const QString &page, const QString &profile, const CFlashFolder &flash)
        : COwnFlash(flash), CCalibrationSession(page, profile)
    {
    }
    QString File(const QString &name) const { return Folder().File(name); }
    QString Path() const { return Folder().Path(); }

    // The page shows what it has read, the flash file is there, and the window takes keys.
    bool IsRead() { return ShowAndWait() && ReadAndWrite(); }
    // The same with editors where a user has looked alone.
    bool IsReadByAUser()
    {
        (*this)->ShowPlugin();
        if (!WaitUntil([&] { return StatusBar() == "Init done." && Window()->isEnabled(); }))
            return false;
        Page()->raise();
        return WaitUntil([&] { return !Page()->visibleRegion().isEmpty(); }) && ReadAndWrite();
    }
    // What a Write of now changes in the flash since IsRead.
    QStringList Written()
    {
        return Run(kWrite) ? m_flash.ChangesTo(CFlashFile(Path())) : QStringList{"no Write"};
    }

    // Types and ends the edit.
    void Edit(int group, const QString &member, int row, int column, const QString &text) const
    {
        QApplication::setActiveWindow(Window());  // as behind a dialog
        QAbstractSpinBox *cell = Cell(group, member, row, column);
        Type(cell, text);
        QTest::keyClick(cell, Qt::Key_Return);
    }

    QAction *Action(const QString &name) const { return Page()->findChild<QAction *>(name); }
    // Without the keys behind it.
    QString ActionText(const QString &name) const
    {
        return Action(name)->text().section('\t', 0, 0);
    }
    bool CanUndo() const { return Action("m_actionUndo")->isEnabled(); }
    bool CanRedo() const { return Action("m_actionRedo")->isEnabled(); }
    QString UndoText() const { return ActionText("m_actionUndo"); }

    void PressUndo() const { PressKeys(Qt::Key_Z); }
    void PressRedo() const { PressKeys(Qt::Key_Y); }
    void PressKeys(Qt::Key key) const
    {
        QApplication::setActiveWindow(Window());  // as behind a dialog
        QWidget *focus = QApplication::focusWidget();
        QTest::keyClick(focus && Page()->isAncestorOf(focus) ? focus : Selector("band"), key,
                        Qt::ControlModifier);
    }

    // "" when it is out of sight.
    QString ChangeCount() const
    {
        QCoreApplication::processEvents();
        const auto *label = Window()->statusBar()->findChild<QLabel *>("m_lblChangedCells");
        return label && label->isVisible() ? label->text() : QString();
    }

private:
    bool ReadAndWrite()
    {
        if (!Run(kRead) || !Run(kWrite))
            return false;
        QApplication::setActiveWindow(Window());
        m_flash = CFlashFile(Path());
        return !m_flash.records.isEmpty();
    }

    CFlashFile m_flash{QString()};
};
