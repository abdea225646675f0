// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#include <filesystem>

#include <QApplication>
#include <QIcon>

#include "assets/pictures.h"
#include "mainwindow/balls.h"
#include "platform/faulty_services.h"
#include "platform/look.h"
#include "platform/process.h"
#include "platform/screen.h"
#include "platform/sound/sound.h"
#include "platform/yield.h"
#include "rules/random.h"
#include "settings/store.h"

using namespace Qt::StringLiterals;

namespace {

// The folders to search for a sound file, in this order.
std::vector<std::filesystem::path> soundFolders() {
    const std::filesystem::path program = QCoreApplication::applicationDirPath().toStdString();
    return {".", program, program / ZAMPOTINE_DATA_FOLDER / "zampotine" / "sounds"};
}

// The icon has the resolution of the screen with the highest scale.
QIcon windowIcon() {
    const platform::Picture picture = assets::picture(u"zampotine.ico"_s);
    return {picture.inPixels(picture.size() * qApp->devicePixelRatio())};
}

}  // namespace

int main(int, char* argv[]) {
    platform::prepareProcess();
    platform::hideFaultyServices();
    // The game has no options, but Qt would read options of its own from the arguments. Qt therefore gets only the name
    // of the program.
    int argc = 1;
    const QApplication application(argc, argv);
    QApplication::setApplicationName(u"zampotine"_s);
    QApplication::setApplicationDisplayName(u"Zampotine"_s);
    QApplication::setApplicationVersion(QStringLiteral(ZAMPOTINE_VERSION));
    QGuiApplication::setDesktopFileName(u"zampotine"_s);
    QApplication::setWindowIcon(windowIcon());
    // Closing About must not end the program while the main window is hidden.
    QApplication::setQuitOnLastWindowClosed(false);
    platform::applyLook();

    settings::Store store(settings::defaultPath(QCoreApplication::applicationFilePath()));
    const auto sound = platform::makeSound(soundFolders());
    mainwindow::balls window(
        {store, *sound, rules::seedFromClock, rules::seedFromClock, platform::screenOf, platform::pause});
    platform::onQuitSignal(window, [&window] { window.close(); });
    window.show();
    return QApplication::exec();
}
