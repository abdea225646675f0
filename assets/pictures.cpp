#include "assets/pictures.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;

// The macro declares a function of the global namespace.
static void ensureResources() {
    Q_INIT_RESOURCE(pictures);
}

namespace assets {

QPixmap picture(const QString& name) {
    ensureResources();
    // Named by its suffix, the format is not looked for in every plugin that there is.
    return {u":/pictures/"_s + name, QFileInfo(name).suffix().toLatin1().constData()};
}

}  // namespace assets
