// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QAccessible>

#include "rules/board.h"

namespace mainwindow {

class BoardWidget;

/// A cell of the board for screen readers. The name tells the content of the cell, its position and the size of its
/// group. The press action plays the cell, as Space or Enter does.
class AccessibleCell : public QAccessibleInterface,
                       public QAccessibleTableCellInterface,
                       public QAccessibleActionInterface {
  public:
    /// Cell i must be on the board. The interface becomes invalid if the board shrinks and loses cell i.
    AccessibleCell(BoardWidget& boardWidget, rules::CellIndex i) : widget(boardWidget), index(i) {}

    /// Tells screen readers that the name has changed, if it differs from the name that they last read. `group` is the
    /// current size of the cell's group, or 0 if the cell is empty.
    void reportName(int group);

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
    QString reported;  // the new name, while it is being reported
    mutable QString lastRead;
};

}  // namespace mainwindow
