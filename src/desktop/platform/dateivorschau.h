#pragma once

#include "desktop/platform/fehlerwache.h"

#include <QLabel>
#include <QTimer>
#include <filesystem>
#include <functional>
#include <string>

class QFileDialog;

namespace velmaris {

/// The line below a file dialog that tells what is in the file chosen in its list. It waits until the choice
/// rests for a moment.
class Dateivorschau : public QLabel {
    Q_OBJECT

  public:
    using Zeile = std::function<std::string(const std::filesystem::path&)>;

    /// Puts the line into a dialog of the toolkit; a dialog of the desktop has no place for it. `zeile` and
    /// `wache` must outlive the dialog.
    static void einsetzen(QFileDialog& dialog, const Zeile& zeile, const Fehlerwache& wache);

  private:
    Dateivorschau(QFileDialog& dialog, const Zeile& zeile, const Fehlerwache& wache);

    void waehle(const QString& datei);
    void lies();

    const Zeile& zeile_;
    const Fehlerwache& wache_;
    QString datei_;
    QTimer uhr_;
};

}  // namespace velmaris
