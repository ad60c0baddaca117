#include "Support/FileDialogMan.h"

#include <QApplication>
#include <QFileDialog>
#include <QFileInfo>
#include <QPointer>

// What tells the two dialogs apart.
struct CFileDialogMan::SDialogKind
{
    QString (*ask)(QWidget *parent, const QString &caption, const QString &directory,
                   const QString &filter);
    const char *defaultCaption;
};

namespace {

// Taken as it stands: the bar is part of the one filter, not a separator.
constexpr char kDefaultFilter[] = "All files (*.*)|*.*";

QString AskSave(QWidget *parent, const QString &caption, const QString &directory,
                const QString &filter)
{
    return QFileDialog::getSaveFileName(parent, caption, directory, filter);
}

QString AskOpen(QWidget *parent, const QString &caption, const QString &directory,
                const QString &filter)
{
    return QFileDialog::getOpenFileName(parent, caption, directory, filter);
}

// The outermost window above the active one. A page may float in a window of its own and is
// destroyed on a reset, which would take a dialog that runs as its child along.
QWidget *DialogParent()
{
    QWidget *window = QApplication::activeWindow();
    while (window && window->parentWidget())
        window = window->parentWidget()->window();
    return window;
}

}  // namespace

CFileDialogMan::CFileDialogMan(const QString &settingsFile) : m_record(settingsFile) {}

QString CFileDialogMan::GetSaveFileName(const QString &caption, const QString &filter)
{
    return GetFileName({AskSave, "Please choose the file to save"}, caption, filter);
}

QString CFileDialogMan::GetOpenFileName(const QString &caption, const QString &filter)
{
    return GetFileName({AskOpen, "Please choose the file to open"}, caption, filter);
}

QString CFileDialogMan::GetFileName(const SDialogKind &kind, const QString &caption,
                                    const QString &filter)
{
    const QPointer<CFileDialogMan> alive = this;
    const QString file =
        kind.ask(DialogParent(), caption.isEmpty() ? QString(kind.defaultCaption) : caption,
                 m_record.GetLastPath(), filter.isEmpty() ? QString(kDefaultFilter) : filter);
    if (!alive)
        return {};
    if (!file.isEmpty())
        m_record.SetLastPath(QFileInfo(file).path());
    return file;
}
