#include "tests/documents/report/reporthilfen.h"

#include "documents/report/report.h"
#include "documents/report/rtf_lesen.h"
#include "planes/dokumentquelle.h"
#include "toolkit/zahlen.h"

#include <limits>

namespace velmaris::test {
namespace {

std::string ohne_rand(const std::string& text) {
    const auto anfang = text.find_first_not_of(' ');
    if (anfang == std::string::npos) return {};
    return text.substr(anfang, text.find_last_not_of(' ') + 1 - anfang);
}

std::vector<double> zahlen(const std::string& zeile) {
    std::vector<double> werte;
    const auto alle = zellen(zeile);
    for (std::size_t i = 1; i < alle.size(); ++i)
        werte.push_back(zahl_pruefen(alle[i]).value_or(std::numeric_limits<double>::quiet_NaN()));
    return werte;
}

}  // namespace

std::unique_ptr<Testprogramm> dokumentprogramm(const std::string& sprache) {
    auto programm = std::make_unique<Testprogramm>(sprache);
    Projekt& p = programm->p();
    p.Tueber = 22;
    p.intg = 60;
    p.fs = p.fw = 60;
    programm->haupt->alles_berechnen();
    return programm;
}

std::vector<std::string> reportzeilen(const Testprogramm& programm, int seite) {
    std::vector<std::string> zeilen;
    for (const Absatz& absatz : rtf_lesen(report_in_sprache(dokumentquelle(*programm.haupt), seite))) {
        std::string text;
        for (const Textstueck& stueck : absatz.stuecke)
            text += stueck.text;
        zeilen.push_back(text);
    }
    return zeilen;
}

std::vector<std::string> zellen(const std::string& zeile) {
    std::vector<std::string> alle;
    std::size_t anfang = 0;
    for (auto ende = zeile.find('\t'); ende != std::string::npos; ende = zeile.find('\t', anfang)) {
        alle.push_back(ohne_rand(zeile.substr(anfang, ende - anfang)));
        anfang = ende + 1;
    }
    alle.push_back(ohne_rand(zeile.substr(anfang)));
    return alle;
}

std::vector<Wertzeile> wertzeilen(const std::vector<std::string>& zeilen) {
    std::vector<Wertzeile> werte;
    for (const std::string& zeile : zeilen) {
        const auto alle = zellen(zeile);
        if (alle.size() == 2 && alle[0].ends_with(":")) werte.push_back({alle[0], alle[1]});
    }
    return werte;
}

std::vector<std::vector<double>> zahlentabelle(const std::vector<std::string>& zeilen, std::size_t nummer,
                                               const Projekt& p) {
    std::vector<std::vector<double>> tabelle;
    std::size_t i = 0;
    for (std::size_t tabellen = 0; i < zeilen.size(); ++i) {
        if (zellen(zeilen[i]).front() == p.Monat(1).Name && tabellen++ == nummer) break;
    }
    for (std::size_t monat = 0; monat < monate; ++monat)
        tabelle.push_back(zahlen(zeilen.at(i + monat)));
    const bool mit_linie = zeilen.at(i + monate).ends_with('_');
    tabelle.push_back(zahlen(zeilen.at(i + monate + (mit_linie ? 1 : 0))));
    return tabelle;
}

}  // namespace velmaris::test
