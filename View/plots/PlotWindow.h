// The window of a page's plot: the curves, what the user does with them, and their figures.
//
// It stands beside the tool and ends with its page, without a question; it goes and comes with the tool's
// window. Its place is remembered. The figures (minimum, maximum, mean, standard deviation) are those of
// the points in view; with the cursors on, the values at both and their difference stand beside them.
//
// While its page is off, as during a test of another page, the window stays on. GUI thread.
//
//   if (CPlotWindow *window = CPlotWindow::Make(page, source))
//       window->show();
#pragma once

#include <memory>

#include <QPointer>
#include <QTimer>
#include <QWidget>

#include "View/plots/PlotInterface.h"
#include "View/plots/PlotSource.h"

class QMainWindow;

namespace Ui {
class CPlotWindow;
}

class CPlotWindow : public QWidget
{
    Q_OBJECT

public:
    // Null where no plot can be made (PlotLibrary.h). The page owns it.
    static CPlotWindow *Make(QWidget *page, CPlotSource *source);
    ~CPlotWindow() override;

    bool eventFilter(QObject *object, QEvent *event) override;

protected:
    void changeEvent(QEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;

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
    void KeepPlace();

    const std::unique_ptr<Ui::CPlotWindow> m_ui;
    const QPointer<CPlotSource> m_source;
    IPlot *m_plot = nullptr;
    std::vector<SPlotCurve> m_curves;
    QTimer m_pointsTimer;      // more points are shown some times a second
    QTimer m_figuresTimer;     // and figures less often
    bool m_comesBack = false;  // with the tool's window
};
