#pragma once

#include "desktop/hauptfenster.h"
#include "desktop/help/hilfefenster.h"
#include "desktop/help/hilfetaste.h"
#include "desktop/platform/qt_plattform.h"
#include "planes/Start.h"

#include <QTranslator>
#include <filesystem>
#include <memory>

namespace velmaris {

/// The desktop program: the house over the desktop, its windows, and what happens with faults. A fault of a
/// file is told and the program goes on; any other fault ends it, and the project is rescued first.
class Programm {
  public:
    /// `sprache` is that of the run; needs the application object.
    Programm(const std::filesystem::path& programmordner, const std::string& sprache,
             const Befehlszeile& befehlszeile);
    Programm(const Programm&) = delete;
    Programm& operator=(const Programm&) = delete;
    ~Programm();

    /// Shows the start window, or goes straight to the main window.
    void starten();

    [[nodiscard]] Haupt& haupt() { return *haupt_; }
    [[nodiscard]] Start& start() { return *start_; }
    [[nodiscard]] Hauptfenster& fenster() { return *fenster_; }
    [[nodiscard]] Hilfefenster& hilfefenster() { return hilfefenster_; }
    [[nodiscard]] QtPlattform& plattform() { return plattform_; }

  private:
    void fehler(const Laufzeitfehler& fehler);
    void verweis_nach_aussen(const QUrl& verweis);

    QTranslator qt_texte_;
    Fehlerwache wache_;
    Binder binder_;
    QtPlattform plattform_;
    std::unique_ptr<Haupt> haupt_;
    Ansichtsmittel mittel_;
    std::unique_ptr<Start> start_;
    std::unique_ptr<Hauptfenster> fenster_;
    std::unique_ptr<QWidget> startfenster_;
    Hilfefenster hilfefenster_;
    Hilfetaste hilfetaste_;
    bool am_ende_ = false;
};

}  // namespace velmaris
