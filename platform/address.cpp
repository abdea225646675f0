#include "platform/address.h"

#include <QDesktopServices>
#include <QUrl>

namespace platform {

void openAddress(const QString& address) {
    QDesktopServices::openUrl(QUrl(address));
}

}  // namespace platform
