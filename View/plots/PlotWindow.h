// The window of a page's plot: the curves, what the user does with them, and their figures.
//
// It is a window of its page (View/engine/PageWindow.h). The figures (minimum, maximum, mean, standard
// deviation) are those of the points in view; with the cursors on, the values at both and their
// difference stand beside them. GUI thread.
//
//   if (CPlotWindow *window = CPlotWindow::Make(page, source))
//       window->show();
#pragma once

#include <memory>

#include <QPointer>
#include <QTimer>

#include "View/engine/PageWindow.h"
#include "View/plots/PlotInterface.h"
#include "View/plots/PlotSource.h"

namespace Ui {
class CPlotWindow;
}

class CPlotWindow : public CPageWindow
{
    Q_OBJECT

public:
    // Null where no plot can be made (PlotLibrary.h). The page owns it.
    static CPlotWindow *Make(QWidget *page, CPlotSource *source);
    ~CPlotWindow() override;

protected:
    void showEvent(QShowEvent *event) override;

private:
    CPlotWindow(QWidget *page, CPlotSource *source);

    bool MakePlot();
    void ConnectButtons();
    void AddKeys();
    void AddComparison();
    void AskForFile();
    void GoToCell();
    void MoveCursor(int cursor, double part);
    void ShowCurves();
    void ShowWords();
    void ShowPoints();
    void ShowFigures();
    void Save();
    void Copy();

    const std::unique_ptr<Ui::CPlotWindow> m_ui;
    const QPointer<CPlotSource> m_source;
    IPlot *m_plot = nullptr;
    std::vector<SPlotCurve> m_curves;
    QTimer m_pointsTimer;   // more points are shown some times a second
    QTimer m_figuresTimer;  // and figures less often
};
