#include "studies/studienplan.h"

#include "toolkit/fehler.h"
#include "toolkit/text.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <string_view>
#include <system_error>
#include <utility>
#include <variant>

namespace velmaris {
namespace {

constexpr std::string_view bytefolgemarke = "\xEF\xBB\xBF";
constexpr std::uint64_t hoechste_zeilenlaenge = std::uint64_t{64} << 10U;

bool ist_zahl(const Feldzeile& feld) {
    return !std::holds_alternative<std::string Projekt::*>(feld.zeiger);
}

}  // namespace

void Studienplan::spalte_aufnehmen(const Feldzeile& feld) {
    if (std::ranges::find(spalten_, &feld) != spalten_.end())
        throw Laufzeitfehler({"die Eingabe steht zweimal da", "the input is there twice"},
                             std::string(feld.name));
    spalten_.push_back(&feld);
}

Gitterplan::Gitterplan(std::vector<Wertereihe> reihen) : reihen_(std::move(reihen)) {
    anzahl_ = 1;
    for (const Wertereihe& reihe : reihen_) {
        spalte_aufnehmen(reihe.feld());
        anzahl_ *= reihe.anzahl();
        if (anzahl_ > hoechste_zeilenzahl)
            throw Laufzeitfehler({"mehr als 1000000000 Kombinationen", "more than 1000000000 combinations"});
    }
}

bool Gitterplan::naechste(Planzeile& zeile) {
    if (nummer_ >= anzahl_) return false;
    std::uint64_t rest = nummer_;
    zeile.nummer = ++nummer_;
    zeile.fehler.reset();
    zeile.zellen.resize(reihen_.size());
    for (std::size_t i = reihen_.size(); i-- > 0;) {
        zeile.zellen[i] = reihen_[i].wert(rest % reihen_[i].anzahl());
        rest /= reihen_[i].anzahl();
    }
    return true;
}

Dateiplan::Dateiplan(std::string datei) : name_(std::move(datei)) {
    std::error_code fehler;
    if (!std::filesystem::is_regular_file(pfad(name_), fehler))
        throw Dateifehler(name_, {"keine Datei, die gelesen werden kann", "no file that can be read"});
    strom_.open(pfad(name_), std::ios::binary);
    zeilen_zaehlen();
    kopf_lesen();
}

/// Goes once through the file: the number of its rows, and no line that memory could not hold.
void Dateiplan::zeilen_zaehlen() {
    std::vector<char> puffer(std::size_t{1} << 16U);
    std::uint64_t zeilen = 0;
    std::uint64_t laenge = 0;
    while (strom_.read(puffer.data(), static_cast<std::streamsize>(puffer.size())), strom_.gcount() > 0) {
        std::string_view rest(puffer.data(), static_cast<std::size_t>(strom_.gcount()));
        while (!rest.empty()) {
            const std::size_t ende = std::min(rest.find('\n'), rest.size());
            laenge += ende;
            if (laenge > hoechste_zeilenlaenge)
                throw Dateifehler(name_, {"die Zeile ist länger als 64 KB", "the line is longer than 64 KB"},
                                  static_cast<int>(zeilen + 1));
            if (ende == rest.size()) break;
            laenge = 0;
            ++zeilen;
            rest.remove_prefix(ende + 1);
        }
    }
    if (laenge > 0) ++zeilen;
    if (strom_.bad() || zeilen == 0)
        throw Dateifehler(name_,
                          {"die Datei ist leer oder nicht lesbar", "the file is empty or not readable"});
    anzahl_ = zeilen - 1;
    if (anzahl_ > hoechste_zeilenzahl)
        throw Dateifehler(name_, {"mehr als 1000000000 Zeilen", "more than 1000000000 rows"});
    strom_.clear();
    strom_.seekg(0);
}

bool Dateiplan::zeile_holen() {
    if (!std::getline(strom_, text_)) return false;
    if (text_.ends_with('\r')) text_.pop_back();
    return true;
}

void Dateiplan::kopf_lesen() {
    zeile_holen();
    if (text_.starts_with(bytefolgemarke)) text_.erase(0, bytefolgemarke.size());
    leser_.trennung = text_.find(';') != std::string::npos ? ';' : ',';
    std::vector<std::string> namen;
    try {
        leser_.zerlegen(text_, namen);
        for (const std::string& spalte : namen)
            spalte_aufnehmen(eingabe_suchen(ohne_blanks(spalte)));
    } catch (const Laufzeitfehler& fehler) {
        throw Dateifehler(name_, fehler.grund(), 1, fehler.feld());
    }
}

void Dateiplan::ueberspringen(std::uint64_t zeilen) {
    for (; zeilen > 0 && zeile_holen(); --zeilen)
        ++nummer_;
}

bool Dateiplan::naechste(Planzeile& zeile) {
    if (!zeile_holen()) return false;
    zeile.nummer = ++nummer_;
    zeile.fehler.reset();
    try {
        leser_.zerlegen(text_, zeile.zellen);
        if (zeile.zellen.size() != spalten_.size()) {
            const std::string ist = std::to_string(zeile.zellen.size());
            const std::string soll = std::to_string(spalten_.size());
            zeile.fehler = {ist + " statt " + soll + " Zellen", ist + " cells instead of " + soll};
        }
    } catch (const Laufzeitfehler& fehler) {
        zeile.fehler = fehler.grund();
    }
    zeile.zellen.resize(spalten_.size());
    for (std::size_t i = 0; leser_.trennung == ';' && i < spalten_.size(); ++i) {
        if (ist_zahl(*spalten_[i])) std::ranges::replace(zeile.zellen[i], ',', '.');
    }
    return true;
}

}  // namespace velmaris
