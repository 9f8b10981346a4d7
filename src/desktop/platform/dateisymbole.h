#pragma once

#include <QFileIconProvider>

namespace velmaris {

/// Pictures and kinds for the lists of file dialogs, told from the names alone. The toolkit's own provider
/// opens every file that it lists to guess its kind, and waits for ever where one has no end of its own, such
/// as a pipe or a log of the system.
class Dateisymbole final : public QFileIconProvider {
  public:
    using QFileIconProvider::icon;
    [[nodiscard]] QIcon icon(const QFileInfo& datei) const override;
    [[nodiscard]] QString type(const QFileInfo& datei) const override;
};

}  // namespace velmaris
