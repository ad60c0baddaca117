#include "View/engine/RowCopy.h"

#include <algorithm>
#include <utility>

#include <QAbstractItemModel>
#include <QClipboard>
#include <QElapsedTimer>
#include <QGuiApplication>

#include "View/engine/ClipboardText.h"

namespace {

constexpr int kSliceMs = 5;               // of an event; it may hold up others for so long
constexpr size_t kRowsBetweenLooks = 16;  // at the clock

}  // namespace

CRowCopy::CRowCopy(QObject *parent) : QObject(parent)
{
    m_timer.setInterval(0);
    connect(&m_timer, &QTimer::timeout, this, &CRowCopy::Go);
}

void CRowCopy::Start(SRowCopy what, const QAbstractItemModel *model,
                     const std::function<void(bool)> &done)
{
    if (IsUnderWay())
        End(false);
    m_what = std::move(what);
    m_done = done;
    m_next = 0;
    m_text = m_what.header.isEmpty() ? QString() : TextOfCells({m_what.header});
    const auto fail = [this] { End(false); };
    m_watches = {
        connect(model, &QAbstractItemModel::modelAboutToBeReset, this, fail),
        connect(model, &QAbstractItemModel::rowsAboutToBeRemoved, this, fail),
        connect(model, &QAbstractItemModel::layoutAboutToBeChanged, this, fail),
        connect(model, &QObject::destroyed, this, fail),
    };
    Go();
}

void CRowCopy::Go()
{
    QElapsedTimer clock;
    clock.start();
    while (m_next < m_what.rows.size()) {
        const size_t end = std::min<size_t>(m_next + kRowsBetweenLooks, m_what.rows.size());
        for (; m_next < end; ++m_next)
            m_text += TextOfCells({m_what.line(m_what.rows[m_next])});
        if (clock.elapsed() >= kSliceMs && m_next < m_what.rows.size()) {
            m_timer.start();
            return;
        }
    }
    QGuiApplication::clipboard()->setText(m_text);
    End(true);
}

void CRowCopy::End(bool isDone)
{
    m_timer.stop();
    for (const QMetaObject::Connection &watch : std::exchange(m_watches, {}))
        disconnect(watch);
    m_what = {};
    m_text.clear();
    if (const auto done = std::exchange(m_done, nullptr))
        done(isDone);
}
