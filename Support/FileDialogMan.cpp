#include "Support/FileDialogMan.h"

#include <QApplication>
#include <QFileDialog>
#include <QFileInfo>
#include <QPointer>

#include "Support/FileFilter.h"

// What differs between the two dialogs.
struct CFileDialogMan::SDialogKind
{
    QFileDialog::AcceptMode acceptMode;
    QFileDialog::FileMode fileMode;
    const char *defaultCaption;
};

namespace {

constexpr char kDefaultFilter[] = "INI files (*.ini)|*.ini|All files (*.*)|*.*";

// The outermost window above the active one. A page may float in a window of its own, which a reset
// destroys together with its children; a dialog must not be one of them.
QWidget *DialogParent()
{
    QWidget *window = QApplication::activeWindow();
    while (window && window->parentWidget())
        window = window->parentWidget()->window();
    return window;
}

// QFileDialog's own static functions hold their dialog on the stack: one whose window is destroyed
// while it is open would be deleted there.
QString Ask(QFileDialog *newDialog)
{
    const QPointer<QFileDialog> dialog = newDialog;
    const bool isAccepted = dialog->exec() == QDialog::Accepted;
    const QString file = isAccepted && dialog ? dialog->selectedFiles().value(0) : QString();
    delete dialog;
    return file;
}

}  // namespace

CFileDialogMan::CFileDialogMan(const QString &settingsFile) : m_record(settingsFile) {}

QString CFileDialogMan::GetSaveFileName(const QString &caption, const QString &filter)
{
    return GetFileName(
        {QFileDialog::AcceptSave, QFileDialog::AnyFile, "Please choose the file to save"}, caption,
        filter);
}

QString CFileDialogMan::GetOpenFileName(const QString &caption, const QString &filter)
{
    return GetFileName(
        {QFileDialog::AcceptOpen, QFileDialog::ExistingFile, "Please choose the file to open"},
        caption, filter);
}

QString CFileDialogMan::GetFileName(const SDialogKind &kind, const QString &caption,
                                    const QString &filter)
{
    const QPointer<CFileDialogMan> alive = this;
    auto *dialog =
        new QFileDialog(DialogParent(), caption.isEmpty() ? QString(kind.defaultCaption) : caption,
                        m_record.GetLastPath());
    const QString offered = filter.isEmpty() ? QString(kDefaultFilter) : filter;
    dialog->setNameFilters(NameFilters(offered));
    dialog->setAcceptMode(kind.acceptMode);
    dialog->setFileMode(kind.fileMode);
    if (kind.acceptMode == QFileDialog::AcceptSave)
        dialog->setDefaultSuffix(DefaultSuffix(offered));
    const QString file = Ask(dialog);
    if (!alive)
        return {};
    if (!file.isEmpty())
        m_record.SetLastPath(QFileInfo(file).path());
    return file;
}
