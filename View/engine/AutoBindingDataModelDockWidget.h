// The binding engine: base class of every page.
//
// A page is a form of plain Qt widgets and a JSON document, its data model. The engine ties the two
// together by objectName alone and moves values in four directions:
//     Init     fills the widgets from the document, once, when the page is first shown
//     Update   shows a result document in the widgets of its response or data section, and adopts
//     it Append   adds rows to result tables Package  writes what the widgets hold into the
//     document's memberValue objects
// Between them, relevance follows the document's publish lists as the user edits.
//
// Name to path. "cmdIf_request_group1_memberProperty_band" is the path
// "cmdIf.request.group1.memberProperty.band" of the document; with "_caption" behind it, the widget
// names the member. A widget whose name holds neither "cmdIf_" nor "calDataIf_" is left alone.
//
// Order. A walk visits all widgets below the root depth-first, children in creation order; its
// result does not depend on that order, since Init takes choices from the document's defaults,
// never from another widget. No relevance runs during Init.
//
// Binding. The group's groupType decides first: 1 a scalar member in a widget of its own, 2 a row
// table of results (QTableWidget named after a member of the group), 3 a column table of arrays
// (the same). Then the member's dataType and the exact class of the widget must fit, as DataTypes.h
// lists:
//     list QComboBox, range QSpinBox, pointRange QDoubleSpinBox, label QLabel, boolean QCheckBox;
//     in column tables also unsignedRange CUnsignedSpinBox.
//
// Relevance. A change publishes to the members in publishValueList (new choices, limits, value) and
// publishEnableStatusList (enabled or not). It runs at once and depth-first through Qt's own
// signals: a list that gets new items publishes in turn, before the publisher's next target. Hidden
// and disabled publishers publish no values; hidden targets are left as they are.
//
// Errors. Every failure of binding is a critical line of "quorlin.engine"; the widget stays as it
// was and the walk goes on. The user sees the integrity box of a bad document and ShowItemResult
// alone.
//
// Threads. GUI thread. Documents arrive as text through queued signals. A box shown here runs an
// event loop in which the page may be destroyed: nothing touches the page after that. A page's own
// slot on an editor's change must not open one, since a walk or a chain may be under way, and Qt's
// own code of the editor: it sets m_boxesWait, and the box comes with the next turn of the loop.
//
// Requests. What a button asks of the target begins with BeginRequest and ends with EndRequest. In
// between, and after it, the focus is where it was or on nothing, whatever is turned off.
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
//       m_viewCtrl->ContRxTest(PackageMemberValue());
//   // its answer:
//   EndRequest([this] { EnableTestControls(); });
#pragma once

#include <functional>
#include <string>
#include <vector>

#include <QDockWidget>
#include <QFuture>
#include <QJsonArray>
#include <QJsonObject>
#include <QPointer>
#include <QTableWidget>

#include "Model/OperationResult.h"
#include "Support/MessageBoxMan.h"
#include "View/editors/EditSession.h"
#include "View/editors/WheelGuard.h"
#include "View/engine/StatusProgress.h"

class CWidgetIndex;
struct SEntryWords;
struct SRelevanceWords;
struct SScalarTargetWords;
struct STableGroup;
struct STableRow;
struct STableTargetWords;
struct SWalkWords;

enum EModelInterface
{
    eInterfaceCmdIf = 0,      // test pages
    eInterfaceCalDataIf = 1,  // calibration pages
};

class CAutoBindingDataModelDockWidget : public QDockWidget
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
    // Start on, Stop off; a running test's buttons stay as they are.
    virtual void EnableTestControls() = 0;
    // Every test on the DUT was stopped by the tool: the page shows itself idle (buttons, inputs,
    // timers, remembered stops), without a status line. A page that starts none has nothing to
    // show.
    virtual void ShowTestStopped() {}

signals:
    void Signal_UpdateStatus(QString msg, int timeout = 0);  // text for the status bar
    void Signal_InitDone();                                  // goes out on every path
    void Signal_PluginIsBusy(bool isBusy);                   // a target operation begins or ends

public slots:
    void Slot_ValueChange(QString currentText);
    void Slot_EnableStatusChange(QString currentText);
    void Slot_CheckBoxValueChange(int state);
    void Slot_CheckBoxEnableStatusChange(int state);
    void Slot_GetDataModelDone(std::string dataModelStr);
    // Stops a running test; empty on a page without one.
    virtual void Slot_TriggerStopTest() = 0;
    void Slot_RangeCheck();
    void Slot_PointRangeCheck();

