// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#include "mainwindow/board/board_widget.h"

#include <algorithm>
#include <utility>

#include <QCoreApplication>
#include <QKeyEvent>
#include <QPainter>

#include "assets/pictures.h"
#include "mainwindow/board/cursor.h"
#include "mainwindow/board/geometry.h"
#include "platform/mouse.h"
#include "platform/pixel_painter.h"

using namespace Qt::StringLiterals;

namespace mainwindow {

BoardWidget::BoardWidget(QWidget& window, const rules::Board& board) : QWidget(&window), shownBoard(board) {
    setObjectName(u"c"_s);
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    std::ranges::transform(rules::codes, ballPictures.begin(), [this](rules::Code code) {
        const QString file = u"i%1.gif"_s.arg(QLatin1Char(static_cast<char>(code)));
        return assets::picture(file).onBackground(palette().color(QPalette::Window));
    });
}

void BoardWidget::fitToBoard() {
    cursor = {std::min(cursor.col, shownBoard.NbCol - 1), std::min(cursor.row, shownBoard.NbLig - 1)};
    setGeometry(boardArea(shownBoard));
}

void BoardWidget::markChanged(rules::CellIndex i) {
    // If there are more rectangles than this, painting their bounding rectangle is faster.
    constexpr int manyRectangles = 100;
    changed += cellArea(shownBoard, i);
    if (changed.rectCount() > manyRectangles) {
        changed = changed.boundingRect();
    }
}

void BoardWidget::paintChanges() {
    update(std::exchange(changed, {}));
}

void BoardWidget::showBoard() {
    update();
    emit boardChanged();
}

void BoardWidget::moveCursor(rules::CellIndex i) {
    updateCursor();
    cursor = shownBoard.positionOf(i);
    setCursorShown(true);
    emit cursorMoved();
}

void BoardWidget::setCursorShown(bool show) {
    const bool wasShown = std::exchange(isCursorShown, show);
    if (show && !wasShown) {
        QCoreApplication::instance()->installEventFilter(this);
    } else if (wasShown && !show) {
        QCoreApplication::instance()->removeEventFilter(this);
    }
    updateCursor();
}

void BoardWidget::updateCursor() {
    update(platform::paintedArea(*this, cursorRing(cellArea(shownBoard, cursorCell()))));
}

// While the cursor is shown, this filter is installed on the application: using the mouse anywhere hides the cursor.
bool BoardWidget::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::MouseMove || event->type() == QEvent::MouseButtonPress ||
        event->type() == QEvent::Wheel) {
        setCursorShown(false);
    }
    return QWidget::eventFilter(watched, event);
}

void BoardWidget::focusInEvent(QFocusEvent* event) {
    const auto reason = event->reason();
    const bool isByKey =
        reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason || reason == Qt::ShortcutFocusReason;
    setCursorShown(isCursorShown || isByKey);
    emit cursorMoved();
}

void BoardWidget::focusOutEvent(QFocusEvent*) {
    updateCursor();
}

void BoardWidget::keyPressEvent(QKeyEvent* event) {
    const int key = event->key();
    const bool isPress = key == Qt::Key_Space || key == Qt::Key_Return || key == Qt::Key_Enter;
    const auto target = cursorMovedBy(key, cursor, shownBoard);
    if (!isPress && !target) {
        QWidget::keyPressEvent(event);
    } else if (!isCursorShown) {
        moveCursor(cursorCell());  // The first key only shows the player where the cursor is.
    } else if (target) {
        moveCursor(shownBoard.indexOf(*target));
    } else if (!event->isAutoRepeat()) {
        emit played(cursorCell());
    }
}

void BoardWidget::mouseMoveEvent(QMouseEvent* event) {
    event->setAccepted(cellAt(shownBoard, platform::pixelUnder(*event)).has_value());
}

void BoardWidget::mousePressEvent(QMouseEvent* event) {
    if (const auto cell = cellAt(shownBoard, platform::pixelUnder(*event))) {
        cursor = shownBoard.positionOf(*cell);
        emit pressed(*cell, *event);
    } else {
        event->ignore();
    }
}

void BoardWidget::paintEvent(QPaintEvent* event) {
    paintCells(event->region());
    if (isCursorShown && hasFocus()) {
        QPainter painter(this);
        drawCursor(painter, cellArea(shownBoard, cursorCell()));
    }
}

void BoardWidget::paintCells(const QRegion& region) {
    platform::PixelPainter painter(*this);
    for (const QRect& area : region) {
        const QRect cells = cellsTouching(shownBoard, area);
        // The pixels of a row are next to each other in memory. Painting row by row is therefore three times as fast as
        // painting column by column.
        for (int row = cells.top(); row <= cells.bottom(); ++row) {
            for (int col = cells.left(); col <= cells.right(); ++col) {
                const rules::CellIndex i = shownBoard.indexOf({col, row});
                const auto* const code = std::ranges::find(rules::codes, shownBoard[i]);
                if (code != rules::codes.end()) {
                    painter.draw(cellArea(shownBoard, i).topLeft(), ballPictures[code - rules::codes.begin()]);
                }
            }
        }
    }
}

}  // namespace mainwindow
