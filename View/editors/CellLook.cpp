#include "View/editors/CellLook.h"

#include <QLineEdit>
#include <QPalette>
#include <QVariant>
#include <QWidget>

#include "View/access/Contrast.h"

namespace {

constexpr char kLooks[] = "quorlinCellLooks";
constexpr int kGroundShare = 30;  // percent of amber in the ground of a changed cell

int LooksOf(const QWidget *editor)
{
    return editor->property(kLooks).toInt();
}

bool Has(int looks, ECellLook look)
{
    return looks & static_cast<int>(look);
}

QColor Mixed(const QColor &one, const QColor &other, int percent)
{
    const auto mix = [percent](int a, int b) { return (a * percent + b * (100 - percent)) / 100; };
    return {mix(one.red(), other.red()), mix(one.green(), other.green()),
            mix(one.blue(), other.blue())};
}

// Of the colours that the editor would have without a look.
QPalette PaletteOf(int looks, const QPalette &plain)
{
    QPalette palette;
    if (Has(looks, ECellLook::Marked)) {
        const QColor &ground = plain.color(QPalette::Active, QPalette::Highlight);
        palette.setColor(QPalette::Base, ground);
        palette.setColor(
            QPalette::Text,
            Readable(plain.color(QPalette::Active, QPalette::HighlightedText), ground));
    } else if (Has(looks, ECellLook::Changed)) {
        const QColor amber(255, 176, 0);
        const QColor ground =
            Mixed(amber, plain.color(QPalette::Active, QPalette::Base), kGroundShare);
        palette.setColor(QPalette::Base, ground);
        for (const auto group : {QPalette::Active, QPalette::Inactive})
            palette.setColor(group, QPalette::Text,
                             Readable(plain.color(group, QPalette::Text), ground));
    }
    return palette;
}

}  // namespace

void SetCellLook(QWidget *editor, ECellLook look, bool isOn)
{
    const int before = LooksOf(editor);
    const int bit = static_cast<int>(look);
    const int looks = isOn ? before | bit : before & ~bit;
    if (looks == before)
        return;
    editor->setProperty(kLooks, looks);
    editor->setPalette({});
    const QPalette palette = looks != 0 ? PaletteOf(looks, editor->palette()) : QPalette();
    editor->setPalette(palette);
    // Below a style sheet the text of a spin box does not follow its box.
    if (auto *text = editor->findChild<QLineEdit *>())
        text->setPalette(palette);
    // A font, even the same one, makes the editor lay itself out anew.
    if (look != ECellLook::Changed)
        return;
    QFont font = editor->font();
    font.setBold(isOn);
    editor->setFont(font);
}

bool HasCellLook(const QWidget *editor, ECellLook look)
{
    return Has(LooksOf(editor), look);
}
