// How many cells of a page's item differ from what was last read or imported, in the status bar of the
// window that the page is docked in. Out of sight at 0, and while another page is in front. GUI thread.
//
//   CChangeCount m_count{page};
//   m_count.Show(3);   // "3 changed cells"
#pragma once

#include <QDockWidget>
#include <QLabel>
#include <QPointer>

class CChangeCount : public QObject
{
    Q_OBJECT

public:
    // page must outlive this object.
    explicit CChangeCount(QDockWidget *page);
    // The label stands in the window's status bar and would stay there.
    ~CChangeCount() override;

    void Show(int count);

private:
    void Place();

    QDockWidget *const m_page;
    QPointer<QLabel> m_label;
    int m_count = 0;
    bool m_isInFront = true;
};
