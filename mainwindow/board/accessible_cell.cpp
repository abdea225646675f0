// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#include "mainwindow/board/accessible_cell.h"

#include <QWindow>

#include "mainwindow/board/board_widget.h"
#include "mainwindow/board/geometry.h"
#include "rules/group.h"

using namespace Qt::StringLiterals;

namespace mainwindow {
namespace {

QString describeContent(rules::Code code) {
    using enum rules::Code;
    switch (code) {
        case red:
            return u"boule rouge"_s;
        case blue:
            return u"boule bleue"_s;
        case green:
            return u"boule verte"_s;
        case yellow:
            return u"boule jaune"_s;
        case magenta:
            return u"boule magenta"_s;
        case grey:
            return u"boule grise"_s;
        default:
            return u"case vide"_s;
    }
}

}  // namespace

bool AccessibleCell::isValid() const {
    return widget.board().contains(index);
}

QWindow* AccessibleCell::window() const {
    return widget.window()->windowHandle();
}

QAccessibleInterface* AccessibleCell::parent() const {
    return QAccessible::queryAccessibleInterface(&widget);
}

QRect AccessibleCell::rect() const {
    const QRect area = isValid() ? cellArea(widget.board(), index) : QRect();
    return area.translated(widget.mapToGlobal(QPoint()));
}

QAccessible::State AccessibleCell::state() const {
    QAccessible::State state;
    state.focusable = true;
    state.focused = widget.hasFocus() && widget.cursorCell() == index;
    state.invisible = !widget.isVisible();
    state.invalid = !isValid();
    return state;
}

QString AccessibleCell::text(QAccessible::Text kind) const {
    if (kind != QAccessible::Name) {
        return {};
    }
    if (!reported.isEmpty()) {
        lastRead = reported;
    } else {
        lastRead = isValid() ? name(rules::groupSize(widget.board(), index)) : QString();
    }
    return lastRead;
}

void AccessibleCell::reportName(int group) {
    // Newer versions of Qt ask for the name within this event. They then get the known name: counting the group again
    // for each cell takes seconds on the largest board.
    reported = name(group);
    if (reported != lastRead) {
        QAccessibleEvent event(this, QAccessible::NameChanged);
        QAccessible::updateAccessibility(&event);
    }
    reported.clear();
}

QString AccessibleCell::name(int group) const {
    const rules::Board& board = widget.board();
    const auto [col, row] = board.positionOf(index);
    const QString place = u"%1, ligne %2, colonne %3"_s.arg(describeContent(board[index])).arg(row + 1).arg(col + 1);
    return group == 0 ? place : place + u", groupe de %1"_s.arg(group);
}

void* AccessibleCell::interface_cast(QAccessible::InterfaceType type) {
    switch (type) {
        case QAccessible::TableCellInterface:
            return static_cast<QAccessibleTableCellInterface*>(this);
        case QAccessible::ActionInterface:
            return static_cast<QAccessibleActionInterface*>(this);
        default:
            return nullptr;
    }
}

int AccessibleCell::columnIndex() const {
    return widget.board().positionOf(index).col;
}

int AccessibleCell::rowIndex() const {
    return widget.board().positionOf(index).row;
}

QStringList AccessibleCell::actionNames() const {
    return {pressAction(), setFocusAction()};
}

void AccessibleCell::doAction(const QString& action) {
    if (!widget.isVisible() || !isValid()) {
        return;
    }
    if (action == pressAction()) {
        emit widget.asked(index);
    } else {
        widget.setFocus();
        widget.moveCursor(index);
    }
}

}  // namespace mainwindow
