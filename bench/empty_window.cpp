// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

// The cost of Qt without a game: an empty window of the same size.

#include <QApplication>
#include <QWidget>

int main(int argc, char* argv[]) {
    const QApplication application(argc, argv);
    QWidget window(nullptr, Qt::Window | Qt::FramelessWindowHint);
    window.setFixedSize(738, 567);
    window.show();
    return QApplication::exec();
}
