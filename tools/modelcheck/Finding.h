// What modelcheck reports.
//
// A finding says where a page breaks the format: the file, the place in it (a dotted path of the
// document, an object name of the form), the kind, and the words. Kinds are what the allow list
// names; each has one row in kKinds. Some kinds are no errors to the engine but mostly slips,
// such as a list's default that is not among its items: they are reported like the others,
// and a page that means it says so in the allow list. Values only, any thread.
//
//   SReport report{"NrContRxV7.json", findings};
//   report.Add(EKind::UnknownKey, "cmdIf.request.group1.colour", "unknown key");
//   FindingLine(findings.front());
//       // NrContRxV7.json: cmdIf.request.group1.colour: unknown key [unknown-key]
#pragma once

#include <vector>

#include <QString>

enum class EKind
{
    Parse,
    Root,
    Interface,
    UnknownKey,
    RunTimeKey,
    MissingKey,
    WrongType,
    GroupType,
    DataType,
    TypeInGroup,
    ListWithoutMember,
    MemberNotListed,
    DuplicateEntry,
    KeyLetters,
    KeyCaption,
    KeyPoint,
    PathNamesNothing,
    PublishNotSubscribed,
    SubscribeNotPublished,
    StatusTargetWithoutPair,
    StatusPairUnpublished,
    StatusSubscribeNotPublished,
    CannotPublish,
    CannotFollow,
    TwoSubscriptions,
    SubscribeWithoutPair,
    PairWithoutSubscribe,
    ValueAndPair,
    Cycle,
    DefaultNumber,
    DefaultZero,
    DefaultNoNumber,
    DefaultNoArray,
    DefaultNotInList,
    DefaultOutsideLimits,
    LimitsReversed,
    RangeList,
    ColumnCaptions,
    MemberWithoutWidget,
    WidgetWithoutMember,
    WidgetClass,
    WidgetDuplicate,
    TableMissing,
    TableDuplicate,
    CaptionNamesNothing,
    CaptionClass,
    StaleAllow,
    Count
};

struct SKind
{
    EKind kind;
    const char *name;        // in reports and in the allow list
    const char *meaning;     // for --help
    bool needsForm = false;  // found only where there is a form to look at
};

// In the order of EKind.
const SKind &KindRow(EKind kind);
// The row of that name; null when there is none.
const SKind *FindKind(const QString &name);

struct SFinding
{
    QString file;
    QString path;
    EKind kind;
    QString text;
};

using TFindings = std::vector<SFinding>;

// "file: path: text [kind]".
QString FindingLine(const SFinding &finding);

// Where the checks of one file put what they find.
struct SReport
{
    QString file;
    TFindings &findings;

    void Add(EKind kind, const QString &path, const QString &text) const
    {
        findings.push_back({file, path, kind, text});
    }
};
