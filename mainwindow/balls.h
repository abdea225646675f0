// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#pragma once

#include <array>
#include <chrono>
#include <cstdint>
#include <deque>
#include <functional>
#include <memory>

#include <QWidget>

#include "animation/bouncing_pictures.h"
#include "mainwindow/cellpictures.h"
#include "mainwindow/pictureframe.h"
#include "mainwindow/removalpace.h"
#include "platform/sound.h"
#include "platform/twips.h"
#include "rules/game.h"
#include "rules/host.h"
#include "settings/bestscores.h"
#include "settings/store.h"

class QCheckBox;
class QRadioButton;

namespace about {
class About;
}

namespace platform {
class Label;
class PictureBox;
class TextBox;
}  // namespace platform

namespace mainwindow {

class BoardCursor;

/// What the main window needs of the world, so that a test can put it into a world of its own.
struct Surroundings {
    settings::Store& store;
    platform::Sound& sound;
    std::function<std::uint64_t()> seed;                   ///< a new one for every deal
    std::function<platform::Box(const QWidget&)> screen;   ///< the screen a window stands on, in twips
    std::function<void(std::chrono::microseconds)> pause;  ///< handles events for so long
};

/// The main window: a shell that wires the controls to the rules, the best scores and the sound. Each subject
/// has a file of its own: startup, commands, newgame, move, bestscore, endpanel, feedback, keys, accessibility, help.
class balls : public QWidget, private rules::Host {
    Q_OBJECT

  public:
    /// Creates the window, loads the settings and deals the first game; it is then ready to be shown.
    explicit balls(Surroundings world);
    ~balls() override;
    Q_DISABLE_COPY_MOVE(balls)

    /// Stores the board's size and the sound switch.
    void Form_Unload();

    /// A click on a command button: 0 new game, 1 quit, 2 reset of the best score; any other index does
    /// nothing. While a move is under way it is kept until the move is done.
    void ImBTN_Click(int Index);
    void LabBtn_Click(int Index);

    /// The game being played.
    const rules::Game& currentGame() const { return game; }

  protected:
    void closeEvent(QCloseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

  private:
    enum Command { newGame = 0, quit = 1, reset = 2, help };

    static constexpr int noButton = 5;  ///< as a button's index: all show their normal face
    static constexpr std::array<QKeyCombination, 3> commandKeys{Qt::Key_F2, Qt::CTRL | Qt::Key_Q, Qt::CTRL | Qt::Key_R};
    static constexpr QKeyCombination helpKey = Qt::Key_F1;

    // startup
    void Form_Load();
    void Option1_Click(int Index);

    // newgame
    void startGame();
    void SizeBoard();
    void ClearBoard();
    void NewGame();
    void LayoutBoard();
    int selectedLevel() const;

    // move
    void c_MouseDown(rules::CellIndex i, const QMouseEvent& press);
    void play(rules::CellIndex i);
    void cellCleared(rules::CellIndex i) override;
    void yield() override;
    void scoreChanged() override;
    void lastMoveChanged(std::string_view text) override;
    void remainingChanged(std::string_view text) override;
    void playWave(std::string_view file) override;
    void boardSettled() override;
    void paintCleared();

    // bestscore
    void sc_Change();
    void resetBestScore();
    void showTable();
    void showBestScore();

    // endpanel
    void gameEnded() override;
    void ShowEndPanel();
    void Frame1_Click();
    void hideEndPanel();
    void setScoreBold(bool bold);

    // feedback
    void connectMouse();
    void Form_MouseDown(const QMouseEvent& press);
    void Form_MouseMove();
    void Frame2_MouseMove();
    void Option1_MouseMove(int Index);
    void ImBTN_MouseMove(int Index);
    void LabBtn_MouseMove(int Index);
    void highlight(int i);

    // keys, accessibility
    void connectKeys();
    void orderTabStops();
    void describeControls();

    // help
    void Image1_MouseDown();
    void openAbout();
    void closeAbout();

    // sound
    void PlayWave(std::string_view file);
    void warmUpSound();

    // commands
    void exclusively(const std::function<void()>& sequence);
    void perform(Command command);
    void keep(Command command);
    void runKept();
    void run(Command command);

    void bindControls();
    void connectControls();

    Surroundings surroundings;
    settings::BestScores bestScores;
    rules::Game game;

    bool moving = false;
    bool running = false;  ///< the kept commands run, one after the other
    bool closing = false;  ///< the player waits for the end: no pace, no sound
    std::deque<Command> kept;
    RemovalPace pace;
    QRegion cleared;  ///< cleared cells that are still to be painted, in pixels

    BoardCursor* cursor = nullptr;
    CellPictures c;
    PictureFrame frame;

    QWidget* Frame1 = nullptr;
    QWidget* Frame2 = nullptr;
    QCheckBox* Check1 = nullptr;
    platform::Label* sc = nullptr;
    platform::Label* Label1 = nullptr;
    platform::Label* Label3 = nullptr;
    platform::Label* Label4 = nullptr;
    platform::Label* Label7 = nullptr;
    std::array<platform::PictureBox*, 2> BTN{};
    std::array<platform::PictureBox*, 3> ImBTN{};
    std::array<platform::TextBox*, 2> Text1{};
    std::array<QRadioButton*, 5> Option1{};
    std::array<platform::Label*, 5> hsc{};
    std::array<platform::Label*, 4> l1{};  ///< elements 0 and 3 alone exist
    animation::BouncingPictures* endBalls = nullptr;

    std::unique_ptr<about::About> About;  ///< while it is open
};

}  // namespace mainwindow
