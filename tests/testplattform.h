#pragma once

#include "toolkit/plattform.h"

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace velmaris::test {

/// A desktop that follows a script: answers are set before, what was asked is read after. Without an answer
/// left a message box is answered by `ok` and dialogs are cancelled, as by an empty answer.
class Testplattform : public Plattform {
  public:
    std::vector<Antwort> antworten;  ///< taken from the front
    std::vector<std::string> eingaben;
    std::vector<std::filesystem::path> dateien;
    Bildschirmpunkt zeiger_ort;
    double zufallszahl = 0;
    std::vector<std::string> drucker;
    std::string druckername;  ///< of the one in use

    std::vector<Meldung> meldungen;  ///< all message boxes in their order
    std::vector<Dateidialog> dialoge;
    std::vector<bool> sanduhren;
    std::string titel;
    std::vector<std::string> hilfeseiten;
    std::filesystem::path daten;  ///< the user's folder
    bool beendet = false;

    struct Zeitgeber {
        int millisekunden = 0;
        std::function<void()> ablauf;
    };
    std::map<std::string, Zeitgeber> zeitgeber;  ///< those that run

    /// Lets a running timer fire.
    void lasse_ablaufen(const std::string& name);

    Antwort melde(const Meldung& meldung) override;
    std::optional<std::string> eingabe(const std::string& text, const std::string& titel,
                                       const std::string& vorgabe) override;
    std::optional<std::filesystem::path> dateidialog(const Dateidialog& dialog) override;
    void sanduhr(bool an) override { sanduhren.push_back(an); }
    void fenstertitel(const std::string& text) override { titel = text; }
    [[nodiscard]] Bildschirmpunkt zeiger() const override { return zeiger_ort; }
    double zufall() override { return zufallszahl; }
    void zeitgeber_starten(const std::string& name, int millisekunden, std::function<void()> ablauf) override;
    void zeitgeber_stoppen(const std::string& name) override { zeitgeber.erase(name); }
    void hilfe(const std::filesystem::path& datei, const std::string& seite) override;
    [[nodiscard]] std::vector<std::string> druckerliste() const override { return drucker; }
    [[nodiscard]] std::string aktueller_drucker() const override { return druckername; }
    void drucker_waehlen(const std::string& name) override { druckername = name; }
    [[nodiscard]] std::filesystem::path datenordner() const override { return daten; }
    void beenden() override { beendet = true; }
};

}  // namespace velmaris::test
