// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QAccessible>

#include "rules/board.h"

namespace mainwindow {

class BoardWidget;

/// A cell of the board for screen readers. Its name says its content, its position and the size of its group; its press
/// action plays the cell as a key does.
class AccessibleCell : public QAccessibleInterface,
                       public QAccessibleTableCellInterface,
                       public QAccessibleActionInterface {
  public:
    /// i is a cell of the board. The interface becomes invalid if the board gets smaller than that.
    AccessibleCell(BoardWidget& boardWidget, rules::CellIndex i) : widget(boardWidget), index(i) {}

    /// Whether the name has changed since a screen reader last read it. `group` is the size of the cell's group now, 0
    /// for an empty cell.
    bool hasNewName(int group) const { return name(group) != lastRead; }

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
    QString name(int group) const;

    BoardWidget& widget;
    rules::CellIndex index;
    mutable QString lastRead;
};

}  // namespace mainwindow
