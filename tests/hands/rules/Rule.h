// Something that holds whatever the user does.
//
// Before is called in front of each deed and After behind it, with the tool idle or held in the
// middle of a request (CDesk::IsQuiet tells); OnBusy and OnStatus come from within. After answers
// what is wrong, empty when nothing is.
#pragma once

#include <QDockWidget>
#include <QPointer>
#include <QString>

// One thing that the user did.
struct SDeed
{
    enum EKind
    {
        Other,
        Keys,      // typed into what has the focus, which may move on
        Shortcut,  // a mnemonic
        Wheel,     // over target
    };
    EKind kind = Other;
    QString words;  // for the report
    QPointer<QWidget> target = {};
    QString failure = {};  // it could not be done
    bool isDone = true;    // false: there was nothing to do it to
};

class IRule
{
public:
    virtual ~IRule() = default;
    virtual const char *Name() const = 0;
    // kind: of the deed that comes.
    virtual void Before(SDeed::EKind) {}
    virtual void OnBusy(QDockWidget *, bool) {}
    virtual void OnStatus(QDockWidget *, const QString &) {}
    virtual QString After(const SDeed &deed) = 0;
};
