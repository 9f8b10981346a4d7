#include "documents/report/reporttext.h"

#include "toolkit/schriftmasse.h"

#include <cstddef>
#include <utility>

namespace velmaris {
namespace {

constexpr std::string_view dokumentanfang = R"({\rtf1\ansi{\fonttbl{\f0\froman Times New Roman;}})";
constexpr std::string_view dokumentende = "}";
constexpr std::string_view zeilenende = R"(\par )";
constexpr std::string_view tab = R"(\tab )";
constexpr std::string_view einzug = "     ";
constexpr std::string_view doppelter_einzug = "          ";
constexpr std::size_t kopflinie = 144;
constexpr std::size_t linienlaenge = 78;

/// Width of the column of the values, in pixels.
constexpr double spaltenbreite = 280;
constexpr double schriftgrad = 10;

std::string verbinden(std::initializer_list<std::string_view> teile) {
    std::string text;
    for (const std::string_view teil : teile)
        text += teil;
    return text;
}

}  // namespace

std::string rtf_maskieren(std::string_view text) {
    std::string maskiert;
    for (const char zeichen : text) {
        if (zeichen == '\\' || zeichen == '{' || zeichen == '}') maskiert += '\\';
        maskiert += zeichen;
    }
    return maskiert;
}

double reportbreite(std::string_view text) {
    return schriftbreite(text, {.name = "Times New Roman", .groesse = schriftgrad, .fett = false});
}

Reporttext::Reporttext(std::string_view sprache) : sprache_(sprache), report_text_(dokumentanfang) {}

std::string Reporttext::abschliessen() {
    report_text_ += dokumentende;
    return std::move(report_text_);
}

void Reporttext::zeile_anhaengen(std::string_view zeile) {
    report_text_.append(std::exchange(blockanfang_, {})).append(zeile).append(zeilenende);
}

void Reporttext::seitenumbruch() {
    report_text_ += R"(\page)";
}

void Reporttext::seitenkopf(const Wort& titel) {
    const std::string linie = R"(\fs10 )" + std::string(kopflinie, '_');
    zeile_anhaengen(R"(\qc\plain\b\i\fs60 VELM\plain\b\fs60 aris \plain )");
    zeile_anhaengen(linie);
    zeile_anhaengen(linie);
    zeile_anhaengen(R"(\fs20 )");
    zeile_anhaengen(verbinden({R"(\fs30\i )", titel.in(sprache_), R"(\plain )"}));
    zeile_anhaengen(R"(\ql )");
    erster_abschnitt_ = true;
}

void Reporttext::abschnitt(const Wort& name) {
    if (!std::exchange(erster_abschnitt_, false)) zeile_anhaengen("");
    zeile_anhaengen(verbinden({R"(\fs30\ul )", name.in(sprache_), R"(: \plain\fs20)"}));
}

void Reporttext::block(std::string_view tabstopps) {
    blockanfang_ = tabstopps;
}

void Reporttext::wertreihe(std::string_view abstand, const Wort& name, std::string_view wert) {
    zeile_anhaengen(verbinden({abstand, name.in(sprache_), ": ", tab, wert}));
}

void Reporttext::reihe(const Wort& name, std::string_view wert, std::string_view einheit) {
    wertreihe(einzug, name, verbinden({wert, einheit}));
}

void Reporttext::unterreihe(const Wort& name, std::string_view wert, std::string_view einheit) {
    wertreihe(doppelter_einzug, name, verbinden({wert, einheit}));
}

void Reporttext::textreihe(std::string_view abstand, const Wort& name, std::string_view wert) {
    const auto zeilen = schreibeZeile(wert, spaltenbreite, reportbreite);
    wertreihe(abstand, name, rtf_maskieren(zeilen.front()));
    for (std::size_t i = 1; i < zeilen.size(); ++i)
        zeile_anhaengen(verbinden({einzug, tab, rtf_maskieren(zeilen[i])}));
}

void Reporttext::textreihe(const Wort& name, std::string_view wert) {
    textreihe(einzug, name, wert);
}

void Reporttext::textunterreihe(const Wort& name, std::string_view wert) {
    textreihe(doppelter_einzug, name, wert);
}

void Reporttext::gruppe(const Wort& name) {
    zeile_anhaengen(verbinden({einzug, name.in(sprache_), ":"}));
}

void Reporttext::monatstabelle(const Projekt& p, std::string_view tabstopps, std::span<const Wort> kopf,
                               const std::function<Zellen(int)>& monat) {
    block(tabstopps);
    for (const Wort& zeile : kopf)
        zeile_anhaengen(zeile.in(sprache_));
    for (int m = 1; m <= monate; ++m) {
        std::string zeile = verbinden({einzug, p.Monat(m).Name});
        for (const std::string& zelle : monat(m))
            zeile.append(tab).append(zelle);
        zeile_anhaengen(zeile);
    }
}

void Reporttext::tabellenlinie() {
    zeile_anhaengen(std::string(einzug) + std::string(linienlaenge, '_'));
}

void Reporttext::jahreszeile(const Wort& name, const Zellen& zellen) {
    std::string zeile = verbinden({einzug, name.in(sprache_)});
    for (const std::string& zelle : zellen)
        zeile.append(tab).append(zelle);
    zeile_anhaengen(zeile);
}

}  // namespace velmaris
