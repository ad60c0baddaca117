// The open and save dialogs of the tool, which start where the user last was.
//
// Both dialogs are modal, start in the remembered directory and return the chosen file, or an empty
// text when the user cancels. A chosen file makes its directory the remembered one; a cancelled
// dialog changes nothing. The directory reaches the disk when the object dies, so a local object
// in the slot of a button serves best.
//
// The object may be destroyed while a dialog is open, as happens when the pages are reset; the
// answer is then empty and not remembered. The dialog belongs to the tool window, not to this
// object; when that window is destroyed the answer is empty, too. GUI thread.
//
//     CFileDialogMan dialogs;
//     const QString file = dialogs.GetOpenFileName("", "");
#pragma once

#include <QString>
#include <QWidget>

#include "Support/FilePathRecordSentry.h"

class CFileDialogMan : public QWidget
{
    Q_OBJECT

public:
    explicit CFileDialogMan(
        const QString &settingsFile = CFilePathRecordSentry::DefaultSettingsFile());

    // An empty caption or filter stands for the default of the dialog. A filter with a bar is one
    // of FileFilter.h, and is translated; the dialog offers its filters in their order. A file that
    // is to be saved gets the first filter's end when its name has none.
    QString GetSaveFileName(const QString &caption, const QString &filter);
    QString GetOpenFileName(const QString &caption, const QString &filter);

private:
    struct SDialogKind;

    QString GetFileName(const SDialogKind &kind, const QString &caption, const QString &filter);

    CFilePathRecordSentry m_record;
};
