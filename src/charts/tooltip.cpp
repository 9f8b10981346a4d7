#include "charts/tooltip.h"

#include "charts/schema.h"
#include "toolkit/schriftmasse.h"
#include "toolkit/zahlen.h"

#include <algorithm>
#include <utility>

namespace velmaris {
namespace {

constexpr int ruhezeit = 1000;  ///< milliseconds
constexpr double zeilenhoehe = 12.5;
constexpr double rand_hoehe = 14;  ///< of the frame around the label, both sides together
constexpr double rand_breite = 16;

/// The frame of a text in the letters of the charts.
Groesse textrahmen(std::string_view text) {
    double breite = 0;
    int zeilen = 0;
    while (!text.empty()) {
        const std::string_view zeile = text.substr(0, text.find('\r'));
        breite = std::max(breite, schriftbreite(zeile, {}));
        text.remove_prefix(std::min(zeile.size() + 1, text.size()));
        ++zeilen;
    }
    return {.breite = runden(breite + rand_breite), .hoehe = runden(zeilen * zeilenhoehe + rand_hoehe)};
}

/// The pointer on the plane.
Platz auf_der_ebene(Bildschirmpunkt zeiger, const Ebenenlage& lage) {
    return {.links = zeiger.x - lage.haupt.links - lage.ebene.links,
            .oben = zeiger.y - lage.haupt.oben - lage.ebene.oben};
}

}  // namespace

Platz platz_am_zeiger(Bildschirmpunkt zeiger, const Ebenenlage& lage, const Groesse& /*rahmen*/) {
    const Platz ort = auf_der_ebene(zeiger, lage);
    return {.links = std::max(ort.links - 5, 0.0), .oben = ort.oben - 20};
}

Platz platz_neben_dem_zeiger(Bildschirmpunkt zeiger, const Ebenenlage& lage, const Groesse& rahmen) {
    const Platz ort = auf_der_ebene(zeiger, lage);
    const double oben = ort.oben - 20;
    const bool unter_der_ebene = oben + rahmen.hoehe > lage.hoehe;
    return {.links = std::max(ort.links - rahmen.breite - 5, 0.0),
            .oben = unter_der_ebene ? ort.oben - 50 - rahmen.hoehe : oben};
}

bool ist_bemalt(const Bildfeld& bild, double x, double y) {
    return bild.lies_punkt && bild.lies_punkt(x, y) != bild.lies_punkt(2, 2);
}

Tooltip::Tooltip(Plattform& plattform, std::string_view ebene, const Tooltipart& art)
    : plattform_(plattform), zeitgeber_(std::string(ebene) + ".Timer_Tip_ein"), art_(art) {
    Frame_ToolTip.zeige(false);
}

void Tooltip::Label_Tooltip_MouseMove() {
    if (!art_.verbirgt_bei_druck) Frame_ToolTip.zeige(false);
}

void Tooltip::Label_Tooltip_MouseDown() {
    if (art_.verbirgt_bei_druck) Frame_ToolTip.zeige(false);
}

void Tooltip::verlassen() {
    Frame_ToolTip.zeige(false);
    plattform_.zeitgeber_stoppen(zeitgeber_);
}

void Tooltip::erneuern() {
    if (!Frame_ToolTip.sichtbar() || !zuletzt_) return;
    if (const std::optional<std::string> text = zuletzt_()) {
        Label_Tooltip.schreibe(*text);
        aufstellen();
    } else {
        verlassen();
    }
}

void Tooltip::folge(Bildfeld& bild, Text text) {
    bild.maus_bewegt = [this, text = std::move(text)](double x, double y) {
        zuletzt_ = [text, x, y] { return text(x, y); };
        bewegt(zuletzt_());
    };
}

void Tooltip::folge_monaten(Bildfeld& bild, std::function<std::string(int m)> text) {
    folge(bild, [&bild, text = std::move(text)](double x, double y) -> std::optional<std::string> {
        const std::optional<int> monat = ist_bemalt(bild, x, y) ? spaltenmonat(x) : std::nullopt;
        if (!monat) return std::nullopt;
        return text(*monat);
    });
}

void Tooltip::folge_jahr(Bildfeld& bild, std::function<std::string()> text) {
    folge(bild, [&bild, text = std::move(text)](double x, double y) -> std::optional<std::string> {
        if (!ist_bemalt(bild, x, y)) return std::nullopt;
        return text();
    });
}

void Tooltip::bewegt(const std::optional<std::string>& text) {
    if (!text) {
        verlassen();
        return;
    }
    gemerkt_ = plattform_.zeiger();
    Label_Tooltip.schreibe(*text);
    if (Frame_ToolTip.sichtbar()) {
        aufstellen();
    } else {
        plattform_.zeitgeber_starten(zeitgeber_, ruhezeit, [this] { zeitgeber_abgelaufen(); });
    }
}

void Tooltip::zeitgeber_abgelaufen() {
    if (plattform_.zeiger() != gemerkt_) return;
    aufgestellt_ = gemerkt_;
    aufstellen();
    Frame_ToolTip.zeige(true);
}

/// Gives the frame the size of its text, at the place where the pointer had come to rest.
void Tooltip::aufstellen() {
    const Groesse bedarf = platzbedarf ? platzbedarf() : Groesse{};
    Groesse rahmen = textrahmen(Label_Tooltip.text());
    if (art_.hoehe > 0) rahmen.hoehe = art_.hoehe;
    rahmen = {std::max(rahmen.breite, bedarf.breite), std::max(rahmen.hoehe, bedarf.hoehe)};
    const Platz platz = art_.platz(aufgestellt_, ebenenlage ? ebenenlage() : Ebenenlage{}, rahmen);
    Frame_ToolTip.lege(
        {.links = platz.links, .oben = platz.oben, .breite = rahmen.breite, .hoehe = rahmen.hoehe});
}

std::string tippmonat(const Projekt& p, int m) {
    return p.texte.txt_Monat + ": " + p.Monat(m).Name;
}

std::string kwh_je_monat(const Projekt& p) {
    return " kWh / (m² " + p.texte.txt_Monat + ")";
}

std::string tippzeile(const Anzeige& name, double wert, std::string_view einheit) {
    return "\r" + name.text() + ": " + muster(wert, 1) + std::string(einheit);
}

}  // namespace velmaris
