// The one message box of the tool: results, warnings and errors, always worded by the caller.
//
// Show opens the box modally and returns the button that the user pressed, a
// QMessageBox::StandardButton, which Signal_InteractionResult carries too. Escape and the close
// button of the window count as the box's one button.
//
// The box has no parent widget, so walks over a page's children never meet it. It stays above and
// opens centred over the active window, or over the window of the widget given to SetOwner when
// the user is in another application just then.
//
// Each box stands in the session's log (SessionLog.h), and is announced to screen readers with its text.
//
// The object may be destroyed while the box is open, as happens when the pages are reset: Show then
// returns 0 and emits nothing, and the caller must take care that its own object is still there. A
// Show while the box is open, from a timer or a late result, opens a second box above the first.
// Every Show starts clean: nothing of an earlier call is left. GUI thread.
//
//     m_messageBox.Show(2, "Open file", "Please choose the Cal/Ini file...", "", "", -1);
#pragma once

#include <QMessageBox>
#include <QPointer>
#include <QString>

class QShowEvent;

enum EBoxKind
{
    eBoxInformation = 1,
    eBoxWarning = 2,
    eBoxWarningAsIs = 3,  // the text as it stands
    eBoxCritical = 4,
};

class CMessageBoxMan : public QMessageBox
{
    Q_OBJECT

public:
    CMessageBoxMan();

    void SetOwner(QWidget *owner) { m_owner = owner; }

    // type: 1 information, 2 warning, 3 warning with the text as it stands, 4 critical; the text of
    // the others is set in the tool's font. An unknown type is logged and shown as type 3.
    // informative, detail: empty for none. width: least width in pixels, -1 for none.
    int Show(int type, const QString &title, const QString &text, const QString &informative,
             const QString &detail, int width);

signals:
    void Signal_InteractionResult(int result);

protected:
    void showEvent(QShowEvent *event) override;

private:
    int ShowSecond(int type, const QString &title, const QString &text, const QString &informative,
                   const QString &detail, int width);
    void Fill(int type, const QString &title, const QString &text, const QString &informative,
              const QString &detail);
    void Log(int type, QStringList texts);
    void SetLeastWidth(int width);
    void AttachToWindow();

    QPointer<QWidget> m_owner;
    QPointer<QWidget> m_window;  // the window that the box opens over
    bool m_isOpen = false;
};
