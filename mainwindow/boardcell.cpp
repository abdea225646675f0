// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#include "mainwindow/boardcell.h"

#include <QTimer>
#include <QWindow>

#include "mainwindow/boardcursor.h"
#include "mainwindow/boardgeometry.h"

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

QString describe(const rules::Board& board, rules::CellIndex i, int group) {
    const auto [col, row] = board.positionOf(i);
    const QString place = u"%1, ligne %2, colonne %3"_s.arg(describeContent(board[i])).arg(row + 1).arg(col + 1);
    return group == 0 ? place : place + u", groupe de %1"_s.arg(group);
}

}  // namespace

bool BoardCell::isValid() const {
    return cursor.board().contains(index);
}

QWindow* BoardCell::window() const {
    return cursor.window()->windowHandle();
}

QAccessibleInterface* BoardCell::parent() const {
    return QAccessible::queryAccessibleInterface(&cursor);
}

QRect BoardCell::rect() const {
    const QRect area = isValid() ? cellArea(cursor.board(), index) : QRect();
    return area.translated(cursor.window()->mapToGlobal(QPoint()));
}

QAccessible::State BoardCell::state() const {
    QAccessible::State state;
    state.focusable = true;
    state.focused = cursor.hasFocus() && cursor.cell() == index;
    state.invisible = !cursor.isVisible();
    state.invalid = !isValid();
    return state;
}

QString BoardCell::text(QAccessible::Text kind) const {
    return kind == QAccessible::Name ? lastTold = name() : QString();
}

QString BoardCell::name() const {
    const rules::Board& board = cursor.board();
    return isValid() ? describe(board, index, groups.at(board, index)) : QString();
}

void* BoardCell::interface_cast(QAccessible::InterfaceType type) {
    switch (type) {
        case QAccessible::TableCellInterface:
            return static_cast<QAccessibleTableCellInterface*>(this);
        case QAccessible::ActionInterface:
            return static_cast<QAccessibleActionInterface*>(this);
        default:
            return nullptr;
    }
}

int BoardCell::columnIndex() const {
    return cursor.board().positionOf(index).col;
}

int BoardCell::rowIndex() const {
    return cursor.board().positionOf(index).row;
}

QStringList BoardCell::actionNames() const {
    return {pressAction(), setFocusAction()};
}

void BoardCell::doAction(const QString& action) {
    // The screen reader gets its answer first: a move may last.
    QTimer::singleShot(0, &cursor, [&board = cursor, i = index, press = action == pressAction()] {
        if (!board.isVisible() || !board.board().contains(i)) {
            return;
        }
        if (press) {
            board.press(i);
        } else {
            board.setFocus();
            board.moveTo(i);
        }
    });
}

}  // namespace mainwindow