protected:
    bool event(QEvent *event) override;
    void showEvent(QShowEvent *event) override;
    // When the widget with the focus is turned off, nothing has the focus: a button that got it
    // would be pressed by the next Space.
    bool focusNextPrevChild(bool next) override;

    // The walks, for a page's own actions.
    std::string PackageMemberValue();  // ends the edit under way first
    void UpdateWidget(QJsonObject update);
    void AppendWidget(QJsonObject update);
    // Ends the edit under way, as leaving its editor does; the focus stays. First thing of a
    // request, so that what is packaged is what the widgets show afterwards.
    void FinishEdit();
    // How every request of a page begins and ends. BeginRequest ends the edit under way, remembers
    // what has the focus, has turnOff bring the buttons and inputs to what they are during the
    // request, and says busy; a progress bar comes when the answer takes long. False when a
    // listener has taken the page out of its window by that, as a host does that resets: nothing
    // may be asked of the target any more, and the end of busy is said by others. EndRequest has
    // turnOn bring them back, gives the focus back, and says that the page is idle; false as above.
    // Requests may overlap, if what they turn off does not.
    // A request that cannot do without what is chosen asks HasAllChoices first: false when a combo
    // box of the document's request that is visible and not turned off by relevance has no current
    // item; the first of them was named in the status line and a box then. The page may be gone.
    bool HasAllChoices();
    bool BeginRequest(const std::function<void()> &turnOff);
    bool EndRequest(const std::function<void()> &turnOn);
    // As these, of what does not reach the target: the page does not say busy.
    bool BeginQuietRequest(const std::function<void()> &turnOff);
    void EndQuietRequest(const std::function<void()> &turnOn);
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

    // groupType 1
    void InitScalarMember(const QString &path, QWidget *widget);
    void UpdateScalarMember(const QString &path, QWidget *widget, QJsonObject update);
    void PackageScalarMember(const QString &path, QWidget *widget);
    QJsonValue ResolveInitEntry(const QJsonValue &member, const QJsonValue &trait);
    QString BuildInitKey(const QJsonArray &subscribeValueList);

    // groupType 2
    void InitRowTable(const QString &path, QWidget *widget);
    void UpdateRowTable(const QString &path, QWidget *widget, QJsonObject update);
    void AppendRowTable(const QString &path, QWidget *widget, QJsonObject update);
    // Headers and all cells; the wide form counts the first 15 columns and leaves room for the
    // horizontal scroll bar. Pixels.
    static QSize FitTableSize(QTableWidget *table);
    static QSize FitWideTableSize(QTableWidget *table);

    // groupType 3
    void InitColumnTable(const QString &path, QWidget *widget);
    void UpdateColumnTable(const QString &path, QWidget *widget, QJsonObject update);
    void PackageColumnTable(const QString &path, QWidget *widget);

    // Relevance: target is an absolute path, key the publishers' current texts.
    void ApplyScalarValueRelevance(const QString &target, const QString &key);
    void ApplyTableValueRelevance(const QString &target, const QString &key);
    void ApplyScalarStatusRelevance(const QString &target, const QString &key);
    void ApplyTableStatusRelevance(const QString &target, const QString &key);
    QString BuildLiveKey(const QJsonArray &list);

    bool m_initStarted = false;
    bool m_boxesWait = false;   // in a slot on an editor's own change
    bool m_modelReady = false;  // the document is in place and no Update is under way
    QJsonObject m_dataModel;
    QWidget *m_rootWidget = nullptr;  // null until the page is first shown
    int m_modelInterface = eInterfaceCmdIf;
    QFuture<void> m_future;  // not used by the engine
    CMessageBoxMan m_messageBox;

private:
    // Holds one index of the widgets for the length of the outermost walk or relevance chain.
    class CIndexScope
    {
    public:
        explicit CIndexScope(CAutoBindingDataModelDockWidget *page);
        ~CIndexScope();
        CIndexScope(const CIndexScope &) = delete;
        CIndexScope &operator=(const CIndexScope &) = delete;
        const CWidgetIndex *operator->() const;

    private:
        CAutoBindingDataModelDockWidget *m_page;
        bool m_isOutermost;
    };

    bool SayBusy(bool isBusy);
    QString FirstEmptyChoice();
    QWidget *FocusWidget() const;
    void GiveFocusBack();
    void KeepFocusFromWandering();
    void StartInit();
    void ShowErrorBox(const QString &text);
    void InitWidget();
    void InitCaption(const QString &path, QWidget *widget, const QString &caption);
    QList<QWidget *> AllWidgets() const;
    static void SetGroupBoxFonts(const QList<QWidget *> &widgets);
    template <typename Filter, typename Visit>
    void WalkMembers(const SWalkWords &words, QJsonObject &source, Filter filter, Visit visit);
    bool StoreMemberValue(const QString &path, const QJsonValue &value);
    void ShowHeaders();
    void SizeTables();
    void InitColumnTableRow(QTableWidget *table, int row, const STableGroup &group);

    void Publish(const SRelevanceWords &words, const QString &currentText);
    void PublishTo(const SRelevanceWords &words, const QString &target, const QString &currentText);
    QWidget *FindScalarTarget(const SScalarTargetWords &words, const QString &target);
    STableRow FindTableTarget(const STableTargetWords &words, const QString &target);
    QJsonValue FindEntry(const SEntryWords &words, const QString &target, const QString &key);

    static const SRelevanceWords kValueWords;
    static const SRelevanceWords kStatusWords;

    CStatusProgress m_progress{this};
    int m_requests = 0;         // under way
    QPointer<QWidget> m_focus;  // what had the focus when the last request began
    bool m_hasAsked = false;    // a request has begun

    const CWidgetIndex *m_index = nullptr;         // of the walk under way
    std::vector<std::function<void()>> m_sizings;  // of the tables that Init has filled
    CEditSession m_edits;
    CWheelGuard m_wheel;
    int m_packageCount = 0;
    int m_relevanceDepth = 0;  // publishers on the stack
    int m_relevanceCount = 0;  // publications since the outermost one began
};
