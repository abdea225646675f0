// The panel that shows at the end of a game.

#include "mainwindow/balls.h"
#include "platform/label.h"
#include "platform/look.h"

namespace mainwindow {

void balls::gameEnded() {
    Frame1->show();
    setScoreBold(true);
}

void balls::Frame1_Click() {
    hideEndPanel();
}

void balls::hideEndPanel() {
    Frame1->hide();
    setScoreBold(false);
}

void balls::setScoreBold(bool bold) {
    const QFont font = platform::uiFont(platform::FontSize::small, bold ? QFont::Bold : QFont::Normal);
    sc->setFont(font);
    Label3->setFont(font);
}

}  // namespace mainwindow
