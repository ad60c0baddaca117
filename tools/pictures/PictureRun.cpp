#include "tools/pictures/PictureRun.h"

#include <algorithm>
#include <cstdio>

#include <QAbstractButton>
#include <QAbstractSpinBox>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QDockWidget>
#include <QHash>
#include <QImage>
#include <QKeyEvent>
#include <QLineEdit>
#include <QRegularExpression>
#include <QStatusBar>
#include <QTableWidget>
#include <QTimer>

namespace {

constexpr int kTickMs = 30;
constexpr int kPatienceMs = 30000;
constexpr int kSettleMs = 250;  // behind the step before a picture: paints, and late editors

void SendKey(QWidget *widget, int key, Qt::KeyboardModifiers modifiers, const QString &text)
{
    for (const auto type : {QEvent::KeyPress, QEvent::KeyRelease}) {
        QKeyEvent event(type, key, modifiers, text);
        QApplication::sendEvent(widget, &event);
    }
}

void TypeText(QWidget *widget, const QString &text)
{
    for (const QChar letter : text)
        SendKey(widget, 0, Qt::NoModifier, letter);
}

void PressKeys(QWidget *widget, const QString &keys)
{
    const int combination = QKeySequence(keys)[0];
    SendKey(widget, combination & ~Qt::KeyboardModifierMask,
            Qt::KeyboardModifiers(combination & Qt::KeyboardModifierMask), {});
}

// Behind a closed dialog no window may be active.
QWidget *KeyTarget(const QMainWindow *tool)
{
    QWidget *focus = QApplication::focusWidget();
    return focus ? focus : tool->focusWidget();
}

// Editors of a table are made when somebody looks at it.
void MakeEditors(const QTableWidget *table)
{
    for (QObject *part : table->children()) {
        if (part->inherits("CLateEditors"))
            QMetaObject::invokeMethod(part, "Ensure");
    }
}

// With the 256 colours that it has most of: nobody sees the rest, and the file is a quarter of the size.
QImage InFewColours(const QImage &picture)
{
    const QImage whole = picture.convertToFormat(QImage::Format_RGB32);
    QHash<QRgb, int> counts;
    for (int y = 0; y < whole.height(); ++y) {
        const auto *line = reinterpret_cast<const QRgb *>(whole.constScanLine(y));
        for (int x = 0; x < whole.width(); ++x)
            ++counts[line[x]];
    }
    QVector<QRgb> colours = counts.keys().toVector();
    std::sort(colours.begin(), colours.end(), [&counts](QRgb one, QRgb other) {
        return std::pair(counts[other], one) < std::pair(counts[one], other);
    });
    colours.resize(std::min(colours.size(), 256));
    return whole.convertToFormat(QImage::Format_Indexed8, colours, Qt::ThresholdDither);
}

}  // namespace

CPictureRun::CPictureRun(QVector<SPictureStep> steps, QString folder)
    : m_steps(std::move(steps)), m_folder(std::move(folder))
{
}

void CPictureRun::Start()
{
    for (QWidget *window : QApplication::topLevelWidgets()) {
        if (window->objectName() == "CQuorlinForm")
            m_tool = qobject_cast<QMainWindow *>(window);
    }
    if (!m_tool)
        return End("The plug-in has no window.");
    m_waited.start();
    QTimer::singleShot(kTickMs, this, &CPictureRun::Tick);
}

void CPictureRun::Tick()
{
    if (m_next == m_steps.size())
        return End({});
    const SPictureStep &step = m_steps[m_next];
    if (m_waited.elapsed() > kPatienceMs)
        return End(
            QString("line %1: %2 %3 %4 can't be done; the status line says \"%5\"")
                .arg(step.line)
                .arg(step.verb, step.what, step.text, m_tool->statusBar()->currentMessage()));
    const bool isPicture = step.verb == "picture";
    const bool canDo = (!isPicture || m_waited.elapsed() > kSettleMs) && CanDo(step);
    if (canDo) {
        ++m_next;
        m_waited.restart();
    }
    // First, since the step may wait in a dialog of its own.
    QTimer::singleShot(kTickMs, this, &CPictureRun::Tick);
    if (canDo)
        Do(step);
}

void CPictureRun::End(const QString &failure)
{
    if (!failure.isEmpty())
        std::fprintf(stderr, "%s\n", qPrintable(failure));
    QApplication::exit(failure.isEmpty() ? 0 : 1);
}

bool CPictureRun::IsQuiet() const
{
    return m_tool->isEnabled() && m_tool->statusBar()->currentMessage() != "Init...";
}

