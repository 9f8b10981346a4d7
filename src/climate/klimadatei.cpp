#include "climate/klimadatei.h"

#include "climate/dachraum.h"
#include "climate/klimapruefung.h"
#include "climate/sonne.h"
#include "climate/strahlung.h"
#include "project/klimaordner.h"
#include "toolkit/fehler.h"
#include "toolkit/text.h"
#include "toolkit/textdatei.h"
#include "toolkit/zahlen.h"

#include <algorithm>

namespace velmaris {
namespace {

/// Direct radiation at normal incidence above this value, W/m2, is taken for a fault of the low sun.
constexpr float hoechste_direktstrahlung = 1370;

constexpr int zeilen_des_kopfes = 4;
constexpr int erste_datenzeile = 7;
constexpr std::size_t anfang_der_datei = 1024;

double kopfzahl(std::string_view zeile) {
    return zahl_lesen(spalten(zeile, 15, 24));
}

std::string stationsname(std::string_view bytes) {
    return aus_windows1252(Listenleser(bytes).naechster().value_or(std::string_view()));
}

int zeilenzahl(std::string_view bytes) {
    const auto enden = std::count(bytes.begin(), bytes.end(), '\n');
    const bool offene_zeile = !bytes.empty() && bytes.back() != '\n';
    return static_cast<int>(enden) + (offene_zeile ? 1 : 0);
}

[[noreturn]] void zu_kurz(const std::string& datei, int zeilen, int noetig) {
    const std::string ist = std::to_string(zeilen);
    const std::string soll = std::to_string(noetig);
    throw Dateifehler(datei, {"die Klimadatei endet nach " + ist + " von " + soll + " Zeilen",
                              "the climate file ends after " + ist + " of " + soll + " lines"});
}

bool hat_kopf(std::string_view bytes) {
    return std::count(bytes.begin(), bytes.end(), '\n') >= zeilen_des_kopfes;
}

void kopf_pruefen(std::string_view bytes, const std::string& datei) {
    if (bytes.size() < hoechste_kopfgroesse || hat_kopf(bytes.substr(0, hoechste_kopfgroesse))) return;
    throw Dateifehler(datei, {"der Kopf der Klimadatei ist größer als 64 KB",
                              "the head of the climate file is larger than 64 KB"});
}

void zeilen_pruefen(std::string_view bytes, const std::string& datei) {
    kopf_pruefen(bytes, datei);
    if (const int zeilen = zeilenzahl(bytes); zeilen < zeilen_der_klimadatei)
        zu_kurz(datei, zeilen, zeilen_der_klimadatei);
}

Messwerte messwerte(std::string_view zeile) {
    return {zahl_lesen(spalten(zeile, 6, 10)), zahl_lesen(spalten(zeile, 11, 15)),
            zahl_lesen(spalten(zeile, 16, 20))};
}

/// The sun of one day over a station, for the direct radiation at normal incidence.
class Tagessonne {
  public:
    Tagessonne(const Standort& ort, int n) : tag_(sonnentag(ort, n)), bahn_(ort, n) {}

    /// Direct normal radiation of hour h from that on the horizontal, W/m2.
    [[nodiscard]] float direkt(int h, double horizontal) const {
        const float direkt = f32(bahn_.direktfaktor(probezeit(tag_, h)) * horizontal);
        return direkt > hoechste_direktstrahlung ? 0.0F : direkt;
    }

  private:
    Sonnentag tag_;
    Zenitbahn bahn_;
};

Wetterstunde wetterstunde(const Messwerte& werte, const Tagessonne& sonne, int h) {
    const double horizontal = std::max(0.0, werte.G_Gh - werte.G_Dh);
    const float direkt = horizontal > 0 ? sonne.direkt(h, horizontal) : 0.0F;
    return {f32(werte.Ta), direkt, f32(werte.G_Dh)};
}

/// The rows of a station file in the order of the year: the first one in the file is the last hour.
class Datenzeilen {
  public:
    explicit Datenzeilen(Zeilenleser& leser) : leser_(leser), gemerkt_(naechste_der_datei()) {}

    [[nodiscard]] std::string_view naechste() {
        return ++gelesen_ < stunden_im_jahr ? naechste_der_datei() : gemerkt_;
    }

