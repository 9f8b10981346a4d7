#include "studies/studienausgabe.h"

#include "toolkit/csv.h"
#include "toolkit/fehler.h"
#include "toolkit/text.h"

#include <algorithm>
#include <ostream>
#include <system_error>

namespace velmaris {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view zeilenende = "\r\n";

/// The next line with its end, false if there is none that is whole.
bool ganze_zeile(std::ifstream& strom, std::string& zeile) {
    if (!std::getline(strom, zeile) || strom.eof()) return false;
    zeile += '\n';
    return zeile.ends_with(zeilenende);
}

}  // namespace

std::string zeilenanfang(const Planzeile& zeile) {
    Csvtext text;
    text.zelle(std::to_string(zeile.nummer));
    for (const std::string& zelle : zeile.zellen)
        text.zelle(zelle);
    return text.text() + ",";
}

void Studienausgabe::beginnen(std::string_view kopf) {
    if (!datei_.empty()) {
        std::error_code fehler;
        const bool gefuellt = fs::is_regular_file(pfad(datei_), fehler);
        oeffnen();
        if (gefuellt) fs::resize_file(pfad(datei_), 0, fehler);
    }
    schreiben(kopf);
}

void Studienausgabe::oeffnen() {
    strom_.open(pfad(datei_), std::ios::binary | std::ios::app);
    if (!strom_)
        throw Dateifehler(datei_, {"die Datei kann nicht geschrieben werden", "the file cannot be written"});
}

Vorlauf Studienausgabe::fortsetzen(std::string_view kopf, Studienplan& plan, std::uint64_t hoechstens) {
    std::ifstream bisher(pfad(datei_), std::ios::binary);
    Vorlauf vorlauf;
    std::string zeile;
    if (!ganze_zeile(bisher, zeile)) {
        if (!kopf.starts_with(zeile)) fremd(1);
        beginnen(kopf);
        return vorlauf;
    }
    if (zeile != kopf) fremd(1);
    ganz_ = zeile.size();
    Planzeile soll;
    while (vorlauf.zeilen < hoechstens && ganze_zeile(bisher, zeile)) {
        if (!plan.naechste(soll) || !zeile.starts_with(zeilenanfang(soll))) fremd(vorlauf.zeilen + 2);
        ganz_ += zeile.size();
        ++vorlauf.zeilen;
        if (!zeile.ends_with(",\r\n")) ++vorlauf.fehlerhafte;
    }
    if (vorlauf.zeilen == hoechstens && ganze_zeile(bisher, zeile)) fremd(vorlauf.zeilen + 2);
    bisher.close();
    std::error_code fehler;
    fs::resize_file(pfad(datei_), ganz_, fehler);
    oeffnen();
    return vorlauf;
}

void Studienausgabe::fremd(std::uint64_t zeile) const {
    throw Dateifehler(datei_,
                      {"die Zeile stammt nicht aus dieser Studie; die Datei bleibt, wie sie ist",
                       "the line is not of this study; the file stays as it is"},
                      static_cast<int>(zeile));
}

void Studienausgabe::schreiben(std::string_view zeilen) {
    std::ostream& ziel = datei_.empty() ? aus_ : strom_;
    ziel.write(zeilen.data(), static_cast<std::streamsize>(zeilen.size()));
    if (!ziel.flush()) gescheitert(zeilen);
    ganz_ += zeilen.size();
}

/// Cuts off what was begun and is not whole.
void Studienausgabe::gescheitert(std::string_view zeilen) {
    const Zweisprachig grund{"die Ausgabe kann nicht geschrieben werden; die Zeilen bisher sind ganz",
                             "the output cannot be written; the rows so far are whole"};
    if (datei_.empty()) throw Laufzeitfehler(grund);
    strom_.close();
    std::error_code fehler;
    const std::uintmax_t groesse = fs::file_size(pfad(datei_), fehler);
    if (!fehler && groesse > ganz_) {
        const std::string_view geschrieben = zeilen.substr(0, static_cast<std::size_t>(groesse - ganz_));
        const std::size_t ende = geschrieben.rfind(zeilenende);
        if (ende != std::string_view::npos) ganz_ += ende + zeilenende.size();
        fs::resize_file(pfad(datei_), ganz_, fehler);
    }
    throw Dateifehler(datei_, grund);
}

}  // namespace velmaris
