#include "Support/TraceNote.h"

#include <dlfcn.h>

#include <QPushButton>

namespace {

using TakeNote = void (*)(const char *text);

TakeNote TakerOfNotes()
{
    static const auto taker = reinterpret_cast<TakeNote>(dlsym(RTLD_DEFAULT, "VondTap_Note"));
    return taker;
}

// As the user reads it: without the mark of its key, and on one line.
QString CaptionOf(const QPushButton &button)
{
    QString text = button.text();
    text.replace(QLatin1String("&&"), QLatin1String("\n"));
    text.remove(QLatin1Char('&')).replace(QLatin1Char('\n'), QLatin1Char('&'));
    return text.isEmpty() ? button.objectName() : text.simplified();
}

}  // namespace

bool IsTraced()
{
    return TakerOfNotes() != nullptr;
}

void NoteInTrace(const QString &text)
{
    if (IsTraced())
        TakerOfNotes()(text.toUtf8().constData());
}

void NotePresses(QWidget *widget, const QString &name)
{
    if (!IsTraced())
        return;
    for (const QPushButton *const button : widget->findChildren<QPushButton *>())
        QObject::connect(button, &QPushButton::pressed, button, [button, name] {
            NoteInTrace(name + QLatin1String(": ") + CaptionOf(*button));
        });
}
