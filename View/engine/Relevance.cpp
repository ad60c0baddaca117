#include "View/engine/Relevance.h"

#include <QWidget>

#include "Model/JsonPath.h"
#include "Model/MemberPath.h"
#include "Support/Log.h"
#include "View/engine/ChangeRecorder.h"
#include "View/engine/DataTypes.h"
#include "View/engine/GroupTypes.h"
#include "View/engine/ModelInterface.h"
#include "View/engine/RelevanceTarget.h"
#include "View/engine/WidgetIndex.h"

// What a kind of relevance does.
struct SRelevanceRule
{
    const char *publishList = nullptr;            // key in the publisher's member
    const char *subscribeList = nullptr;          // key in the target's member
    const char *table = nullptr;                  // of entries in the target's trait
    bool needsEnabledPublisher = false;           // the gate
    ApplyRelevance SGroupType::*apply = nullptr;  // what the target's group type does
    const SRelevanceWords &words;
};

namespace {

constexpr SRelevanceRule kValueRule = {
    .publishList = "publishValueList",
    .subscribeList = "subscribeValueList",
    .table = "valuePair",
    .needsEnabledPublisher = true,
    .apply = &SGroupType::relateValue,
    .words = kValueWords,
};

// Of a member that is switched off by one relation others may hang that must follow.
constexpr SRelevanceRule kStatusRule = {
    .publishList = "publishEnableStatusList",
    .subscribeList = "subscribeEnableStatusList",
    .table = "enableStatusPair",
    .needsEnabledPublisher = false,
    .apply = &SGroupType::relateStatus,
    .words = kStatusWords,
};

const SRelevanceRule &RuleOf(ERelevance kind)
{
    return kind == ERelevance::Value ? kValueRule : kStatusRule;
}

// A loop of lists would never come to rest: a list publishes each time that it gets new items.
constexpr int kMaxDepth = 64;
constexpr int kMaxPublications = 4096;

// Holds a counter up for the life of a scope.
class CCountScope
{
public:
    explicit CCountScope(int &count) : m_count(count) { ++m_count; }
    ~CCountScope() { --m_count; }
    CCountScope(const CCountScope &) = delete;
    CCountScope &operator=(const CCountScope &) = delete;

private:
    int &m_count;
};

}  // namespace

CRelevance::CRelevance(const QJsonObject &document, const int &modelInterface,
                       const CWidgetIndex &index, CChangeRecorder *changes)
    : m_document(document), m_modelInterface(modelInterface), m_index(index), m_changes(changes)
{
}

bool CRelevance::Takes(ERelevance kind, const QWidget *publisher, const QString &currentText)
{
    const SRelevanceRule &rule = RuleOf(kind);
    qCDebug(lcEngine) << rule.words.publish.start << currentText;
    return !currentText.isEmpty() && publisher && publisher->isVisible() &&
           (publisher->isEnabled() || !rule.needsEnabledPublisher);
}

void CRelevance::Publish(ERelevance kind, const QWidget *publisher, const QString &currentText)
{
    if (m_depth == 0)
        m_count = 0;
    if (IsLoop(publisher))
        return;
    ++m_count;
    const CCountScope depth(m_depth);

    const SRelevanceRule &rule = RuleOf(kind);
    const SPublishWords &words = rule.words.publish;
    qCDebug(lcEngine) << words.key << currentText;
    const QString path = PathFromObjectName(publisher->objectName());
    const QJsonArray targets = GetJsonValueConst(m_document, path)
                                   .toObject()
                                   .value(QLatin1String(rule.publishList))
                                   .toArray();
    qCDebug(lcEngine) << words.publishFound << "count: " << targets.size();
    for (const QJsonValue &target : targets)
        PublishTo(rule, AbsolutePath(target.toString()), path, currentText);
    qCDebug(lcEngine) << words.done;
}

// Said once a chain, which ends by it.
bool CRelevance::IsLoop(const QWidget *publisher)
{
    if (m_depth < kMaxDepth && m_count < kMaxPublications)
        return false;
    if (m_count <= kMaxPublications)
        qCCritical(lcEngine) << "publish lists form a loop, the chain ends at"
                             << publisher->objectName();
    m_count = kMaxPublications + 1;
    return true;
}

void CRelevance::PublishTo(const SRelevanceRule &rule, const QString &target,
                           const QString &publisher, const QString &currentText)
{
    const SPublishWords &words = rule.words.publish;
    qCDebug(lcEngine) << words.target << target;
    const int groupType = GroupTypeOf(m_document, target);
    qCDebug(lcEngine) << words.groupType << groupType;
    const QJsonArray subscribed =
        GetJsonValueConst(m_document, target + QLatin1Char('.') + QLatin1String(rule.subscribeList))
            .toArray();
    QString key = currentText;
    if (!subscribed.isEmpty()) {
        key = BuildLiveKey(subscribed);
        qCDebug(lcEngine) << words.subscribeFound;
    }
    qCDebug(lcEngine) << words.targetKey << key;
    const SGroupType *type = FindGroupType(groupType);
    const ApplyRelevance apply = type ? type->*rule.apply : nullptr;
    if (!apply) {
        qCCritical(lcEngine) << words.unsupported;
        return;
    }
    CChangeRecorder *const changes = m_changes && m_changes->IsOn() ? m_changes : nullptr;
    apply({
        .document = m_document,
        .modelInterface = m_modelInterface,
        .index = m_index,
        .path = target,
        .key = key,
        .table = rule.table,
        .words = rule.words,
        .changes = changes,
        .member = changes ? changes->Member(target) : -1,
        .publisher = changes ? changes->Member(publisher) : -1,
    });
}

QString CRelevance::AbsolutePath(const QString &relativePath) const
{
    return AbsoluteModelPath(relativePath, m_modelInterface == eInterfaceCmdIf);
}

QString CRelevance::BuildLiveKey(const QJsonArray &list) const
{
    QString key;
    for (int i = 0; i < list.size(); ++i) {
        const QString path = AbsolutePath(list.at(i).toString());
        qCDebug(lcEngine) << "---> subscribeValue <---" << path;
        const QWidget *widget = m_index.Find(path);
        if (!widget)
            continue;
        const QString name =
            GetJsonValueConst(m_document, path + QLatin1String(".trait.dataType")).toString();
        const SDataType *type = FindScalarType(name, widget);
        if (!type || !type->keyText)
            continue;
        key += type->keyText(widget);
        if (i + 1 < list.size())
            key += QLatin1Char(',');
    }
    return key;
}
