// What a screen reader says of an editor or a result beside its name and its value: the accessible
// description, put together from parts that different places know.
//
//   place     of a result, whose name is its value: the caption, or row and column; its unit
//   limits    from the tool tip, "1~5,8" as "1 to 5, 8", with the unit behind them
//   state     what is else told by a colour: "changed, was 0.93750"
//
// The limits follow the tool tip of an editor that CSpokenLimits follows. GUI thread.
//
//   SetSpokenUnit(editor, "dB");
//   limits->Follow(editor);
//   SetSpokenState(editor, "changed, was 0.93750");
//   editor->accessibleDescription();   // "-5 to 20 dB, changed, was 0.93750"
#pragma once

#include <QObject>
#include <QString>

class QWidget;

// With its unit; a result is a label and has no limits.
void SetSpokenPlace(QWidget *result, const QString &place);
void SetSpokenUnit(QWidget *widget, const QString &unit);
// Empty: none.
void SetSpokenState(QWidget *widget, const QString &state);
// Puts the description together anew.
void UpdateSpokenText(QWidget *widget);

// Lives as long as the page or the table whose editors it follows.
class CSpokenLimits : public QObject
{
    Q_OBJECT

public:
    explicit CSpokenLimits(QObject *parent = nullptr) : QObject(parent) {}

    // Of a page, made when it is first asked for.
    static CSpokenLimits *Of(QObject *page);

    void Follow(QWidget *editor);
    bool eventFilter(QObject *object, QEvent *event) override;
};
