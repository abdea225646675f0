// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#pragma once

#include <array>
#include <memory>

#include <QWidget>

#include "animation/bouncing_pictures.h"
#include "mainwindow/picture_frame.h"
#include "mainwindow/removal_pace.h"
#include "mainwindow/surroundings.h"
#include "mainwindow/turns.h"
#include "rules/game.h"
#include "rules/host.h"
#include "settings/best_scores.h"

class QAction;
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

class BoardWidget;

/// The main window. It connects the controls with the rules, the best scores and the sound. Above each group of
/// functions, a comment names the file that defines the group.
class balls : public QWidget, private rules::Host {
    Q_OBJECT

  public:
    /// Creates the window, still hidden, loads the settings and deals the first game.
    explicit balls(Surroundings given);
    ~balls() override;
    Q_DISABLE_COPY_MOVE(balls)

    /// Saves the texts of the size boxes and the state of the sound switch.
    void Form_Unload();

    /// Handles a click on the command button number `Index`: 0 starts a new game, 1 quits, 2 resets the best score. Any
    /// other index does nothing. The command waits while a move is played or a new game starts.
    void ImBTN_Click(int Index);

    /// The current game.
    const rules::Game& currentGame() const { return game; }

  private:
    static constexpr int noButton = 5;  ///< No button has this index. highlight(noButton) highlights none.
    static constexpr std::array<QKeyCombination, 3> commandKeys{Qt::Key_F2, Qt::CTRL | Qt::Key_Q,
                                                                Qt::CTRL | Qt::Key_Delete};
    static constexpr QKeyCombination helpKey = Qt::Key_F1;

    // balls.cpp
    void createControls();
    void connectControls();
    void paintEvent(QPaintEvent* event) override;
    // start_and_close.cpp
    void Form_Load();
    void closeEvent(QCloseEvent* event) override;
    // commands.cpp
    void LabBtn_Click(int Index);
    void run(Command command);
    // new_game.cpp
    void startGame();
    void SizeBoard();
    void ClearBoard();
    void NewGame();
    void LayoutBoard();
    // level_options.cpp
    void groupLevels();
    void connectLevels();
    void Option1_Click(int Index);
    int selectedLevel() const;
    // press.cpp
    void c_MouseDown(rules::CellIndex i, const QMouseEvent& press);
    void play(rules::CellIndex i);
    void playSoon(rules::CellIndex i);
    void run(Press press);
    // move_host.cpp
    void cellCleared(rules::CellIndex i) override;
    void yield() override;
    void scoreChanged() override;
    void lastMoveChanged(std::string_view text) override;
    void remainingChanged(std::string_view text) override;
    void PlayWave(std::string_view file) override;
    void boardSettled(const rules::Landings& landings) override;
    // end_panel.cpp
    void gameEnded() override;
    void ShowEndPanel();
    void Frame1_Click();
    void hideEndPanel();
    void setScoreBold(bool bold);
    // best_score_labels.cpp
    void sc_Change();
    void resetBestScore();
    void showBestScores();
    void showBestScore(int level);
    // hover_and_drag.cpp
    void connectMouse();
    void drag(QWidget& control, const QMouseEvent& press);
    void Form_MouseDown(const QMouseEvent& press);
    void Form_MouseMove();
    void Frame2_MouseMove();
    void Option1_MouseMove(int Index);
    void ImBTN_MouseMove(int Index);
    void LabBtn_MouseMove(int Index);
    void highlight(int i);
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    // shortcuts_and_tabs.cpp
    void connectKeys();
    void returnToBoard();
    void orderTabStops();
    // screen_reader_names.cpp
    void describeControls();
    void announceStatus();
    // open_about.cpp
    void Image1_MouseDown();
    void openAbout();
    void closeAbout();

    Surroundings surroundings;
    settings::BestScores bestScores;
    rules::Game game;
    Turns turns{[this](Request request) { std::visit([this](auto asked) { run(asked); }, request); }};
    RemovalPace pace{1};  ///< of the current move
    PictureFrame frame;
    std::unique_ptr<about::About> About;  ///< null while the About window is closed

    // The controls. CONTRIBUTING.md explains their names.
    BoardWidget* c;
    QWidget *Frame1 = nullptr, *Frame2 = nullptr;
    QCheckBox* Check1 = nullptr;
    platform::PictureBox* Image1 = nullptr;
    platform::Label *sc = nullptr, *Label1 = nullptr, *Label2 = nullptr, *Label3 = nullptr, *Label4 = nullptr,
                    *Label7 = nullptr;
    std::array<platform::PictureBox*, 2> BTN{};
    std::array<platform::PictureBox*, 3> ImBTN{};
    std::array<platform::Label*, 3> LabBtn{}, Label5{};
    std::array<platform::TextBox*, 2> Text1{};
    std::array<QRadioButton*, rules::levels> Option1{};
    std::array<platform::Label*, rules::levels> hsc{};
    std::array<platform::Label*, 4> l1{};  ///< elements 1 and 2 stay null
    animation::BouncingPictures* endBalls = nullptr;
    QAction* closePanel = nullptr;  ///< the board's keys that close the end-of-game panel; disabled without the panel
};

}  // namespace mainwindow
