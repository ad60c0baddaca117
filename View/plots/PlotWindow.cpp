#include "View/plots/PlotWindow.h"

#include <algorithm>
#include <cmath>

#include <QAction>
#include <QClipboard>
#include <QGuiApplication>
#include <QMenu>
#include <QShortcut>

#include "Support/FileDialogMan.h"
#include "Support/MessageBoxMan.h"
#include "Support/WholeFile.h"
#include "View/editors/NamedAction.h"
#include "View/plots/PlotFigureTable.h"
#include "View/plots/PlotLibrary.h"
#include "ui_PlotWindow.h"

namespace {

constexpr int kPointsMs = 40;
constexpr int kFiguresMs = 120;
constexpr double kZoomIn = 0.5;
constexpr double kPanPart = 0.25;
constexpr double kCursorPart = 0.01;  // of the view, by a key

constexpr char kPictures[] =
    "PNG picture (*.png)|*.png|SVG picture (*.svg)|*.svg|PDF document (*.pdf)|*.pdf";

constexpr char kImages[] = "Calibration data (*.ini *.json)|*.ini;*.json|All files (*.*)|*.*";

EPlotPicture FormatOf(const QString &file)
{
    if (file.endsWith(QLatin1String(".svg"), Qt::CaseInsensitive))
        return EPlotPicture::Svg;
    return file.endsWith(QLatin1String(".pdf"), Qt::CaseInsensitive) ? EPlotPicture::Pdf
                                                                     : EPlotPicture::Png;
}

}  // namespace

CPlotWindow *CPlotWindow::Make(QWidget *page, CPlotSource *source)
{
    std::unique_ptr<CPlotWindow> window(new CPlotWindow(page, source));
    return window->MakePlot() ? window.release() : nullptr;
}

CPlotWindow::CPlotWindow(QWidget *page, CPlotSource *source)
    : CPageWindow(page, QLatin1String("plot/") + source->Key()),
      m_ui(std::make_unique<Ui::CPlotWindow>()), m_source(source)
{
    m_ui->setupUi(this);
    setWindowTitle(source->Title());
}

CPlotWindow::~CPlotWindow() = default;

bool CPlotWindow::MakePlot()
{
    m_plot = CPlotLibrary::Get().Make(m_ui->m_place);
    if (!m_plot)
        return false;
    m_ui->m_place->layout()->addWidget(m_plot->Widget());
    m_pointsTimer.setSingleShot(true);
    m_figuresTimer.setSingleShot(true);
    connect(&m_pointsTimer, &QTimer::timeout, this, &CPlotWindow::ShowPoints);
    connect(&m_figuresTimer, &QTimer::timeout, this, &CPlotWindow::ShowFigures);
    m_plot->SetEvents({
        .onPoint =
            [this](int curve, int point) {
                if (m_source)
                    m_source->GoTo(curve, point);
            },
        .onView =
            [this] {
                if (!m_figuresTimer.isActive())
                    m_figuresTimer.start(kFiguresMs);
            },
        .onCursors = [this] { m_figuresTimer.start(0); },
        .onHidden = [this] { m_figuresTimer.start(0); },
    });
    ConnectButtons();
    AddKeys();
    AddComparison();
    connect(m_source, &CPlotSource::Signal_Curves, this, &CPlotWindow::ShowCurves);
    connect(m_source, &CPlotSource::Signal_Points, this, [this] {
        if (isVisible() && !m_pointsTimer.isActive())
            m_pointsTimer.start(kPointsMs);
    });
    m_source->Open();
    ShowCurves();
    RestorePlace();
    return true;
}

void CPlotWindow::ConnectButtons()
{
    connect(m_ui->m_showAll, &QPushButton::clicked, this, [this] { m_plot->ShowAll(); });
    connect(m_ui->m_zoomIn, &QPushButton::clicked, this, [this] { m_plot->Zoom(kZoomIn); });
    connect(m_ui->m_zoomOut, &QPushButton::clicked, this, [this] { m_plot->Zoom(1 / kZoomIn); });
    connect(m_ui->m_left, &QPushButton::clicked, this, [this] { m_plot->Pan(-kPanPart); });
    connect(m_ui->m_right, &QPushButton::clicked, this, [this] { m_plot->Pan(kPanPart); });
    connect(m_ui->m_cursors, &QPushButton::toggled, this,
            [this](bool isOn) { m_plot->ShowCursors(isOn); });
    connect(m_ui->m_clear, &QPushButton::clicked, this, [this] {
        if (m_source)
            m_source->Clear();
    });
    m_ui->m_clear->setVisible(m_source->HasClear());
    connect(m_ui->m_copy, &QPushButton::clicked, this, &CPlotWindow::Copy);
    connect(m_ui->m_save, &QPushButton::clicked, this, &CPlotWindow::Save);
}

void CPlotWindow::AddKeys()
{
    const auto add = [this](const char *name, const char *text, const char *key,
                            const std::function<void()> &act) {
        AddAction(this, name, text, {QLatin1String(key)}, act);
    };
    add("m_actionClose", "Close", "Esc", [this] { close(); });
    add("m_actionCopy", "Copy picture", "Ctrl+C", [this] { Copy(); });
    add("m_actionSave", "Save picture...", "Ctrl+S", [this] { Save(); });
    add("m_actionAll", "Show all", "Ctrl+0", [this] { m_plot->ShowAll(); });
    add("m_actionALeft", "Cursor A left", "Ctrl+Left", [this] { MoveCursor(0, -kCursorPart); });
    add("m_actionARight", "Cursor A right", "Ctrl+Right", [this] { MoveCursor(0, kCursorPart); });
    add("m_actionBLeft", "Cursor B left", "Ctrl+Shift+Left",
        [this] { MoveCursor(1, -kCursorPart); });
    add("m_actionBRight", "Cursor B right", "Ctrl+Shift+Right",
        [this] { MoveCursor(1, kCursorPart); });
}

