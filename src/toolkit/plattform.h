#pragma once

#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace velmaris {

enum class Symbol { kein, information, ausrufezeichen };
enum class Knoepfe { ok, ja_nein, ja_nein_abbrechen };
enum class Antwort { ok, ja, nein, abbrechen };

/// A message box. `vorgabe` is the button that Enter presses, if it is not the first.
struct Meldung {
    std::string text;
    std::string titel = {};
    Symbol symbol = Symbol::kein;
    Knoepfe knoepfe = Knoepfe::ok;
    std::optional<Antwort> vorgabe = std::nullopt;
    std::string hinweis = {};  ///< what is behind the message, shown below the text in smaller print
};

/// A file dialog. The filter is pairs of text and pattern, all separated by "|"; `filterindex` counts from 1.
struct Dateidialog {
    enum class Art { oeffnen, speichern };
    Art art = Art::oeffnen;
    std::string filter = {};
    int filterindex = 1;
    std::filesystem::path ordner = {};
    std::string dateiname = {};
    std::string endung = {};         ///< added to a name that has none, with its point
    std::filesystem::path ort = {};  ///< a folder to offer beside the desktop's own places, where it exists

    /// One line on what is in a file, shown while the file is chosen; empty where there is nothing to say.
    std::function<std::string(const std::filesystem::path&)> vorschau = {};

    /// Where each filter is a format of its own, their endings: a name that has none of them gets that of the
    /// filter chosen.
    std::vector<std::string> endungen = {};
};

/// The file of a dialog that was left with the filter `filterindex`, with the ending that its name lacks.
[[nodiscard]] std::filesystem::path mit_endung(const Dateidialog& dialog, std::filesystem::path datei,
                                               int filterindex);

/// A point of the screen in pixels.
struct Bildschirmpunkt {
    int x = 0;
    int y = 0;

    friend bool operator==(const Bildschirmpunkt&, const Bildschirmpunkt&) = default;
};

/// What the program needs of the desktop beside windows and drawing. Implementations: the desktop,
/// the console (no dialogs, messages to stderr), scripted answers for tests.
class Plattform {
  public:
    Plattform() = default;
    Plattform(const Plattform&) = delete;
    Plattform& operator=(const Plattform&) = delete;
    virtual ~Plattform() = default;

    /// Shows a message box and returns the button pressed; closing it counts as `abbrechen`, as `nein` where
    /// there is no such button, and as `ok` where there is only that.
    virtual Antwort melde(const Meldung& meldung) = 0;

    /// Asks for one line of text; nothing on cancel.
    virtual std::optional<std::string> eingabe(const std::string& text, const std::string& titel,
                                               const std::string& vorgabe) = 0;

    /// Asks for a file; nothing on cancel.
    virtual std::optional<std::filesystem::path> dateidialog(const Dateidialog& dialog) = 0;

    /// Wait cursor on or off.
    virtual void sanduhr(bool an) = 0;

    /// Title of the main window.
    virtual void fenstertitel(const std::string& titel) = 0;

    /// Position of the pointer on the screen.
    [[nodiscard]] virtual Bildschirmpunkt zeiger() const = 0;

    /// A random number in [0, 1).
    virtual double zufall() = 0;

    /// Starts the one-shot timer of that name anew; `ablauf` runs once after `millisekunden`.
    virtual void zeitgeber_starten(const std::string& name, int millisekunden,
                                   std::function<void()> ablauf) = 0;
    virtual void zeitgeber_stoppen(const std::string& name) = 0;

    /// Opens the help file, at a page of it unless that is empty.
    virtual void hilfe(const std::filesystem::path& datei, const std::string& seite) = 0;

    /// Names of the printers that there are now.
    [[nodiscard]] virtual std::vector<std::string> druckerliste() const = 0;

    /// Name of the printer in use; empty for output into a PDF file, the only choice without a printer. One
    /// that was chosen stays in use when it vanishes from the list.
    [[nodiscard]] virtual std::string aktueller_drucker() const = 0;
    virtual void drucker_waehlen(const std::string& name) = 0;

    /// The user's own folder for data of this program, whether it is there yet or not; empty if the system
    /// names none.
    [[nodiscard]] virtual std::filesystem::path datenordner() const = 0;

    /// Ends the program once the running event is over.
    virtual void beenden() = 0;
};

}  // namespace velmaris
