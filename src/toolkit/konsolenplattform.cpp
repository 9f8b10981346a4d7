#include "toolkit/konsolenplattform.h"

#include "toolkit/fehler.h"
#include "toolkit/text.h"

#include <cstdlib>
#include <exception>
#include <iostream>
#include <new>

namespace velmaris {
namespace {

/// A folder below the one that a variable of the environment names; empty if it names none.
std::filesystem::path unter(const char* variable, const char* ordner) {
    const char* wert = std::getenv(variable);
    const std::filesystem::path basis = wert != nullptr ? wert : "";
    return basis.is_absolute() ? basis / ordner : std::filesystem::path();
}

}  // namespace

std::string in_einer_zeile(std::string text) {
    for (std::size_t ende = 0; (ende = text.find_first_of("\r\n", ende)) != std::string::npos;)
        text.replace(ende, text.compare(ende, 2, "\r\n") == 0 ? 2 : 1, " ");
    return lesbar(text);
}

bool versuchen(std::ostream& fehler, const std::string& sprache, const std::string& datei,
               const std::function<void()>& stueck) {
    const auto melde = [&](const Laufzeitfehler& grund) {
        fehler << in_einer_zeile(grund.text(sprache)) << '\n';
    };
    try {
        stueck();
        return true;
    } catch (const Dateifehler& grund) {
        melde(grund);
    } catch (const Laufzeitfehler& grund) {
        melde(Dateifehler(datei, {grund.text("d"), grund.text("e")}));
    } catch (const std::bad_alloc&) {
        melde(Dateifehler(datei, kein_speicher()));
    } catch (const std::exception& grund) {
        melde(Dateifehler(datei, {grund.what(), grund.what()}));
    }
    return false;
}

Konsolenplattform::Konsolenplattform() : Konsolenplattform(std::cerr) {}

Antwort Konsolenplattform::melde(const Meldung& meldung) {
    meldungen_ << in_einer_zeile(meldung.text) << '\n';
    switch (meldung.knoepfe) {
        case Knoepfe::ja_nein:
            return Antwort::nein;
        case Knoepfe::ja_nein_abbrechen:
            return Antwort::abbrechen;
        case Knoepfe::ok:
            break;
    }
    return Antwort::ok;
}

std::optional<std::string> Konsolenplattform::eingabe(const std::string& /*text*/,
                                                      const std::string& /*titel*/,
                                                      const std::string& /*vorgabe*/) {
    return std::nullopt;
}

std::optional<std::filesystem::path> Konsolenplattform::dateidialog(const Dateidialog& /*dialog*/) {
    return std::nullopt;
}

void Konsolenplattform::sanduhr(bool /*an*/) {}

void Konsolenplattform::fenstertitel(const std::string& /*titel*/) {}

Bildschirmpunkt Konsolenplattform::zeiger() const {
    return {};
}

double Konsolenplattform::zufall() {
    return 0;
}

void Konsolenplattform::zeitgeber_starten(const std::string& /*name*/, int /*millisekunden*/,
                                          std::function<void()> /*ablauf*/) {}

void Konsolenplattform::zeitgeber_stoppen(const std::string& /*name*/) {}

void Konsolenplattform::hilfe(const std::filesystem::path& /*datei*/, const std::string& /*seite*/) {}

std::vector<std::string> Konsolenplattform::druckerliste() const {
    return {};
}

std::string Konsolenplattform::aktueller_drucker() const {
    return {};
}

void Konsolenplattform::drucker_waehlen(const std::string& /*name*/) {}

std::filesystem::path Konsolenplattform::datenordner() const {
#if defined(_WIN32)
    return unter("APPDATA", "Velmaris");
#elif defined(__APPLE__)
    return unter("HOME", "Library/Application Support/Velmaris");
#else
    const std::filesystem::path daten = unter("XDG_DATA_HOME", "Velmaris");
    return daten.empty() ? unter("HOME", ".local/share/Velmaris") : daten;
#endif
}

void Konsolenplattform::beenden() {}

}  // namespace velmaris
