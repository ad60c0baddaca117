// The editors of a page in a person's hands: what they show, what they take now, and typing into them.
//
// Kinds: QComboBox, QCheckBox, QSpinBox, QDoubleSpinBox, the tool's line editor of unsigned numbers, and
// QLabel, which takes nothing. Values are the texts that the page packages. GUI thread; typing may open a
// box, in which the editor may go.
//
//   SBenchMember member = ...;
//   ReadEditor(editor, member);                    // choices, limits
//   if (const auto refusal = TypeInto(editor, member, "3500010")) ...
#pragma once

#include <optional>

#include "Runner/bench/BenchTypes.h"

class QTableWidget;
class QWidget;

// The editor in a cell; made now if the table makes its editors late. Null: there is none.
QWidget *CellEditor(QTableWidget *table, int row, int column);

// What the editor takes now: choices, min, max, allowed.
void ReadEditor(const QWidget *editor, SBenchMember &member);
// What would be taken, for a refusal: "n1, n3, n78" or "300~10000".
QString AllowedText(const SBenchMember &member);

// Gives the editor the focus and types the value, or chooses it. member: as ReadEditor left it.
std::optional<SRefusal> TypeInto(QWidget *editor, const SBenchMember &member, const QString &value);
