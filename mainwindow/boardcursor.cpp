// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#include "mainwindow/boardcursor.h"

#include <algorithm>
#include <utility>

#include <QCoreApplication>
#include <QKeyEvent>
#include <QPainter>

#include "mainwindow/boardgeometry.h"
#include "mainwindow/boardtable.h"
#include "platform/pixel_painter.h"

using namespace Qt::StringLiterals;

namespace mainwindow {
namespace {

// The ring, in pixels: how broad it is, and how far it stands out beyond its cell.
constexpr int breadth = 4;
constexpr int reach = 3;

}  // namespace

BoardCursor::BoardCursor(QWidget& window, const rules::Board& board, std::function<void(rules::CellIndex)> press)
    : QWidget(&window), shownBoard(board), pressed(std::move(press)) {
    setObjectName(u"board"_s);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setFocusPolicy(Qt::TabFocus);
    makeBoardsAccessible();
}

void BoardCursor::fitBoard() {
    place = {std::min(place.col, shownBoard.NbCol - 1), std::min(place.row, shownBoard.NbLig - 1)};
    setGeometry(boardArea(shownBoard).adjusted(-reach, -reach, reach, reach));
}

rules::CellIndex BoardCursor::cell() const {
    return shownBoard.indexOf(place);
}

void BoardCursor::moveTo(rules::CellIndex cell) {
    updateRing();
    place = shownBoard.positionOf(cell);
    setShown(true);
    tellFocus(*this);
}

// The filter is there while the cursor shows.
bool BoardCursor::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::MouseMove || event->type() == QEvent::MouseButtonPress ||
        event->type() == QEvent::Wheel) {
        setShown(false);
    }
    return QWidget::eventFilter(watched, event);
}

void BoardCursor::focusInEvent(QFocusEvent* event) {
    setShown(shown || event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason);
    tellFocus(*this);
}

void BoardCursor::focusOutEvent(QFocusEvent*) {
    updateRing();
}

void BoardCursor::keyPressEvent(QKeyEvent* event) {
    const int key = event->key();
    const bool presses = key == Qt::Key_Space || key == Qt::Key_Return || key == Qt::Key_Enter;
    if (presses && shown) {
        if (!event->isAutoRepeat()) {
            press(cell());
        }
    } else if (const auto to = presses ? std::optional(place) : target(key)) {
        // A first key only shows where the cursor is.
        moveTo(shown ? shownBoard.indexOf(*to) : cell());
    } else {
        QWidget::keyPressEvent(event);
    }
}

std::optional<rules::Position> BoardCursor::target(int key) const {
    const rules::Position last{shownBoard.NbCol - 1, shownBoard.NbLig - 1};
    rules::Position to = place;
    switch (key) {
        case Qt::Key_Left:
            to.col = std::max(to.col - 1, 0);
            break;
        case Qt::Key_Right:
            to.col = std::min(to.col + 1, last.col);
            break;
        case Qt::Key_Up:
            to.row = std::max(to.row - 1, 0);
            break;
        case Qt::Key_Down:
            to.row = std::min(to.row + 1, last.row);
            break;
        case Qt::Key_Home:
            to.col = 0;
            break;
        case Qt::Key_End:
            to.col = last.col;
            break;
        case Qt::Key_PageUp:
            to.row = 0;
            break;
        case Qt::Key_PageDown:
            to.row = last.row;
            break;
        default:
            return std::nullopt;
    }
    return to;
}

QRect BoardCursor::ring() const {
    return cellArea(shownBoard, cell()).translated(-pos()).adjusted(-reach, -reach, reach, reach);
}

void BoardCursor::updateRing() {
    update(platform::withReach(*this, ring()));
}

void BoardCursor::setShown(bool show) {
    if (show != std::exchange(shown, show)) {
        show ? QCoreApplication::instance()->installEventFilter(this)
             : QCoreApplication::instance()->removeEventFilter(this);
    }
    updateRing();
}

// White between black, so that it stands out from every colour and from the field.
void BoardCursor::paintEvent(QPaintEvent*) {
    if (!shown || !hasFocus()) {
        return;
    }
    constexpr double rounding = 4;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    constexpr double inset = breadth / 2.0;
    const QRectF middle = QRectF(ring()).adjusted(inset, inset, -inset, -inset);
    for (const auto& [colour, width] : {std::pair{Qt::black, breadth}, std::pair{Qt::white, breadth / 2}}) {
        painter.setPen(QPen(colour, width));
        painter.drawRoundedRect(middle, rounding, rounding);
    }
}

}  // namespace mainwindow
