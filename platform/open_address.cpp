// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#include "platform/open_address.h"

#include <QDesktopServices>
#include <QUrl>

namespace platform {

void openAddress(const QString& address) {
    // If no program can open the address, Qt would write a warning to standard error.
    const QtMessageHandler usual = qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
    QDesktopServices::openUrl(QUrl(address));
    qInstallMessageHandler(usual);
}

}  // namespace platform
