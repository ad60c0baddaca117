#include "View/plots/PlotAction.h"

#include <QAction>

#include "View/editors/NamedAction.h"
#include "View/engine/AutoBindingDataModelDockWidget.h"
#include "View/plots/PlotLibrary.h"
#include "View/plots/PlotWindow.h"

namespace {

constexpr char kOpens[] = "Opens a window that plots what this page shows";

void ShowWhatIsMissing(QAction *action)
{
    const QString missing = CPlotLibrary::Get().Missing();
    action->setEnabled(missing.isEmpty());
    action->setToolTip(missing.isEmpty() ? QLatin1String(kOpens) : missing);
}

void OpenPlot(CAutoBindingDataModelDockWidget *page, CPlotSource *source, QAction *action)
{
    auto *window = page->findChild<CPlotWindow *>(QString(), Qt::FindDirectChildrenOnly);
    if (!window) {
        window = CPlotWindow::Make(page, source);
        ShowWhatIsMissing(action);
        if (!window) {
            emit page->Signal_UpdateStatus(action->toolTip());
            return;
        }
    }
    window->BringUp();
}

}  // namespace

void AddPlotAction(CAutoBindingDataModelDockWidget *page, CPlotSource *source)
{
    auto *const action = AddAction(page, "m_actionPlot", "&Plot...", {"Ctrl+P"}, [] {});
    QObject::connect(action, &QAction::triggered, page,
                     [page, source, action] { OpenPlot(page, source, action); });
    ShowWhatIsMissing(action);
}
