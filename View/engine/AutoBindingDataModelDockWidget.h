// The base class of every page: a form of plain Qt widgets, tied to a JSON document, its data model,
// by object names alone.
//
// Four walks move values between the two:
//
//   Init      fills the widgets from the document, once, when the page is first shown
//   Update    shows a result document in the widgets of its response or data section, and adopts it
//   Append    adds rows to result tables
//   Package   writes what the widgets hold into the document's memberValue objects
//
// Between them, members follow each other as the user edits (Relevance.h).
//
// Name to path. "cmdIf_request_group1_memberProperty_band" is the path
// "cmdIf.request.group1.memberProperty.band" of the document; with "_caption" behind it, the widget
// names the member. A widget whose name holds neither "cmdIf_" nor "calDataIf_" is left alone.
//
// Order. A walk visits all widgets below the root depth-first, children in creation order. Its
// result does not depend on that order: Init takes choices from the document's defaults, never from
// another widget, and publishes nothing.
//
// Binding. First the group's groupType decides (GroupTypes.h), then the member's dataType and the
// exact class of the widget, which must fit (DataTypes.h).
//
// Errors. A failure of binding is a critical line of "quorlin.engine"; the widget stays as it was
// and the walk goes on. The user sees the box of a document with failed patches and ShowItemResult
// alone.
//
// Threads. GUI thread; documents arrive as text through queued signals. A box runs an event loop in
// which the page may be destroyed: nothing touches the page after that. So a page's slot on an
// editor's change opens no box, since a walk or a chain may be under way. It sets m_boxesWait, and
// the box comes with the next turn of the event loop.
//
// Requests. What a button asks of the target begins with BeginRequest and ends with EndRequest. From
// then on the focus stays where it is or is on nothing, whatever is turned off.
//
// A page adds its form, its buttons and their answers:
//
//   class CNrContRxDockWidgetV7 : public CAutoBindingDataModelDockWidget
//   {
//       Q_OBJECT
//   public:
//       Q_INVOKABLE explicit CNrContRxDockWidgetV7(QWidget *parent);
//       QWidget *GetRootWidget() override { return this; }
//       int GetModelInterface() override { return eInterfaceCmdIf; }
//       void RequestDataModel() override;   // connect, ask the view controller
//       ...
//   };
//   // on Start:
//   if (BeginRequest([this] { DisableTestControls(); }))
//       m_viewCtrl->RequestTest(EPageId::ContRx, PackageDocument());
//   // its answer:
//   EndRequest([this] { EnableTestControls(); });
#pragma once

#include <functional>
#include <string>
#include <vector>

#include <QDockWidget>
#include <QFuture>
#include <QJsonObject>
#include <QPointer>

#include "Model/OperationResult.h"
#include "Support/MessageBoxMan.h"
#include "View/editors/EditSession.h"
#include "View/editors/WheelGuard.h"
#include "View/engine/ChangeRecorder.h"
#include "View/engine/ContextMenu.h"
#include "View/engine/MemberSettings.h"
#include "View/engine/ModelInterface.h"
#include "View/engine/Relevance.h"
#include "View/engine/StatusProgress.h"
#include "View/engine/TablePage.h"
#include "View/engine/WidgetIndex.h"

struct SBinding;

class CAutoBindingDataModelDockWidget : public QDockWidget, public ITablePage
{
    Q_OBJECT

public:
    explicit CAutoBindingDataModelDockWidget(QWidget *parent = nullptr);

    // Root of all walks; every page answers this.
    virtual QWidget *GetRootWidget() = 0;
    // One of EModelInterface.
    virtual int GetModelInterface() = 0;
    // Connects the answer to Slot_GetDataModelDone and asks for the document.
    virtual void RequestDataModel() = 0;
    // Start and Stop off; a running test's Stop stays on.
    virtual void DisableTestControls() = 0;
    // Start on, Stop off; a running test's buttons stay as they are. While a request of the page is
    // under way its buttons stay off, whatever a host enables: EndRequest turns them on.
    virtual void EnableTestControls() = 0;
    // The tool has stopped every test on the DUT: the page shows itself idle (buttons, inputs,
    // timers, remembered stops), without a status line. A page without a test has nothing to show.
    virtual void ShowTestStopped() {}
    // The document as packaged now, as compact text; empty while the page has none. Ends the edit under
    // way and changes nothing else. For a host, which calls it by name.
    Q_INVOKABLE QString DocumentText();
    // Ends the edit under way, as leaving its editor does; the focus stays. First thing of a
    // request, so that what is packaged is what the widgets show afterwards.
    void FinishEdit();
    // What the user has set, without results. An edit under way counts as far as it is typed.
    SMemberSettings Settings();
    // Enters settings into the editors that are on, so that what depends on them follows. What was not
    // taken, in words, a line each. The page may be gone when it returns.
    QStringList TakeSettings(const QJsonObject &groups);
    // Makes a change of cells as the user's entries, one after the other. name: of the command that
    // makes it, such as "Paste". Cells that are not there any more are left out. Ends the edit under
    // way first.
    void ChangeCells(const QString &name, const CellChanges &changes) override;
    // Says why a command changed nothing: in the status line, and in a box that comes with the next
    // turn of the event loop.
    void ShowRefusal(const QString &command, const QString &reason) override;
    void ShowStatus(const QString &text) override { emit Signal_UpdateStatus(text); }
    // In the page's box, and Warn in its status line first. The page may be gone when they return.
    void ShowBox(int kind, const QString &title, const QString &text, const QString &detail = {});
    void Warn(const QString &status, const QString &text);
    QWidget *Widget() override { return this; }
    // Why the members have changed.
    CChangeRecorder &Changes() { return m_changes; }
    // As of now, without what the widgets hold; empty while the page has none.
    const QJsonObject &DataModel() const { return m_dataModel; }
    // The actions on a member that its context menu shows; they are asked for each time.
    void SetMemberActions(MemberActions actions) { m_memberActions = std::move(actions); }

signals:
    // Text for the status bar. timeout: Prescribed; see docs/decisions/0036-prescribed-surface.md
    void Signal_UpdateStatus(QString msg, int timeout = 0);
    void Signal_InitDone();                 // goes out on every path
    void Signal_PluginIsBusy(bool isBusy);  // a target operation begins or ends

public slots:
    // A publisher's change; the sender is the publisher.
    void Slot_ValueChange(QString currentText);
    void Slot_EnableStatusChange(QString currentText);
    void Slot_CheckBoxValueChange(int state);
    void Slot_CheckBoxEnableStatusChange(int state);
    void Slot_GetDataModelDone(std::string dataModelStr);
    // Stops a running test; empty on a page without one.
    virtual void Slot_TriggerStopTest() = 0;
    // The sender is the editor.
    void Slot_RangeCheck();
    void Slot_PointRangeCheck();

protected:
    // The document of an answer that came with this text. A page whose view controller has it as an
    // object already takes that.
    virtual QJsonObject DocumentOf(const std::string &text);
    // Settings come into this editor next, without an event that a user's entry begins with.
    virtual void BeforeEntry(QWidget *) {}

