// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#include "platform/address.h"

#include <QDesktopServices>
#include <QUrl>

namespace platform {

void openAddress(const QString& address) {
    // Where nothing opens it, the toolkit would say so on standard error.
    const QtMessageHandler usual = qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
    QDesktopServices::openUrl(QUrl(address));
    qInstallMessageHandler(usual);
}

}  // namespace platform
