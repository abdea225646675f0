// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#include <filesystem>

#include <QApplication>
#include <QIcon>

#include "assets/pictures.h"
#include "mainwindow/balls.h"
#include "platform/look.h"
#include "platform/process.h"
#include "platform/screen.h"
#include "platform/services.h"
#include "platform/sound.h"
#include "platform/yield.h"
#include "rules/random.h"
#include "settings/store.h"

using namespace Qt::StringLiterals;

namespace {

// Where a sound is looked for, the first place first.
std::vector<std::filesystem::path> soundFolders() {
    const std::filesystem::path program = QCoreApplication::applicationDirPath().toStdString();
    return {".", program, program / ZAMPOTINE_DATA_FOLDER / "zampotine" / "sounds"};
}

// In the pixels of the finest screen.
QIcon windowIcon() {
    const platform::Artwork picture = assets::picture(u"zampotine.ico"_s);
    return {picture.inPixels(picture.size() * qApp->devicePixelRatio())};
}

}  // namespace

int main(int, char* argv[]) {
    platform::prepareProcess();
    platform::hideFaultyServices();
    // There is no command line: the toolkit would take options of its own from it.
    int argc = 1;
    const QApplication application(argc, argv);
    QApplication::setApplicationName(u"zampotine"_s);
    QApplication::setApplicationDisplayName(u"Zampotine"_s);
    QApplication::setApplicationVersion(QStringLiteral(ZAMPOTINE_VERSION));
    QGuiApplication::setDesktopFileName(u"zampotine"_s);
    QApplication::setWindowIcon(windowIcon());
    // Only the main window ends the program, also while it is hidden behind another one.
    QApplication::setQuitOnLastWindowClosed(false);
    platform::applyLook();

    settings::Store store(settings::defaultPath(QCoreApplication::applicationFilePath()));
    const auto sound = platform::makeSound(soundFolders());
    mainwindow::balls window({store, *sound, rules::seedFromClock, platform::screenOf, platform::pause});
    platform::onQuitSignal(window, [&window] { window.close(); });
    window.show();
    return QApplication::exec();
}
