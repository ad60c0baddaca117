// A page of the tool, worked as a person works it.
//
// Whatever sets or presses brings the page to the front first, as a click on its tab does, which stops
// a test that runs on another page; then it waits until the tool is idle. Reading changes nothing.
//
// Names. A member is "request.group1.band", "group1.band" or "band"; the short ones have to fit one member
// alone. For Set, a name without section means the editors of request, config and data; for FindOutput
// the members of the response, then of data, then the columns of the result table that is shown, by caption
// or key. A cell has its column behind it, from 0: "request.group2.dlFrequency[0]". Names and values are
// compared without the blanks around them.
//
// Set works the editor: a list takes the choice of that text, a check box true or false, a number what could be
// typed (decimal point, the box's own radix), or min, mid or max of its limits now. What depends on the
// member follows at once. Refused: an unknown name, one that fits several, a member that is off or
// hidden, a label, a text that the editor does not take as it is. A refused value leaves the old one.
//
// The page object lives as long as its bench. GUI thread.
//
//   page->Set("dlFrequency[0]", "3500010");
//   const SPressEnd end = page->Press("Calculate", kBenchWait);
//   if (end.how != EPressEnd::Idle) ...
//   const QStringList powers = page->FindOutput("rssiMain[0]").values;
#pragma once

#include <chrono>
#include <memory>
#include <optional>

#include <QDockWidget>
#include <QPointer>

#include "Runner/bench/BenchTool.h"

class CPageLayout;
class QAbstractButton;
struct SLayoutMember;

enum class EPressEnd
{
    Idle,         // pressed, and the tool is idle again
    Refused,      // there is no such button, or it is off; nothing was pressed
    Late,         // pressed, and still busy when the bound passed
    Interrupted,  // pressed; CBench::Interrupt ended the wait
    Gone,         // pressed, and the tool is gone
};

struct SPressEnd
{
    EPressEnd how = EPressEnd::Idle;
    SRefusal refusal = {};  // of Refused
    bool wasBusy = false;   // the tool said busy
    QString status = {};    // the status line at the end
    QVector<SBenchBox> boxes = {};
    std::chrono::microseconds duration{0};
};

// What a name of an expectation stands for.
struct SBenchOutput
{
    bool isFound = false;
    SRefusal refusal = {};  // when it is not found
    QString name = {};      // "response.group1.pdValue", or "response.group1.BLER" of a column
    QString caption = {};
    QString unit = {};
    bool isColumn = false;  // values are the rows of a result table, oldest first
    QStringList values = {};
};

class CBenchPage
{
public:
    CBenchPage(CBenchTool &bench, QDockWidget *page);
    ~CBenchPage();

    QString Title() const;
    QString ClassName() const;

    // On top of the window, and worked on.
    bool IsInFront() const;

    QVector<SBenchButton> Buttons() const;
    // The button that Press would press; Refused when there is none, or several.
    std::optional<SRefusal> FindButton(const QString &name, SBenchButton &button) const;
    QVector<SBenchMember> Members() const;
    QVector<SBenchTable> Tables() const;
    // Rows of the result table that is shown; 0 without one.
    int Rows() const;
    // The document as packaged now, as JSON text; empty for a page that has none.
    QString DocumentText() const;

    // The member that Set would work, as it is now; the column of a name with brackets, or -1.
    std::optional<SRefusal> FindInput(const QString &name, SBenchMember &member, int &column) const;
    SBenchOutput FindOutput(const QString &name) const;

    // Brings it to the front; a refusal when it does not come.
    std::optional<SRefusal> Raise();
    // Nothing when the value was taken.
    std::optional<SRefusal> Set(const QString &name, const QString &value);
    // By text or object name; the text may lack a unit that it has at its end.
    SPressEnd Press(const QString &button, std::chrono::milliseconds bound);

private:
    const CPageLayout &Layout() const;
    QAbstractButton *ButtonOf(const QString &name, SRefusal &refusal) const;
    const SLayoutMember *InputOf(const QString &name, int &column, SRefusal &refusal) const;
    std::optional<SRefusal> RefuseOff(const SBenchMember &member, const QWidget *editor) const;
    void ShowTab(const QWidget *widget);

    CBenchTool &m_bench;
    const QPointer<QDockWidget> m_page;
    mutable std::unique_ptr<CPageLayout> m_layout;  // read when it is first asked for
};
