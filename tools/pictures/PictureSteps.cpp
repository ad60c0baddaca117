#include "tools/pictures/PictureSteps.h"

#include <QFile>

namespace {

const QStringList kVerbs = {"page", "choose", "enter", "press", "action",  "focus", "key",
                            "type", "status", "rows",  "shown", "picture", "close"};

}  // namespace

QVector<SPictureStep> ReadPictureSteps(const QString &file, QString &error)
{
    QFile script(file);
    if (!script.open(QIODevice::ReadOnly | QIODevice::Text)) {
        error = file + ": " + script.errorString();
        return {};
    }
    QVector<SPictureStep> steps;
    for (int line = 1; !script.atEnd(); ++line) {
        const QString words = QString::fromUtf8(script.readLine()).section('#', 0, 0).simplified();
        if (words.isEmpty())
            continue;
        const SPictureStep step = {.line = line,
                                   .verb = words.section(' ', 0, 0),
                                   .what = words.section(' ', 1, 1),
                                   .text = words.section(' ', 2)};
        if (!kVerbs.contains(step.verb) || step.what.isEmpty()) {
            error = QString("%1:%2: no step: %3").arg(file).arg(line).arg(words);
            return {};
        }
        steps.append(step);
    }
    if (steps.isEmpty())
        error = file + ": no steps";
    return steps;
}
