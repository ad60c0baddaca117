#include "Support/MessageBoxMan.h"

#include <QApplication>
#include <QGridLayout>
#include <QScreen>
#include <QShowEvent>
#include <QSpacerItem>
#include <QTextDocument>
#include <QTextDocumentFragment>
#include <QWindow>

#include "Support/Log.h"
#include "Support/SessionLog.h"

namespace {

struct SBoxKind
{
    int type;
    QMessageBox::Icon icon;
    QMessageBox::StandardButton button;
    bool wrapped;  // the text is set in the tool's font
    ESessionEvent event;
};

constexpr SBoxKind kBoxKinds[] = {
    {1, QMessageBox::Information, QMessageBox::Ok, true, ESessionEvent::Information},
    {2, QMessageBox::Warning, QMessageBox::Close, true, ESessionEvent::Warning},
    {3, QMessageBox::Warning, QMessageBox::Close, false, ESessionEvent::Warning},
    {4, QMessageBox::Critical, QMessageBox::Close, true, ESessionEvent::Critical},
};
constexpr const SBoxKind &kUnknownKind = kBoxKinds[2];

constexpr char kTextHead[] = "<P><FONT COLOR='#000080'><FONT SIZE='4'>";
constexpr char kTextTail[] = "</FONT></FONT></P>";

constexpr int kNoWidth = -1;

const SBoxKind &FindKind(int type)
{
    for (const SBoxKind &kind : kBoxKinds) {
        if (kind.type == type)
            return kind;
    }
    qCCritical(lcForm) << "unknown message box type" << type;
    return kUnknownKind;
}

}  // namespace

CMessageBoxMan::CMessageBoxMan() : QMessageBox(nullptr) {}

int CMessageBoxMan::Show(int type, const QString &title, const QString &text,
                         const QString &informative, const QString &detail, int width)
{
    if (m_isOpen)
        return ShowSecond(type, title, text, informative, detail, width);

    Log(type, {title, text, informative, detail});
    Fill(type, title, text, informative, detail);
    SetLeastWidth(width);
    AttachToWindow();

    const QPointer<CMessageBoxMan> alive = this;
    m_isOpen = true;
    const int result = exec();
    if (!alive)
        return 0;
    m_isOpen = false;
    emit Signal_InteractionResult(result);
    return result;
}

// Its whole text, plain, is also what a screen reader says of the box as it comes up.
void CMessageBoxMan::Log(int type, QStringList texts)
{
    for (QString &text : texts) {
        if (Qt::mightBeRichText(text))
            text = QTextDocumentFragment::fromHtml(text).toPlainText();
    }
    texts.removeAll(QString());
    texts.removeDuplicates();
    const QString plain = texts.join(QLatin1Char('\n'));
    setAccessibleDescription(plain);
    CSessionLog::Get().Add(FindKind(type).event, m_owner ? m_owner->windowTitle() : QString(),
                           plain);
}

// A dialog can't run twice at a time, and the text that the user is reading must stay.
int CMessageBoxMan::ShowSecond(int type, const QString &title, const QString &text,
                               const QString &informative, const QString &detail, int width)
{
    CMessageBoxMan second;
    second.SetOwner(this);
    connect(&second, &CMessageBoxMan::Signal_InteractionResult, this,
            &CMessageBoxMan::Signal_InteractionResult);
    return second.Show(type, title, text, informative, detail, width);
}

void CMessageBoxMan::Fill(int type, const QString &title, const QString &text,
                          const QString &informative, const QString &detail)
{
    const SBoxKind &kind = FindKind(type);
    setWindowTitle(title);
    setIcon(kind.icon);
    setText(kind.wrapped ? kTextHead + text + kTextTail : text);
    setStandardButtons(kind.button);
    setDefaultButton(kind.button);
    // Emptied first: the same details set anew would stay unfolded as the user left them. It also
    // makes the box lay itself out anew, without the spacer of an earlier call.
    setInformativeText(QString());
    setDetailedText(QString());
    if (!informative.isEmpty())
        setInformativeText(informative);
    if (!detail.isEmpty())
        setDetailedText(detail);
}

// Last of all settings, because most of them make the box lay itself out anew.
void CMessageBoxMan::SetLeastWidth(int width)
{
    QGridLayout *grid = qobject_cast<QGridLayout *>(layout());
    if (width != kNoWidth)
        grid->addItem(new QSpacerItem(width, 0, QSizePolicy::Minimum, QSizePolicy::Expanding),
                      grid->rowCount(), 0, 1, grid->columnCount());
}

void CMessageBoxMan::AttachToWindow()
{
    // The box itself may still count as the active window after its last run.
    QWidget *active = QApplication::activeWindow();
    if (active && active != this && active->isVisible())
        m_window = active;
    else
        m_window = m_owner ? m_owner->window() : nullptr;
    winId();  // makes the window handle, which a widget has only once it is shown
    windowHandle()->setTransientParent(m_window ? m_window->windowHandle() : nullptr);
}

void CMessageBoxMan::showEvent(QShowEvent *event)
{
    QMessageBox::showEvent(event);
    if (event->spontaneous() || !m_window)
        return;
    // A box without parent is centred on the screen; move it over its window, but not off screen.
    QRect frame = frameGeometry();
    frame.moveCenter(m_window->frameGeometry().center());
    const QScreen *screen = m_window->windowHandle() ? m_window->windowHandle()->screen() : nullptr;
    if (screen) {
        const QRect available = screen->availableGeometry();
        frame.moveLeft(
            qMax(available.left(), qMin(frame.left(), available.right() - frame.width())));
        frame.moveTop(
            qMax(available.top(), qMin(frame.top(), available.bottom() - frame.height())));
    }
    move(frame.topLeft());
    setAttribute(Qt::WA_Moved, false);  // the place is ours, not the user's choice
}
