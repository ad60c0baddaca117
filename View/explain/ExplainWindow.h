// Why the members of a page have changed, in a window of its own: time, member, from, to, because.
//
// The newest change stands first. The list of members narrows it to one. Ctrl+C and Copy take the
// selected rows, or all that are shown, as tab-separated text; Esc closes the window. It shows what is
// recorded since the page's start (View/engine/ChangeRecorder.h), also while it is closed. GUI thread;
// a window of its page (View/engine/PageWindow.h).
//
//   auto *window = new CExplainWindow(page);
//   window->ShowMember("cmdIf.request.group1.memberProperty.band");
//   window->BringUp();
#pragma once

#include <memory>

#include <QSortFilterProxyModel>
#include <QTimer>

#include "View/engine/PageWindow.h"
#include "View/explain/ChangeModel.h"

namespace Ui {
class CExplainWindow;
}

class CExplainWindow : public CPageWindow
{
    Q_OBJECT

public:
    explicit CExplainWindow(CAutoBindingDataModelDockWidget *page);
    ~CExplainWindow() override;

    // path: empty for all members.
    void ShowMember(const QString &path);

protected:
    void showEvent(QShowEvent *event) override;

private:
    void FillMembers();
    void Filter();
    void Sync();
    void Copy();

    const std::unique_ptr<Ui::CExplainWindow> m_ui;
    CChangeModel m_changes;
    QSortFilterProxyModel m_filter;
    QTimer m_timer;  // many changes come at once
};
