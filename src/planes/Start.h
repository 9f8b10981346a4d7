#pragma once

#include "planes/Haupt.h"
#include "planes/befehlszeile.h"
#include "toolkit/felder.h"

#include <filesystem>
#include <functional>
#include <optional>
#include <string>

namespace velmaris {

/// The start window: first a splash screen that builds up the program, later the about box.
struct Start {
    /// `hauptfenster_zeigen` shows the main window.
    Start(Haupt& haupt, Befehlszeile befehlszeile, std::function<void()> hauptfenster_zeigen);

    Feld fenster{"Start"};
    Anzeige Text{"Text"};  ///< the about text
    Knopf OK_Button{"OK_Button"};

    /// The start of the program: at once and without this window after a language letter on the command line,
    /// otherwise after ten seconds or `OK_Button`. A fault during the fast start brings the window up, whose
    /// button tries again. Once the program runs it only shows the window, as about box.
    void laden();

    /// Closes the about box; before the program is up, ends it.
    void schliessen();

  private:
    void schnell_starten();
    void aufbauen();

    /// Builds up the project, opens the one that the command line names, and shows the main window.
    void Timer1_Timer();
    void OK_Button_Click();

    Haupt& haupt_;
    Befehlszeile befehlszeile_;
    std::function<void()> hauptfenster_zeigen_;
};

/// The language of the run: the command line's, else that of the language file, else what the language
/// window (a callback) brings; empty without a choice. `benutzerordner` is the platform's folder for data of
/// the user.
[[nodiscard]] std::string sprache_bestimmen(const Befehlszeile& befehlszeile,
                                            const std::filesystem::path& programmordner,
                                            const std::filesystem::path& benutzerordner,
                                            const std::function<std::optional<std::string>()>& sprachfenster);

}  // namespace velmaris