void CPlotWindow::AddComparison()
{
    m_ui->m_compare->setVisible(m_source->Second() != nullptr);
    if (!m_source->Second())
        return;
    const auto drop = [this] {
        if (m_source)
            m_source->Second()->Drop();
    };
    const auto askDut = [this] {
        if (m_source)
            m_source->Second()->CompareWith({.kind = ECalSide::Dut});
    };
    auto *const menu = new QMenu(m_ui->m_compare);
    menu->addActions(
        {AddAction(this, "m_actionCompareFile", "Compare with &file...", {"Ctrl+O"},
                   [this] { AskForFile(); }),
         AddAction(this, "m_actionCompareDut", "Compare with &DUT", {"Ctrl+D"}, askDut),
         AddAction(this, "m_actionCompareNothing", "&No comparison", {"Ctrl+N"}, drop)});
    m_ui->m_compare->setMenu(menu);
    const auto *const go =
        new QShortcut(Qt::Key_Return, m_ui->m_figures, nullptr, nullptr, Qt::WidgetShortcut);
    connect(go, &QShortcut::activated, this, &CPlotWindow::GoToCell);
}

// The page may be gone when the dialog is closed, and the window with it.
void CPlotWindow::AskForFile()
{
    const QPointer<CPlotWindow> self(this);
    CFileDialogMan dialogs;
    const QString path =
        dialogs.GetOpenFileName(QStringLiteral("Compare With"), QLatin1String(kImages));
    if (self && m_source && !path.isEmpty())
        m_source->Second()->CompareWith({.kind = ECalSide::File, .file = path});
}

// What a click on a point does, by the keyboard: of the curve in the current row, the point at cursor A, or at
// the left end of the view.
void CPlotWindow::GoToCell()
{
    const int curve = PlotCurveOf(*m_ui->m_figures);
    if (!m_source || curve < 0)
        return;
    const double at = m_ui->m_cursors->isChecked() ? m_plot->Cursors()[0] : m_plot->View()[0];
    const std::vector<double> &x = *m_curves[static_cast<size_t>(curve)].x;
    const auto nearest = std::min_element(x.begin(), x.end(), [at](double one, double other) {
        return std::fabs(one - at) < std::fabs(other - at);
    });
    if (nearest != x.end())
        m_source->GoTo(curve, static_cast<int>(nearest - x.begin()));
}

void CPlotWindow::MoveCursor(int cursor, double part)
{
    if (!m_ui->m_cursors->isChecked())
        return;
    const std::array<double, 2> view = m_plot->View();
    m_plot->MoveCursor(cursor, m_plot->Cursors().at(static_cast<size_t>(cursor)) +
                                   (view[1] - view[0]) * part);
}

void CPlotWindow::ShowCurves()
{
    if (!m_source)
        return;
    m_curves = m_source->Curves();
    m_plot->SetShape(m_source->Shape());
    m_plot->SetCurves(m_curves);
    ShowWords();
    ShowFigures();
}

void CPlotWindow::ShowWords()
{
    const auto show = [](QLabel *label, const QString &words) {
        label->setText(words);
        label->setVisible(!words.isEmpty());
    };
    show(m_ui->m_remark, m_source->Remark());
    show(m_ui->m_status, m_source->Status());
    if (ISecondImage *second = m_source->Second())
        findChild<QAction *>(QStringLiteral("m_actionCompareNothing"))
            ->setEnabled(second->IsThere());
}

void CPlotWindow::ShowPoints()
{
    m_plot->ShowData();
}

void CPlotWindow::ShowFigures()
{
    if (isVisible())
        ShowPlotFigures(m_ui->m_figures, *m_plot, m_curves, m_ui->m_cursors->isChecked());
}

void CPlotWindow::Copy()
{
    QGuiApplication::clipboard()->setImage(QImage::fromData(m_plot->Picture(EPlotPicture::Png)));
}

// The page may be gone when the dialog is closed, and the window with it.
void CPlotWindow::Save()
{
    const QPointer<CPlotWindow> self(this);
    CFileDialogMan dialogs;
    const QString path =
        dialogs.GetSaveFileName(QStringLiteral("Save Picture"), QLatin1String(kPictures));
    if (!self || path.isEmpty())
        return;
    const QByteArray picture = m_plot->Picture(FormatOf(path));
    const QString why = picture.isEmpty() ? QStringLiteral("The picture could not be made.")
                                          : SaveWhole(path, picture);
    if (why.isEmpty())
        return;
    CMessageBoxMan box;
    box.SetOwner(this);
    box.Show(eBoxCritical, QStringLiteral("Save picture failed"), path.toHtmlEscaped(), why, {},
             -1);
}

// A page turns all that it owns off with itself.
void CPlotWindow::showEvent(QShowEvent *event)
{
    CPageWindow::showEvent(event);
    if (m_plot) {
        ShowPoints();
        ShowFigures();
    }
}
