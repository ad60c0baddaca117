// What Compare, Guarded Write and the plot ask of the calibration page that they belong to: plain functions,
// so that none knows the other's class. All live as long as the page. GUI thread.
#pragma once

#include <functional>

#include <QDockWidget>
#include <QJsonObject>

#include "Model/CalDifferences.h"
#include "ViewController/QuorlinViewCtrl.h"

struct SComparePage
{
    QDockWidget *widget = nullptr;
    ECalItem item = ECalItem::Count;
    CQuorlinViewCtrl *viewCtrl = nullptr;
    // A request of the page, as a flow is one: the page is off between the two. Each false when the
    // page has left its window by that, or is gone.
    std::function<bool()> begin = {};
    std::function<bool()> end = {};
    std::function<QJsonObject()> document = {};  // as packaged
    // The same, while the edit under way goes on and the page's own document stays as it is.
    std::function<QJsonObject()> shown = {};
    std::function<void(const QString &text)> say = {};  // in the status bar
    std::function<void(int done, int all)> showProgress = {};
    // Kind and texts as of CMessageBoxMan; the page may be gone behind it.
    std::function<void(int kind, const QString &title, const QString &text, const QString &detail)>
        showBox = {};
    // Brings the page to the front, selects the record and gives the value's editor the focus; notShown is
    // called, soon, where the page does not show it.
    std::function<void(const SCalCellPlace &place, const std::function<void()> &notShown)> goTo =
        {};
};
