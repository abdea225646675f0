#pragma once

#include <QPixmap>
#include <QString>

namespace assets {

/// A picture of the program by its file name ("ir.gif"), at its natural size; an empty one if there is none
/// of that name.
QPixmap picture(const QString& name);

}  // namespace assets