    /// Line of the file (from 1) of the row taken last.
    [[nodiscard]] int zeile() const { return erste_datenzeile + (gelesen_ < stunden_im_jahr ? gelesen_ : 0); }

  private:
    std::string_view naechste_der_datei() { return leser_.naechste().value_or(std::string_view()); }

    Zeilenleser& leser_;
    std::string_view gemerkt_;
    int gelesen_ = 0;
};

void wetter_lesen(Projekt& p, Zeilenleser& leser, Klimapruefung& pruefung) {
    const Standort ort{p.Breite, p.Laengenkorrektur};
    Datenzeilen zeilen(leser);
    fuer_jeden_tag([&](int m, int d, int n) {
        const Tagessonne sonne(ort, n);
        for (int h = 1; h <= stunden; ++h) {
            const std::string_view zeile = zeilen.naechste();
            const Messwerte werte = messwerte(zeile);
            pruefung.datenzeile(zeilen.zeile(), zeile, werte);
            p.Wetter(m, d, h) = wetterstunde(werte, sonne, h);
        }
    });
}

void monatslaengen_setzen(Projekt& p) {
    for (int m = 1; m <= monate; ++m)
        p.Monat(m).Tage = static_cast<std::int16_t>(tage_im_monat[static_cast<std::size_t>(m)]);
}

std::string langer_kopf(const std::filesystem::path& datei) {
    std::string bytes = anfang_lesen(datei, hoechste_kopfgroesse);
    kopf_pruefen(bytes, pfadtext(datei));
    return bytes;
}

}  // namespace

Stationskopf stationskopf_lesen(const std::filesystem::path& datei) {
    std::string bytes = anfang_lesen(datei, anfang_der_datei);
    if (bytes.size() == anfang_der_datei && !hat_kopf(bytes)) bytes = langer_kopf(datei);
    Listenleser erste(bytes);
    const std::string_view name = erste.naechster().value_or(std::string_view());
    Zeilenleser leser(erste.rest());
    Stationskopf kopf{aus_windows1252(name), 0, 0, 0};
    for (double* ziel : {&kopf.breite, &kopf.laenge, &kopf.zeitzone}) {
        const auto zeile = leser.naechste();
        if (!zeile) zu_kurz(pfadtext(datei), zeilenzahl(bytes), zeilen_des_kopfes);
        *ziel = kopfzahl(*zeile);
    }
    return kopf;
}

std::optional<Zweisprachig> klimadaten_uebernehmen(Projekt& p, std::string_view bytes,
                                                   const std::string& datei) {
    monatslaengen_setzen(p);
    zeilen_pruefen(bytes, datei);
    Zeilenleser leser(bytes);
    Klimapruefung pruefung;
    const auto zeile = [&leser] { return leser.naechste().value_or(std::string_view()); };
    const auto zahl = [&] {
        const std::string_view text = zeile();
        pruefung.kopfzeile(leser.zeile(), text);
        return kopfzahl(text);
    };
    p.Stationsname = stationsname(zeile());
    p.Breite = f32(zahl() * grad_in_bogen);
    const double laenge = zahl();
    p.Laengenkorrektur = f32(-zahl() * 15 + laenge);
    for (int i = 0; i < 2; ++i)
        static_cast<void>(zeile());
    wetter_lesen(p, leser, pruefung);
    station_uebernehmen(p);
    dachraum_fuellen(p);
    monatsstrahlung_berechnen(p);
    return pruefung.warnung(datei);
}

std::optional<Zweisprachig> klimadatei_lesen(Projekt& p) {
    monatslaengen_setzen(p);
    const std::filesystem::path datei = Klimaordner(p).datei(p.Klimadatei);
    return klimadaten_uebernehmen(p, bytes_lesen(datei, hoechste_stationsgroesse), pfadtext(datei));
}

void klimadatei_pruefen(const Projekt& p, std::string_view name) {
    const std::filesystem::path datei = Klimaordner(p).datei(name);
    zeilen_pruefen(bytes_lesen(datei, hoechste_stationsgroesse), pfadtext(datei));
}

}  // namespace velmaris
