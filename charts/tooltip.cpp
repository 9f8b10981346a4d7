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

Rechteck rahmen(const Platz& platz, std::string_view text) {
    double breite = 0;
    int zeilen = 0;
    while (!text.empty()) {
        const std::string_view zeile = text.substr(0, text.find('\r'));
        breite = std::max(breite, schriftbreite(zeile, {}));
        text.remove_prefix(std::min(zeile.size() + 1, text.size()));
        ++zeilen;
    }
    return {.links = platz.links,
            .oben = platz.oben,
            .breite = runden(breite + rand_breite),
            .hoehe = runden(zeilen * zeilenhoehe + rand_hoehe)};
}

}  // namespace

Platz tooltip_platz(Bildschirmpunkt zeiger, const Ebenenlage& lage) {
    const double links = zeiger.x - lage.haupt.links - lage.ebene.links - 5;
    const double oben = zeiger.y - lage.haupt.oben - lage.ebene.oben - 20;
    return {.links = std::max(links, 0.0), .oben = oben};
}

bool ist_bemalt(const Bildfeld& bild, double x, double y) {
    return bild.lies_punkt && bild.lies_punkt(x, y) != bild.lies_punkt(2, 2);
}

Tooltip::Tooltip(Plattform& plattform, std::string_view ebene)
    : plattform_(plattform), zeitgeber_(std::string(ebene) + ".Timer_Tip_ein") {
    Frame_ToolTip.zeige(false);
}

void Tooltip::bewegt(const std::optional<std::string>& text) {
    if (!text) {
        verberge();
        plattform_.zeitgeber_stoppen(zeitgeber_);
        return;
    }
    gemerkt_ = plattform_.zeiger();
    if (!Frame_ToolTip.sichtbar())
        plattform_.zeitgeber_starten(zeitgeber_, ruhezeit, [this] { zeitgeber_abgelaufen(); });
    Label_Tooltip.schreibe(*text);
}

void Tooltip::folge_monaten(Bildfeld& bild, std::function<std::string(int m)> text) {
    bild.maus_bewegt = [this, &bild, text = std::move(text)](double x, double y) {
        const std::optional<int> monat = ist_bemalt(bild, x, y) ? spaltenmonat(x) : std::nullopt;
        bewegt(monat ? std::optional(text(*monat)) : std::nullopt);
    };
}

void Tooltip::folge(Bildfeld& bild, std::function<std::string()> text) {
    bild.maus_bewegt = [this, &bild, text = std::move(text)](double x, double y) {
        bewegt(ist_bemalt(bild, x, y) ? std::optional(text()) : std::nullopt);
    };
}

void Tooltip::zeitgeber_abgelaufen() {
    const Bildschirmpunkt zeiger = plattform_.zeiger();
    if (zeiger != gemerkt_) return;
    const Platz platz = tooltip_platz(zeiger, ebenenlage ? ebenenlage() : Ebenenlage{});
    Frame_ToolTip.lege(rahmen(platz, Label_Tooltip.text()));
    Frame_ToolTip.zeige(true);
}

void Tooltip::verberge() {
    Frame_ToolTip.zeige(false);
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