    bool event(QEvent *event) override;
    void showEvent(QShowEvent *event) override;
    // When the widget with the focus is turned off, nothing has the focus: a button that got it
    // would be pressed by the next Space.
    bool focusNextPrevChild(bool next) override;

    // The walks, for a page's own actions. Package ends the edit under way first; the text is
    // printed for the one who asks for it.
    std::string PackageMemberValue();
    QJsonObject PackageDocument();
    void UpdateWidget(QJsonObject update);
    void AppendWidget(QJsonObject update);

    // For a request that cannot do without what is chosen, before it begins. False when a combo box
    // of the document's request has no current item, is visible, and is not turned off by relevance;
    // the first of them was named in the status line and in a box then. The page may be gone.
    bool HasAllChoices();
    // Begins a request: ends the edit under way, remembers what has the focus, has turnOff bring
    // buttons and inputs to what they are during the request, and says busy. A progress bar comes
    // when the answer takes long. False when a listener has taken the page out of its window by
    // that, as a host does that resets: nothing may be asked of the target any more, and others say
    // the end of busy. Requests may overlap, if what they turn off does not.
    bool BeginRequest(const std::function<void()> &turnOff);
    // Ends it: turnOn brings buttons and inputs back, the focus goes back, and the page says that it
    // is idle. False as above.
    bool EndRequest(const std::function<void()> &turnOn);
    // Between the two; over when turnOn is called.
    bool HasRequest() const { return m_requests > 0; }
    // The signal alone, of both.
    bool BeginBusy();
    bool EndBusy();
    CStatusProgress &Progress() { return m_progress; }

    // Opens the result box; the page may be gone when it returns.
    void ShowItemResult(const QString &title, const SEachItemOperationResult &result);
    // Shows and drops the document's record of failed patches, and adopts the document if it is
    // good. The page may be gone when it returns, unless boxes wait.
    void CheckDateModelIntegrity(QJsonObject update);
    int GetGroupType(const QString &memberPath);
    QString AbsoluteModelPath(const QString &relativePath) const;
    // The bound widgets; empty until the page is first shown.
    const CWidgetIndex &Index() const { return m_index; }
    const CEditSession &Edits() const { return m_edits; }
    // The document as PackageDocument gives it; the edit under way goes on, and the page's own document
    // stays as it is.
    QJsonObject PackagedCopy();

    bool m_initStarted = false;
    bool m_boxesWait = false;   // in a slot on an editor's own change
    bool m_modelReady = false;  // the document is in place and no Update is under way
    QJsonObject m_dataModel;
    QWidget *m_rootWidget = nullptr;  // null until the page is first shown
    int m_modelInterface = eInterfaceCmdIf;
    QFuture<void> m_future;  // Prescribed; see docs/decisions/0036-prescribed-surface.md
    CMessageBoxMan m_messageBox;

private:
    void StartInit();
    void InitWidget();
    static void SetGroupBoxFonts(const QList<QWidget *> &widgets);
    QList<QWidget *> AllWidgets() const;
    SBinding BindingOf(QJsonObject &document, const QJsonObject &update);
    void Publish(ERelevance kind, const QString &currentText);
    void Package();
    void ShowErrorBox(const QString &text);
    bool OpenContextMenu(QWidget *widget, const QPoint &globalPos);
    bool OpenContextMenuByKey();

    // AutoBindingDataModelDockWidgetRequests.cpp
    bool SayBusy(bool isBusy);
    QString FirstEmptyChoice() const;
    QString SettingsSection() const;  // "request" or "config"
    QWidget *FocusWidget() const;
    void GiveFocusBack();
    void KeepFocusFromWandering();

    CStatusProgress m_progress{this};
    int m_requests = 0;         // under way
    QPointer<QWidget> m_focus;  // what had the focus when the last request began
    bool m_hasAsked = false;    // a request has begun

    CWidgetIndex m_index;  // built when the page is first shown
    CEditSession m_edits;
    CChangeRecorder m_changes{m_edits};
    CRelevance m_relevance{m_dataModel, m_modelInterface, m_index, &m_changes};
    MemberActions m_memberActions;
    CWheelGuard m_wheel;
    int m_packageCount = 0;
};
