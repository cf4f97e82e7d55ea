// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QAccessible>
#include <QList>
#include <QString>

class QWidget;

namespace quillora {

// Hands Qt the board's own accessible interfaces: the phrase as a table of
// cells, the on-screen keyboard as its keys, and the widgets given a role
// below. Once is enough; later calls do nothing.
void installBoardAccessibility();

// The role a screen reader knows a widget by, for widgets whose class says
// nothing of it: a plain panel, a painted view, a label that is clicked. A
// widget made a push button answers the screen reader's "press" with a
// click of the mouse in its middle, so it does what a click does.
void setAccessibleRole(QWidget* widget, QAccessible::Role role);
// A push button that offers nothing at the moment says so, though it stays
// on the board for the mouse.
void setAccessibleUnavailable(QWidget* widget, bool unavailable);

// Names and descriptions set only when they change: each change is
// announced, and a screen reader must hear of real changes only.
void setSpokenName(QWidget* widget, const QString& name);
void setSpokenDescription(QWidget* widget, const QString& description);

// Tells a screen reader that these children (by index) of a painted view
// changed.
void announceChildren(QWidget* view, const QList<int>& children, QAccessible::Event change);

// What a focused control of the board adds to its style sheet, so the
// keyboard's place is always in sight: `selector` names the control, and the
// mark is black on a light control and white on a dark one. A style sheet
// leaves out the style's own focus frame, so each focusable control that has
// one carries this mark instead.
QString focusMarkStyle(const QString& selector, bool darkControl = false);

} // namespace quillora