bool CPictureRun::CanDo(const SPictureStep &step)
{
    if (step.verb == "page") {
        m_page = m_tool->findChild<QDockWidget *>(step.what);
        return m_page && IsQuiet();
    }
    if (step.verb == "choose") {
        const auto *list = qobject_cast<QComboBox *>(Editor(step.what));
        return list && list->isEnabled() && list->findText(step.text) >= 0;
    }
    if (step.verb == "enter" || step.verb == "focus")
        return Editor(step.what) && Editor(step.what)->isEnabled();
    if (step.verb == "press") {
        const auto *button = qobject_cast<QAbstractButton *>(Named(step.what));
        return button && button->isEnabled() && button->isVisible();
    }
    if (step.verb == "action")
        return Action(step.what) && Action(step.what)->isEnabled();
    if (step.verb == "key" || step.verb == "type")
        return KeyTarget(m_tool);
    if (step.verb == "status")
        return m_tool->statusBar()->currentMessage().startsWith(
            QString(step.what + ' ' + step.text).trimmed());
    if (step.verb == "rows") {
        const auto *table = qobject_cast<QTableWidget *>(Editor(step.what));
        return table && table->rowCount() >= step.text.toInt();
    }
    if (step.verb == "picture")
        return step.text.isEmpty() || Shown(step.text);
    return Shown(step.what);
}

void CPictureRun::Do(const SPictureStep &step)
{
    if (step.verb == "page") {
        m_page->raise();
    } else if (step.verb == "choose") {
        qobject_cast<QComboBox *>(Editor(step.what))->setCurrentText(step.text);
    } else if (step.verb == "enter") {
        QWidget *editor = Editor(step.what);
        editor->setFocus(Qt::TabFocusReason);
        if (auto *box = qobject_cast<QAbstractSpinBox *>(editor))
            box->selectAll();
        TypeText(editor, step.text);
        PressKeys(editor, "Return");
    } else if (step.verb == "focus") {
        Editor(step.what)->setFocus(Qt::TabFocusReason);
    } else if (step.verb == "press") {
        qobject_cast<QAbstractButton *>(Named(step.what))->click();
    } else if (step.verb == "action") {
        Action(step.what)->trigger();
    } else if (step.verb == "key") {
        PressKeys(KeyTarget(m_tool), step.what);
    } else if (step.verb == "type") {
        TypeText(KeyTarget(m_tool), QString(step.what + ' ' + step.text).trimmed());
    } else if (step.verb == "picture") {
        Save(step);
    } else if (step.verb == "close") {
        Shown(step.what)->close();
    }
}

// By the key at the end of its object name; brackets are a cell of a table.
QWidget *CPictureRun::Editor(const QString &member) const
{
    const QString key = member.section('[', 0, 0);
    const QString cell = member.section('[', 1).chopped(member.contains('[') ? 1 : 0);
    const QRegularExpression name("_memberProperty_" + QRegularExpression::escape(key) + '$');
    for (QWidget *editor : m_page ? m_page->findChildren<QWidget *>(name) : QList<QWidget *>()) {
        if (!editor->isVisible())
            continue;
        auto *table = qobject_cast<QTableWidget *>(editor);
        if (!table || cell.isEmpty())
            return editor;
        MakeEditors(table);
        return table->cellWidget(cell.section(',', 0, 0).toInt(), cell.section(',', 1).toInt());
    }
    return nullptr;
}

QWidget *CPictureRun::Named(const QString &name) const
{
    QWidgetList windows = {QApplication::activeModalWidget(), m_page};
    windows += QApplication::topLevelWidgets();
    for (const QWidget *window : windows) {
        QWidget *found = window ? window->findChild<QWidget *>(name) : nullptr;
        if (found && found->isVisible())
            return found;
    }
    return nullptr;
}

QAction *CPictureRun::Action(const QString &name) const
{
    QAction *own = m_page ? m_page->findChild<QAction *>(name) : nullptr;
    return own ? own : m_tool->findChild<QAction *>(name);
}

QWidget *CPictureRun::Shown(const QString &window) const
{
    for (QWidget *shown : QApplication::topLevelWidgets()) {
        const bool isNamed = shown->objectName() == window || shown->inherits(qPrintable(window));
        if (isNamed && shown->isVisible() && !shown->size().isEmpty())
            return shown;
    }
    return nullptr;
}

void CPictureRun::Save(const SPictureStep &step)
{
    QWidget *window = step.text.isEmpty() ? m_tool.data() : Shown(step.text);
    const QImage picture = InFewColours(window->grab().toImage());
    if (m_folder.isEmpty())
        return;
    const QString file = QDir(m_folder).filePath(step.what + ".png");
    if (!picture.save(file, "PNG", 0))
        return End(QString("line %1: can't write %2").arg(step.line).arg(file));
    std::printf("%s\n", qPrintable(file));
}
