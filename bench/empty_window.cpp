// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

// Shows an empty window of the main window's default size. bench/run.py compares the game with this program, which has
// only the costs of Qt.

#include <QApplication>
#include <QWidget>

int main(int argc, char* argv[]) {
    const QApplication application(argc, argv);
    QWidget window(nullptr, Qt::Window | Qt::FramelessWindowHint);
    window.setFixedSize(738, 567);
    window.show();
    return QApplication::exec();
}
