// The log of the session in a window of its own: filter, copy, save.
//
// The filter shows the events that have its words anywhere. Copy takes the selected rows, or all that
// are shown, as tab-separated text; Save writes the same to a file, whole or not at all. The newest
// event is in sight until the user scrolls up. The window remembers its place (Support/Settings). GUI
// thread; a child of the tool's window, whose end is its end.
//
//   auto *log = new CSessionLogWindow(this);
//   log->show();
#pragma once

#include <memory>

#include <QSortFilterProxyModel>
#include <QWidget>

#include "View/engine/RowCopy.h"

namespace Ui {
class CSessionLogWindow;
}

class CSessionLogWindow : public QWidget
{
    Q_OBJECT

public:
    explicit CSessionLogWindow(QWidget *owner);
    ~CSessionLogWindow() override;

protected:
    void hideEvent(QHideEvent *event) override;

private:
    QString Text() const;
    void Copy();
    void Save();
    void FollowNewest();

    const std::unique_ptr<Ui::CSessionLogWindow> m_ui;
    QSortFilterProxyModel m_filter;
    CRowCopy m_copy;
    bool m_isAtEnd = true;  // the newest event was in sight
};
