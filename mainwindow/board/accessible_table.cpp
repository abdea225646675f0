// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#include "mainwindow/board/accessible_table.h"

#include <algorithm>
#include <map>
#include <utility>
#include <vector>

#include <QAccessible>
#include <QAccessibleWidget>

#include "mainwindow/board/accessible_cell.h"
#include "mainwindow/board/board_widget.h"
#include "mainwindow/board/geometry.h"
#include "rules/group.h"

using namespace Qt::StringLiterals;

namespace mainwindow {
namespace {

// The children are the cells. A child index counts row by row, as screen readers expect; a CellIndex counts column by
// column. The interface of a cell is created at its first use.
class AccessibleTable : public QAccessibleWidget, public QAccessibleTableInterface {
  public:
    explicit AccessibleTable(BoardWidget& board) : QAccessibleWidget(&board, QAccessible::Table), boardWidget(board) {}
    ~AccessibleTable() override { forgetCells(); }
    Q_DISABLE_COPY_MOVE(AccessibleTable)

    QAccessibleInterface* cell(rules::CellIndex i) const {
        const auto [known, isNew] = cells.try_emplace(i, nullptr);
        if (isNew) {
            known->second = new AccessibleCell(boardWidget, i);
            QAccessible::registerAccessibleInterface(known->second);
        }
        return known->second;
    }

    void reportChanges() {
        const rules::Board& board = boardWidget.board();
        if (board.NbCol != columnsBefore || board.NbLig != rowsBefore) {
            forgetCells();
            columnsBefore = board.NbCol;
            rowsBefore = board.NbLig;
        }
        const std::vector<int> groups = rules::groupSizes(board);
        for (const auto& [i, cell] : cells) {
            cell->reportName(groups[i]);
        }
        const bool hasGroup = rules::hasGroup(board);
        if (std::exchange(hadGroup, hasGroup) != hasGroup) {
            QAccessibleEvent event(this, QAccessible::NameChanged);
            QAccessible::updateAccessibility(&event);
        }
    }

    void* interface_cast(QAccessible::InterfaceType type) override {
        return type == QAccessible::TableInterface ? static_cast<QAccessibleTableInterface*>(this)
                                                   : QAccessibleWidget::interface_cast(type);
    }
    QString text(QAccessible::Text kind) const override {
        if (kind != QAccessible::Name) {
            return QAccessibleWidget::text(kind);
        }
        return rules::hasGroup(boardWidget.board()) ? u"Plateau"_s : u"Plateau, aucun groupe"_s;
    }
    int childCount() const override { return static_cast<int>(boardWidget.board().cells.size()); }
    QAccessibleInterface* child(int index) const override {
        const int columns = columnCount();
        return index < 0 || index >= childCount() ? nullptr : cellAt(index / columns, index % columns);
    }
    int indexOfChild(const QAccessibleInterface* child) const override {
        const auto* cell = dynamic_cast<const AccessibleCell*>(child);
        return cell == nullptr ? -1 : cell->rowIndex() * columnCount() + cell->columnIndex();
    }
    QAccessibleInterface* childAt(int x, int y) const override {
        const auto found = mainwindow::cellAt(boardWidget.board(), boardWidget.mapFromGlobal(QPoint(x, y)));
        return found ? cell(*found) : nullptr;
    }
    QAccessibleInterface* focusChild() const override {
        return boardWidget.hasFocus() ? cell(boardWidget.cursorCell()) : nullptr;
    }

    // Qt crashes if this function returns null, so the position is clamped to the board.
    QAccessibleInterface* cellAt(int row, int column) const override {
        const rules::Board& board = boardWidget.board();
        return cell(board.indexOf({std::clamp(column, 0, board.NbCol - 1), std::clamp(row, 0, board.NbLig - 1)}));
    }
    int columnCount() const override { return boardWidget.board().NbCol; }
    int rowCount() const override { return boardWidget.board().NbLig; }
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

    BoardWidget& boardWidget;
    mutable std::map<rules::CellIndex, AccessibleCell*> cells;
    bool hadGroup = true;  // before the last change
    int columnsBefore = boardWidget.board().NbCol;
    int rowsBefore = boardWidget.board().NbLig;
};

QAccessibleInterface* create(const QString&, QObject* object) {
    auto* board = qobject_cast<BoardWidget*>(object);
    return board == nullptr ? nullptr : new AccessibleTable(*board);
}

AccessibleTable* tableOf(BoardWidget& board) {
    return QAccessible::isActive() ? static_cast<AccessibleTable*>(QAccessible::queryAccessibleInterface(&board))
                                   : nullptr;
}

void reportFocus(BoardWidget& board) {
    if (AccessibleTable* table = tableOf(board); table != nullptr && board.hasFocus()) {
        QAccessibleEvent event(table->cell(board.cursorCell()), QAccessible::Focus);
        QAccessible::updateAccessibility(&event);
    }
}

void reportChanges(BoardWidget& board) {
    if (AccessibleTable* table = tableOf(board)) {
        table->reportChanges();
    }
}

}  // namespace

void makeAccessible(BoardWidget& board) {
    QAccessible::installFactory(create);
    // The connection is queued, so that the focus event of the cell comes after the focus event that Qt sends for the
    // whole table.
    QObject::connect(
        &board, &BoardWidget::cursorMoved, &board, [&board] { reportFocus(board); }, Qt::QueuedConnection);
    QObject::connect(&board, &BoardWidget::boardChanged, &board, [&board] { reportChanges(board); });
}

}  // namespace mainwindow
