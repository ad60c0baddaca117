// A window of a page, beside the tool: it ends with its page, without a question, and goes and comes
// with the tool's window.
//
// Its place is remembered. While its page is off, as during a test of another page, it stays on. GUI
// thread; the page owns it.
//
//   class CExplainWindow : public CPageWindow ...
//   CExplainWindow::CExplainWindow(QWidget *page) : CPageWindow(page, "explain/geometry")
//   {
//       m_ui->setupUi(this);
//       RestorePlace();
//   }
#pragma once

#include <QString>
#include <QWidget>

class CPageWindow : public QWidget
{
    Q_OBJECT

public:
    // placeKey: of the settings file.
    CPageWindow(QWidget *page, const QString &placeKey);
    ~CPageWindow() override;

    // In front of the others, with the focus.
    void BringUp();

    bool eventFilter(QObject *object, QEvent *event) override;

protected:
    // With the form in place.
    void RestorePlace();
    void changeEvent(QEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    void KeepPlace();

    const QString m_placeKey;
    bool m_comesBack = false;  // with the tool's window
};
