// What a user does to one editor, chosen by a byte.
//
// Only what a user can do: editors that are hidden or disabled are left alone, typed text passes
// the editor's own validator, and a table means one of its cells. GUI thread.
//
//   FuzzUser::Change(page.Editors()[3], 7);
#pragma once

#include <cstdint>

#include <QWidget>

namespace FuzzUser {

// Chooses another item, ticks a box, steps a number or goes to its limit.
void Change(QWidget *editor, uint8_t how);
// Puts a text in the place of what stands there; half of the bytes also press Enter.
void Type(QWidget *editor, uint8_t how);
// Turns the mouse wheel one notch, down for odd bytes.
void Wheel(QWidget *editor, uint8_t how);
// Moves the keyboard focus to the editor.
void Focus(QWidget *editor, uint8_t how);

}  // namespace FuzzUser
