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
/// functions is the name of the file that defines it.
class balls : public QWidget, private rules::Host {
    Q_OBJECT

  public:
    /// Creates the window, loads the settings and deals the first game. The window is then ready to be shown.
    explicit balls(Surroundings world);
    ~balls() override;
    Q_DISABLE_COPY_MOVE(balls)

    /// Stores the texts of the size boxes and the sound switch.
    void Form_Unload();

    /// A click on a command button: 0 new game, 1 quit, 2 reset of the best score. Another index does nothing. During a
    /// move or a new game, the command is kept for its end.
    void ImBTN_Click(int Index);

    /// The current game.
    const rules::Game& currentGame() const { return game; }

  private:
    static constexpr int noButton = 5;  ///< an index of no button: all three show their normal face
    static constexpr std::array<QKeyCombination, 3> commandKeys{Qt::Key_F2, Qt::CTRL | Qt::Key_Q, Qt::CTRL | Qt::Key_R};
    static constexpr QKeyCombination helpKey = Qt::Key_F1;

    // balls.cpp
    void createControls();
    void connectControls();
    void paintEvent(QPaintEvent* event) override;
    // start_and_close.cpp
    void Form_Load();
    void Option1_Click(int Index);
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
    int selectedLevel() const;
    // press.cpp
    void c_MouseDown(rules::CellIndex i, const QMouseEvent& press);
    void play(rules::CellIndex i);
    // move_host.cpp
    void cellCleared(rules::CellIndex i) override;
    void yield() override;
    void scoreChanged() override;
    void lastMoveChanged(std::string_view text) override;
    void remainingChanged(std::string_view text) override;
    void PlayWave(std::string_view file) override;
    void boardSettled() override;
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
    void orderTabStops();
    // screen_reader_names.cpp
    void describeControls();
    // open_about.cpp
    void Image1_MouseDown();
    void openAbout();
    void closeAbout();

    Surroundings surroundings;
    settings::BestScores bestScores;
    rules::Game game;
    Turns turns{[this](Command command) { run(command); }};
    RemovalPace pace;
    PictureFrame frame;
    std::unique_ptr<about::About> About;  ///< while it is open

    // The controls; CONTRIBUTING.md explains their names.
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
    std::array<platform::Label*, 4> l1{};  ///< only elements 0 and 3 exist
    animation::BouncingPictures* endBalls = nullptr;
};

}  // namespace mainwindow
