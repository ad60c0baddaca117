// Relevance: what a change of one member, the publisher, does to its subscribers.
//
// Value relevance gives a subscriber new choices, limits and a value; status relevance enables or
// disables it. A change goes to the targets in the publisher's publish list, in list order. A
// target's key is the changed text, or the current texts of all its publishers, joined by ",", if
// it has a subscribe list. Under that key the target's trait has the entry that applies.
//
// Order. The chain runs depth-first through Qt's direct signals: a list that gets new items
// publishes in turn, before the next target of its publisher. So a key may be missing for a moment;
// the target then keeps what it shows, and gets its entry when the last of its publishers has
// changed. Documents are free of loops; the chain of one that is not ends at a bound, with a line on
// the critical log.
//
// Gate. An empty text publishes nothing: it comes from a combo box that is being cleared. A
// publisher that is not visible publishes nothing. A disabled one publishes its status alone.
//
// Works on the document, the interface of its paths, and the index of the widgets; it writes
// widgets, never the document. GUI thread.
//
//   CRelevance relevance(document, interface, index);
//   if (relevance.Takes(ERelevance::Value, band, "n78"))
//       relevance.Publish(ERelevance::Value, band, "n78");
#pragma once

#include <QJsonArray>
#include <QJsonObject>
#include <QString>

class CChangeRecorder;
class CWidgetIndex;
class QWidget;
struct SRelevanceRule;

enum class ERelevance
{
    Value,
    Status,
};

class CRelevance
{
public:
    // modelInterface: one of EModelInterface. All of them may change; they must outlive this object.
    // changes: records what the targets do; null for nobody.
    CRelevance(const QJsonObject &document, const int &modelInterface, const CWidgetIndex &index,
               CChangeRecorder *changes = nullptr);

    // Does this change pass the gate?
    static bool Takes(ERelevance kind, const QWidget *publisher, const QString &currentText);
    // Passes a change that was taken on to its subscribers.
    void Publish(ERelevance kind, const QWidget *publisher, const QString &currentText);
    // In the midst of a chain.
    bool IsUnderWay() const { return m_depth > 0; }

    // The key of several publishers: their current texts, joined by ",". One without a widget, or
    // of a type that has no text, gives no part, and no comma.
    QString BuildLiveKey(const QJsonArray &list) const;

private:
    bool IsLoop(const QWidget *publisher);
    void PublishTo(const SRelevanceRule &rule, const QString &target, const QString &publisher,
                   const QString &currentText);
    QString AbsolutePath(const QString &relativePath) const;

    const QJsonObject &m_document;
    const int &m_modelInterface;
    const CWidgetIndex &m_index;
    CChangeRecorder *const m_changes;
    int m_depth = 0;  // publishers on the stack
    int m_count = 0;  // publications since the outermost one began
};
