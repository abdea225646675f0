// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QAccessible>

#include "rules/groups.h"

namespace mainwindow {

class BoardCursor;

/// A cell of the board as screen readers know it: what it holds, where it is and how large its group is. Its press
/// action presses it as a key does.
class BoardCell : public QAccessibleInterface, public QAccessibleTableCellInterface, public QAccessibleActionInterface {
  public:
    /// i is a cell of the board; if the board gets smaller, the interface turns invalid.
    BoardCell(BoardCursor& board, rules::GroupSizes& sizes, rules::CellIndex i)
        : cursor(board), groups(sizes), index(i) {}

    /// Whether the name is another one than a screen reader was told last.
    bool saysOtherwise() const { return name() != lastTold; }

    bool isValid() const override;
    QObject* object() const override { return nullptr; }
    QWindow* window() const override;
    QAccessibleInterface* parent() const override;
    QAccessibleInterface* child(int) const override { return nullptr; }
    QAccessibleInterface* childAt(int, int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface*) const override { return -1; }
    QRect rect() const override;
    QAccessible::Role role() const override { return QAccessible::Cell; }
    QAccessible::State state() const override;
    QString text(QAccessible::Text kind) const override;
    void setText(QAccessible::Text, const QString&) override {}
    void* interface_cast(QAccessible::InterfaceType type) override;

    int columnExtent() const override { return 1; }
    int rowExtent() const override { return 1; }
    int columnIndex() const override;
    int rowIndex() const override;
    QList<QAccessibleInterface*> columnHeaderCells() const override { return {}; }
    QList<QAccessibleInterface*> rowHeaderCells() const override { return {}; }
    bool isSelected() const override { return false; }
    QAccessibleInterface* table() const override { return parent(); }

    QStringList actionNames() const override;
    void doAction(const QString& action) override;
    QStringList keyBindingsForAction(const QString&) const override { return {}; }

  private:
    QString name() const;

    BoardCursor& cursor;
    rules::GroupSizes& groups;
    rules::CellIndex index;
    mutable QString lastTold;
};

}  // namespace mainwindow
