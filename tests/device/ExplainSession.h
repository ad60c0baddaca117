// The window "Explain changes" of a session's page: opened by its key, read from its table.
//
//   CExplainHands explain(session);
//   QVERIFY(explain.Open());
//   QCOMPARE(explain.Newest("request.group1.band").because, QString("The user"));
#pragma once

#include <algorithm>
#include <vector>

#include <QComboBox>
#include <QHeaderView>
#include <QTableView>
#include <QtTest>

#include "tests/common/PluginSession.h"
#include "tests/common/WaitUntil.h"

struct SExplained
{
    QString time;
    QString member;
    QString from;
    QString to;
    QString because;
};

class CExplainHands
{
public:
    explicit CExplainHands(CPluginSession &session) : m_session(session) {}

    QWidget *Window() const
    {
        return m_session.Page()->findChild<QWidget *>("CExplainWindow", Qt::FindDirectChildrenOnly);
    }
    QTableView *Table() const { return Window()->findChild<QTableView *>("m_changes"); }
    QComboBox *Members() const { return Window()->findChild<QComboBox *>("m_member"); }

    bool Open() const
    {
        QApplication::setActiveWindow(m_session.Window());
        QTest::keyClick(m_session.Window(), Qt::Key_X, Qt::ControlModifier | Qt::ShiftModifier);
        return Window() && WaitUntil([this] { return Table()->hasFocus(); });
    }
    // As the window shows them: newest first.
    std::vector<SExplained> Rows() const
    {
        std::vector<SExplained> rows;
        const QAbstractItemModel *model = Table()->model();
        const auto text = [model](int row, int column) {
            return model->index(row, column).data().toString();
        };
        for (int row = 0; row < model->rowCount(); ++row)
            rows.push_back({text(row, 0), text(row, 1), text(row, 2), text(row, 3), text(row, 4)});
        return rows;
    }
    // Those of a member, by its key.
    std::vector<SExplained> Of(const QString &key) const
    {
        std::vector<SExplained> rows = Rows();
        rows.erase(std::remove_if(rows.begin(), rows.end(),
                                  [&key](const SExplained &row) {
                                      return !row.member.endsWith('(' + key + ')');
                                  }),
                   rows.end());
        return rows;
    }
    // Nothing when there is none.
    SExplained Newest(const QString &key) const
    {
        const std::vector<SExplained> rows = Of(key);
        return rows.empty() ? SExplained{} : rows.front();
    }
    // Waits until the newest change of a member is to this text.
    bool Comes(const QString &key, const QString &to) const
    {
        const bool isSo = WaitUntil([&] { return Newest(key).to == to; }, 5000);
        if (!isSo)
            qWarning() << key << Newest(key).from << Newest(key).to << Newest(key).because;
        return isSo;
    }

private:
    CPluginSession &m_session;
};
