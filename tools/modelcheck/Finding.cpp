#include "tools/modelcheck/Finding.h"

#include <cstddef>

namespace {

constexpr SKind kKinds[] = {
    {EKind::Parse, "parse", "the text does not parse"},
    {EKind::Root, "root", "the document is no JSON object"},
    {EKind::Interface, "interface", "neither or both of cmdIf and calDataIf"},
    {EKind::UnknownKey, "unknown-key", "a key that the format does not have there"},
    {EKind::RunTimeKey, "runtime-key", "a key that is only made at run time"},
    {EKind::MissingKey, "missing-key", "a key that the format wants there"},
    {EKind::WrongType, "wrong-type", "a value of another form than the key wants"},
    {EKind::GroupType, "group-type", "a groupType other than 1, 2 and 3"},
    {EKind::DataType, "data-type", "an unknown dataType"},
    {EKind::TypeInGroup, "type-in-group", "a dataType that the groupType cannot show"},
    {EKind::ListWithoutMember, "list-without-member", "a memberList entry without its object"},
    {EKind::MemberNotListed, "member-not-listed", "a member that memberList does not name"},
    {EKind::DuplicateEntry, "duplicate-entry", "the same text twice in a list of names"},
    {EKind::KeyLetters, "key-letters", "a group or member key with \"_\" or \".\""},
    {EKind::KeyCaption, "key-caption", "a member key that holds the word caption"},
    {EKind::KeyPoint, "key-point", "a key of valuePair or enableStatusPair with a point"},
    {EKind::PathNamesNothing, "path-names-nothing", "a relation to a member that does not exist"},
    {EKind::PublishNotSubscribed, "publish-not-subscribed",
     "a publisher whose target does not subscribe to it"},
    {EKind::SubscribeNotPublished, "subscribe-not-published",
     "a subscriber whose publisher does not publish to it"},
    {EKind::StatusTargetWithoutPair, "status-target-without-pair",
     "a target of publishEnableStatusList without enableStatusPair"},
    {EKind::StatusPairUnpublished, "status-pair-unpublished",
     "an enableStatusPair whose member no one publishes enable status to"},
    {EKind::StatusSubscribeNotPublished, "status-subscribe-not-published",
     "a path of subscribeEnableStatusList that does not publish enable status to the member"},
    {EKind::CannotPublish, "cannot-publish", "a publish list on a member that cannot publish"},
    {EKind::CannotFollow, "cannot-follow", "a target that cannot follow a publisher"},
    {EKind::TwoSubscriptions, "two-subscriptions", "both subscribeValue and subscribeValueList"},
    {EKind::SubscribeWithoutPair, "subscribe-without-pair", "a subscriber without valuePair"},
    {EKind::PairWithoutSubscribe, "pair-without-subscribe",
     "a valuePair of a member that subscribes to nothing"},
    {EKind::ValueAndPair, "value-and-pair", "both value and valuePair; a subscriber reads one"},
    {EKind::Cycle, "cycle", "members that publish to themselves in a circle"},
    {EKind::DefaultNumber, "default-number",
     "a default that is a JSON number, read as an empty text"},
    {EKind::DefaultZero, "default-zero", "a default that is the JSON number 0; it works as \"0\""},
    {EKind::DefaultNoNumber, "default-no-number", "a default that is no number, read as 0"},
    {EKind::DefaultNoArray, "default-no-array",
     "a plain text as default in a column table; it reads as an empty array"},
    {EKind::DefaultNotInList, "default-not-in-list",
     "a default that is not among the items; the first item is shown"},
    {EKind::DefaultOutsideLimits, "default-outside-limits",
     "a default outside the limits; their middle is shown"},
    {EKind::LimitsReversed, "limits-reversed", "min above max"},
    {EKind::RangeList, "range-list", "a rangeCheck that is no list of numbers and ranges"},
    {EKind::ColumnCaptions, "column-captions",
     "colFieldCaptionList of another length than dimentionCount"},
    {EKind::MemberWithoutWidget, "member-without-widget", "a member that no widget is named after",
     true},
    {EKind::WidgetWithoutMember, "widget-without-member", "a bound widget that names no member",
     true},
    {EKind::WidgetClass, "widget-class", "a widget of another class than the data type wants",
     true},
    {EKind::WidgetDuplicate, "widget-duplicate", "two widgets of one name", true},
    {EKind::TableMissing, "table-missing", "a table group without its QTableWidget", true},
    {EKind::TableDuplicate, "table-duplicate", "a table group with more than one QTableWidget",
     true},
    {EKind::CaptionNamesNothing, "caption-names-nothing",
     "a caption of a member that does not exist, or misspelt", true},
    {EKind::CaptionClass, "caption-class", "a caption that is neither QLabel nor QGroupBox", true},
    {EKind::StaleAllow, "stale-allow", "a line of the allow list that excuses nothing"},
};

constexpr bool InOrder()
{
    for (std::size_t i = 0; i < std::size(kKinds); ++i) {
        if (kKinds[i].kind != static_cast<EKind>(i))
            return false;
    }
    return true;
}

static_assert(std::size(kKinds) == static_cast<std::size_t>(EKind::Count) && InOrder(),
              "one row a kind, in the order of EKind");

}  // namespace

const SKind &KindRow(EKind kind)
{
    return kKinds[static_cast<std::size_t>(kind)];
}

const SKind *FindKind(const QString &name)
{
    for (const SKind &row : kKinds) {
        if (name == QLatin1String(row.name))
            return &row;
    }
    return nullptr;
}

QString FindingLine(const SFinding &finding)
{
    return QStringLiteral("%1: %2: %3 [%4]")
        .arg(finding.file, finding.path, finding.text, QLatin1String(KindRow(finding.kind).name));
}
