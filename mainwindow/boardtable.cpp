// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#include "mainwindow/boardtable.h"

#include <algorithm>
#include <map>

#include <QAccessible>
#include <QAccessibleWidget>
#include <QTimer>

#include "mainwindow/boardcell.h"
#include "mainwindow/boardcursor.h"
#include "mainwindow/boardgeometry.h"

using namespace Qt::StringLiterals;

namespace mainwindow {
namespace {

// Children are counted row by row, as readers of tables expect, and come into being when they are asked for.
class BoardTable : public QAccessibleWidget, public QAccessibleTableInterface {
  public:
    explicit BoardTable(BoardCursor& board) : QAccessibleWidget(&board, QAccessible::Table), cursor(board) {}
    ~BoardTable() override { forgetCells(); }
    Q_DISABLE_COPY_MOVE(BoardTable)

    QAccessibleInterface* cell(rules::CellIndex i) const {
        const auto [known, isNew] = cells.try_emplace(i, nullptr);
        if (isNew) {
            known->second = new BoardCell(cursor, sizes, i);
            QAccessible::registerAccessibleInterface(known->second);
        }
        return known->second;
    }

    void tellChanges() {
        const rules::Board& board = cursor.board();
        if (board.NbCol != columnsBefore || board.NbLig != rowsBefore) {
            forgetCells();
            columnsBefore = board.NbCol;
            rowsBefore = board.NbLig;
        }
        for (const auto& [i, cell] : cells) {
            if (cell->saysOtherwise()) {
                QAccessibleEvent event(cell, QAccessible::NameChanged);
                QAccessible::updateAccessibility(&event);
            }
        }
    }

    void* interface_cast(QAccessible::InterfaceType type) override {
        return type == QAccessible::TableInterface ? static_cast<QAccessibleTableInterface*>(this)
                                                   : QAccessibleWidget::interface_cast(type);
    }
    QString text(QAccessible::Text kind) const override {
        return kind == QAccessible::Name ? u"Plateau"_s : QAccessibleWidget::text(kind);
    }
    int childCount() const override { return static_cast<int>(cursor.board().cells.size()); }
    QAccessibleInterface* child(int index) const override {
        const int columns = columnCount();
        return index < 0 || index >= childCount() ? nullptr : cellAt(index / columns, index % columns);
    }
    int indexOfChild(const QAccessibleInterface* child) const override {
        const auto* cell = dynamic_cast<const BoardCell*>(child);
        return cell == nullptr ? -1 : cell->rowIndex() * columnCount() + cell->columnIndex();
    }
    QAccessibleInterface* childAt(int x, int y) const override {
        const auto found = mainwindow::cellAt(cursor.board(), cursor.window()->mapFromGlobal(QPoint(x, y)));
        return found ? cell(*found) : nullptr;
    }
    QAccessibleInterface* focusChild() const override { return cursor.hasFocus() ? cell(cursor.cell()) : nullptr; }

    // The toolkit does not survive an answer without a cell.
    QAccessibleInterface* cellAt(int row, int column) const override {
        const rules::Board& board = cursor.board();
        return cell(board.indexOf({std::clamp(column, 0, board.NbCol - 1), std::clamp(row, 0, board.NbLig - 1)}));
    }
    int columnCount() const override { return cursor.board().NbCol; }
    int rowCount() const override { return cursor.board().NbLig; }
    QString columnDescription(int column) const override { return u"colonne %1"_s.arg(column + 1LL); }
    QString rowDescription(int row) const override { return u"ligne %1"_s.arg(row + 1LL); }
    QAccessibleInterface* caption() const override { return nullptr; }
    QAccessibleInterface* summary() const override { return nullptr; }

    int selectedCellCount() const override { return 0; }
    int selectedColumnCount() const override { return 0; }
    int selectedRowCount() const override { return 0; }
    QList<QAccessibleInterface*> selectedCells() const override { return {}; }
    QList<int> selectedColumns() const override { return {}; }
    QList<int> selectedRows() const override { return {}; }
    bool isColumnSelected(int) const override { return false; }
    bool isRowSelected(int) const override { return false; }
    bool selectRow(int) override { return false; }
    bool selectColumn(int) override { return false; }
    bool unselectRow(int) override { return false; }
    bool unselectColumn(int) override { return false; }
    void modelChange(QAccessibleTableModelChangeEvent*) override {}

  private:
    void forgetCells() {
        for (const auto& [i, cell] : cells) {
            QAccessible::deleteAccessibleInterface(QAccessible::uniqueId(cell));
        }
        cells.clear();
    }

    BoardCursor& cursor;
    mutable rules::GroupSizes sizes;
    mutable std::map<rules::CellIndex, BoardCell*> cells;
    int columnsBefore = cursor.board().NbCol;
    int rowsBefore = cursor.board().NbLig;
};

QAccessibleInterface* create(const QString&, QObject* object) {
    auto* board = qobject_cast<BoardCursor*>(object);
    return board == nullptr ? nullptr : new BoardTable(*board);
}

BoardTable* tableOf(BoardCursor& board) {
    return QAccessible::isActive() ? static_cast<BoardTable*>(QAccessible::queryAccessibleInterface(&board)) : nullptr;
}

}  // namespace

void makeBoardsAccessible() {
    QAccessible::installFactory(create);
}

void tellFocus(BoardCursor& board) {
    // After the toolkit, which tells of the table as a whole.
    QTimer::singleShot(0, &board, [&board] {
        if (BoardTable* table = tableOf(board); table != nullptr && board.hasFocus()) {
            QAccessibleEvent event(table->cell(board.cell()), QAccessible::Focus);
            QAccessible::updateAccessibility(&event);
        }
    });
}

void tellChanges(BoardCursor& board) {
    if (BoardTable* table = tableOf(board)) {
        table->tellChanges();
    }
}

}  // namespace mainwindow
