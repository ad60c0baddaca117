// Pages that edit calibration data: of the DUT's flash, by way of the copy that the core keeps.
//
// Four buttons start a flow: Read (flash to page), Write (page to flash), Import (file to page) and
// Export (page to file). A flow moves the data of all routes. While it runs the page is disabled,
// the status bar tells how far it is, and a progress bar moves beside it. Each ends in one answer:
// a status line, the result box when it failed, and one more box when it left something out.
//
// A page shows one selection at a time (band, route, power mode and so on); the core's copy holds
// all. A change of selection stores what was shown and shows what the copy has under the new one.
// When a selector signals the change, the widgets name the new selection already. So the page takes
// a snapshot before that, the document under the old selection: when the user goes to a selector, by
// the focus, the wheel, a key or a click.
//
// After a flow, good or bad, the page shows what the core's copy holds under the selection, valid or
// not. That is the new snapshot: only what the user changes from then on is an edit.
//
// Edits, resets, and what a Read or Import replaced can be undone (View/undo/PageUndo.h). Cells that
// differ from what was last read or imported are coloured, and counted in the status bar.
//
// Until the page has its document, and while a result is being shown, its selectors get no events.
//
// What one page has other than the next is its record and the named slots, which call the protected
// operations below.
//
// Errors. A result other than success ends in the result box, a cancelled file dialog in a warning;
// boxes are the last thing that happens: the page may be gone when one has closed.
//
// Threads. GUI thread. An answer's connection lives for one flow. Storing and fetching a selection
// works on the core's copy and does not wait for the target.
//
// Documents pass as objects. A change of selection prints and parses none, and neither does the GUI
// thread at the end of a flow: what memory holds comes from the pool.
//
//   constexpr SCalibrationPage kPage = {.item = ECalItem::Apt, ...};
//   CNrAptProfileDockWidgetV7::CNrAptProfileDockWidgetV7(QWidget *parent)
//       : CCalibrationDockWidget(kPage, parent), m_ui(...)
//   {
//       m_ui->setupUi(this);
//       SetForm({.contents = m_ui->dockWidgetContents, .buttons = {...}, .selectors = {...}});
//   }
//   void CNrAptProfileDockWidgetV7::Slot_AptDownloadToFlashDone(SEachItemOperationResult result)
//   {
//       FinishFlow(ECalibrationFlow::Download, result);
//   }
#pragma once

#include <functional>
#include <memory>
#include <string>

#include <QJsonObject>
#include <QList>

#include "Model/CalDifferences.h"
#include "View/engine/AutoBindingDataModelDockWidget.h"
#include "View/undo/PageUndo.h"
#include "ViewController/QuorlinViewCtrl.h"

class CCalibrationDockWidget;
class QAbstractButton;
struct SCalibrationCurves;
struct SComparePage;

using ECalibrationFlow = CQuorlinViewCtrl::ECalFlow;

// The signal that answers a flow's request, and the page's slot for the answer, which a record takes
// with a static_cast.
template <typename Answer>
struct SCalibrationFlow;

template <typename... Answers>
struct SCalibrationFlow<void(Answers...)>
{
    void (CQuorlinViewCtrl::*done)(Answers...);
    void (CCalibrationDockWidget::*slot)(Answers...);
};

using CalibrationRead = void(SEachItemOperationResult, std::string);
using CalibrationWrite = void(SEachItemOperationResult);
using CalibrationReadSlot = void (CCalibrationDockWidget::*)(SEachItemOperationResult, std::string);
using CalibrationWriteSlot = void (CCalibrationDockWidget::*)(SEachItemOperationResult);

struct SCalibrationPage
{
    ECalItem item;
    void (CQuorlinViewCtrl::*getDataModel)();
    void (CQuorlinViewCtrl::*dataModelDone)(std::string);
    SCalibrationFlow<CalibrationRead> upload;
    SCalibrationFlow<CalibrationWrite> download;
    SCalibrationFlow<CalibrationRead> load;
    SCalibrationFlow<CalibrationWrite> save;
};

struct SCalibrationForm
{
    QWidget *contents;                 // all widgets of the page
    QList<QAbstractButton *> buttons;  // that are off while a flow runs
    QList<QWidget *> selectors;
};

class CCalibrationDockWidget : public CAutoBindingDataModelDockWidget, private IEditedPage
{
    Q_OBJECT

public:
    ~CCalibrationDockWidget() override;

    QWidget *GetRootWidget() override;
    int GetModelInterface() override;
    void RequestDataModel() override;
    void DisableTestControls() override;
    void EnableTestControls() override;

