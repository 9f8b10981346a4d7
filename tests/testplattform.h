#pragma once

#include "toolkit/plattform.h"
#include "toolkit/text.h"

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace velmaris::test {

/// A desktop that follows a script: answers are set before, what was asked is read after. Without an answer
/// left a message box is answered by `ok` and dialogs are cancelled, as by an empty answer.
class Testplattform : public Plattform {
  public:
    std::vector<Antwort> antworten;  ///< taken from the front
    std::vector<std::string> eingaben;
    std::vector<std::filesystem::path> dateien;
    int filterwahl = 1;  ///< the filter that file dialogs are left with
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
    void lasse_ablaufen(const std::string& name) { zeitgeber.extract(name).mapped().ablauf(); }

    Antwort melde(const Meldung& meldung) override {
        meldungen.push_back(meldung);
        return naechste(antworten, Antwort::ok);
    }
    std::optional<std::string> eingabe(const std::string&, const std::string&, const std::string&) override {
        const std::string text = naechste(eingaben);
        return text.empty() ? std::nullopt : std::optional(text);
    }
    std::optional<std::filesystem::path> dateidialog(const Dateidialog& dialog) override {
        dialoge.push_back(dialog);
        std::filesystem::path datei = naechste(dateien);
        if (datei.empty()) return std::nullopt;
        return mit_endung(dialog, std::move(datei), filterwahl);
    }
    void sanduhr(bool an) override { sanduhren.push_back(an); }
    void fenstertitel(const std::string& text) override { titel = text; }
    [[nodiscard]] Bildschirmpunkt zeiger() const override { return zeiger_ort; }
    double zufall() override { return zufallszahl; }
    void zeitgeber_starten(const std::string& name, int millisekunden, std::function<void()> tu) override {
        zeitgeber[name] = {millisekunden, std::move(tu)};
    }
    void zeitgeber_stoppen(const std::string& name) override { zeitgeber.erase(name); }
    void hilfe(const std::filesystem::path& datei, const std::string& seite) override {
        hilfeseiten.push_back(pfadtext(datei.filename()) + "::" + seite);
    }
    [[nodiscard]] std::vector<std::string> druckerliste() const override { return drucker; }
    [[nodiscard]] std::string aktueller_drucker() const override { return druckername; }
    void drucker_waehlen(const std::string& name) override { druckername = name; }
    [[nodiscard]] std::filesystem::path datenordner() const override { return daten; }
    void beenden() override { beendet = true; }

  private:
    /// Takes the first of the prepared answers.
    template <class T>
    static T naechste(std::vector<T>& vorrat, T sonst = {}) {
        if (vorrat.empty()) return sonst;
        sonst = vorrat.front();
        vorrat.erase(vorrat.begin());
        return sonst;
    }
};

}  // namespace velmaris::test
