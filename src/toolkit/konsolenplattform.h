#pragma once

#include "toolkit/plattform.h"

#include <functional>
#include <iosfwd>
#include <string>

namespace velmaris {

/// A message as one line of the error stream, readable whatever names it holds: line breaks become blanks.
[[nodiscard]] std::string in_einer_zeile(std::string text);

/// Does a piece of work with a file. Its fault, whatever its kind, becomes one line to `fehler` that names
/// the file at fault, which is `datei` where the fault names none. Returns whether it went well.
bool versuchen(std::ostream& fehler, const std::string& sprache, const std::string& datei,
               const std::function<void()>& stueck);

/// The platform of a program without a screen: no dialogs, no timers, messages to stderr.
class Konsolenplattform final : public Plattform {
  public:
    Konsolenplattform();

    /// Messages to another stream, which must outlive the object.
    explicit Konsolenplattform(std::ostream& meldungen) : meldungen_(meldungen) {}

    Antwort melde(const Meldung& meldung) override;
    std::optional<std::string> eingabe(const std::string& text, const std::string& titel,
                                       const std::string& vorgabe) override;
    std::optional<std::filesystem::path> dateidialog(const Dateidialog& dialog) override;
    void sanduhr(bool an) override;
    void fenstertitel(const std::string& titel) override;
    [[nodiscard]] Bildschirmpunkt zeiger() const override;
    double zufall() override;
    void zeitgeber_starten(const std::string& name, int millisekunden, std::function<void()> ablauf) override;
    void zeitgeber_stoppen(const std::string& name) override;
    void hilfe(const std::filesystem::path& datei, const std::string& seite) override;
    [[nodiscard]] std::vector<std::string> druckerliste() const override;
    [[nodiscard]] std::string aktueller_drucker() const override;
    void drucker_waehlen(const std::string& name) override;
    [[nodiscard]] std::filesystem::path datenordner() const override;
    void beenden() override;

  private:
    std::ostream& meldungen_;
};

}  // namespace velmaris