    bool eventFilter(QObject *object, QEvent *event) override;
    // As one command of the page's undo.
    void ChangeCells(const QString &name, const CellChanges &changes) override;

public slots:
    // Nothing to stop. Prescribed; see docs/decisions/0036-prescribed-surface.md
    void Slot_TriggerStopTest() override;

protected slots:
    void on_m_btnUpload_clicked();
    void on_m_btnDownload_clicked();
    void on_m_btnLoad_clicked();
    void on_m_btnSave_clicked();
    // The document is in place: the page sizes its tables.
    virtual void Slot_InitDone();

protected:
    CCalibrationDockWidget(const SCalibrationPage &page, QWidget *parent);

    // The form's parts, once it is built.
    void SetForm(const SCalibrationForm &form);
    // The page compares and writes with guard by these buttons (CalCompare.h).
    void AddCompare(QAbstractButton *compare, QAbstractButton *guardedWrite);
    // The page plots these curves.
    void AddPlot(const SCalibrationCurves &curves);

    // The answers, in their slots: shows what memory holds, then ends the flow.
    void FinishFlow(ECalibrationFlow flow, const SEachItemOperationResult &result);

    // For a selector's slot: stores the snapshot and shows the data of the new selection. False
    // when nothing was shown: the page has no document yet, or has left its window.
    bool ChangeSelection(const char *log, const QString &selected);

    QJsonObject DocumentOf(const std::string &text) override;
    // Takes the snapshot before a selector changes.
    void BeforeEntry(QWidget *editor) override;

    // A snapshot has been taken, or new data are shown.
    virtual void ShowSelectionDetails();

    // Fixes the table's size to all of its headers and cells, and that of the scroll area that it
    // stands in, if any, to the table's height.
    static void FitTable(QTableWidget *table);
    // For a reset button, by its name: sets all values of the tables to 0, as one command.
    void ResetTables(const QString &reset, const QList<QTableWidget *> &tables);

private:
    struct SFlowTexts;

    template <typename Flow>
    void StartFlow(ECalibrationFlow kind, const Flow &flow, const QString &path = {});
    template <typename Flow>
    void EndFlow(const Flow &flow);
    void EndFlow(ECalibrationFlow flow);
    void GoOnAfter(ECalibrationFlow flow, const SEachItemOperationResult &result);
    // The file that the user chooses; empty when the dialog was cancelled, which has been said
    // then.
    QString AskFile(bool isSave);
    void ShowOutcome(const SFlowTexts &texts, const SEachItemOperationResult &result,
                     const SCalRemarks &remarks);
    void SetButtonsEnabled(bool isEnabled);
    void TakeSnapshot();
    // CalibrationDockWidgetCompare.cpp. GoTo brings the page to the front and gives the value's editor the
    // focus; notShown is called where the page does not show it.
    SComparePage ComparePage();
    void GoTo(const SCalCellPlace &place, const std::function<void()> &notShown);
    bool ShowPlace(const SCalCellPlace &place);
    bool Select(const SCalCellPlace &place);
    QWidget *EditorOf(const SCalCellPlace &place) const;
    // The page may be gone when it returns, unless boxes wait.
    void ShowDocument(const QJsonObject &document);
    // round: the transfer under way, 0 for a file; routesInAll: 0 while that is not known yet.
    void ShowProgress(ECalibrationFlow kind, int round, int routesDone, int routesInAll);
    static const SFlowTexts &Texts(ECalibrationFlow flow);

    // CalibrationDockWidgetUndo.cpp: what undo needs of the page.
    QList<QWidget *> DataMembers() const;
    QWidget *Widget() override { return this; }
    CChangeRecorder &Recorder() override { return Changes(); }
    ECalItem Item() const override { return m_page.item; }
    CQuorlinViewCtrl &Ctrl() override { return *m_viewCtrl; }
    void EndEdit() override { FinishEdit(); }
    QStringList Selection() const override;
    bool ShowSelection(const QStringList &selection) override;
    bool IsReady() const override { return m_modelReady; }
    QJsonObject Packaged() override { return PackageDocument(); }
    QJsonObject PackagedCopy() override { return CAutoBindingDataModelDockWidget::PackagedCopy(); }
    const QJsonObject &Document() const override { return m_dataModel; }
    void ShowMemory() override;

    const SCalibrationPage m_page;
    QJsonObject m_lastDocument;  // as it stood when the user went to a selector
    bool m_hasSnapshot = false;  // it was taken in this event
    const std::unique_ptr<CQuorlinViewCtrl> m_viewCtrl;
    SCalibrationForm m_form{};
    CPageUndo m_undo{*this, this, Edits()};
    SCalRemarks m_remarks;       // of the flow that runs
    QPointer<QObject> m_goesTo;  // while the page comes to the front for a value
};
