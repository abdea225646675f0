// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

// The end-of-game panel, `Frame1`.

#include <QAction>

#include "mainwindow/balls.h"
#include "mainwindow/board/board_widget.h"
#include "platform/label.h"
#include "platform/look.h"
#include "rules/random.h"
#include "settings/number.h"

using namespace Qt::StringLiterals;

namespace mainwindow {

void balls::gameEnded() {
    announceStatus();
    Frame1->show();
    closePanel->setEnabled(true);
    setScoreBold(true);
    ShowEndPanel();
}

void balls::ShowEndPanel() {
    using platform::toTwips;
    Frame1->setGeometry(platform::toPixels({250, 250, toTwips(Frame2->x()) - 300, toTwips(height()) - 500}));
    Label1->setFixedWidth(Frame1->width());
    Label7->setFixedWidth(Frame1->width());
    // Label4 may preview the best score of another level, so its text is not used here.
    const double best = settings::numberIn(bestScores.hsc(game.Diff)).value_or(0);
    Label7->setVisible(best <= static_cast<double>(game.score));
    // Screen readers read the accessible name of the panel, but not its labels.
    Frame1->setAccessibleName(Label1->text() + (Label7->isVisible() ? u", "_s + Label7->text() : QString()));
    endBalls->start(rules::Random(surroundings.animationSeed()));
}

void balls::Frame1_Click() {
    hideEndPanel();
    c->setFocus(Qt::MouseFocusReason);
}

void balls::hideEndPanel() {
    Frame1->hide();
    closePanel->setEnabled(false);
    endBalls->stop();
    setScoreBold(false);
}

void balls::setScoreBold(bool bold) {
    const QFont font = platform::uiFont(platform::FontSize::small, bold ? QFont::Bold : QFont::Normal);
    sc->setFont(font);
    Label3->setFont(font);
}

}  // namespace mainwindow
