#include "desktop/platform/dateisymbole.h"

#include <QMimeDatabase>

namespace velmaris {

QIcon Dateisymbole::icon(const QFileInfo& datei) const {
    return icon(datei.isDir() ? Folder : File);
}

QString Dateisymbole::type(const QFileInfo& datei) const {
    return QMimeDatabase().mimeTypeForFile(datei, QMimeDatabase::MatchExtension).comment();
}

}  // namespace velmaris
