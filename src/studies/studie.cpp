#include "studies/studie.h"

#include "studies/abbruch.h"
#include "studies/fliessband.h"
#include "studies/fortschritt.h"
#include "studies/studienausgabe.h"
#include "studies/studienplan.h"
#include "toolkit/fehler.h"
#include "toolkit/konsolenplattform.h"
#include "toolkit/text.h"
#include "toolkit/textdatei.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <mutex>
#include <numeric>
#include <ostream>
#include <system_error>

namespace velmaris {
namespace {

constexpr std::size_t fenstergroesse = 4096;
constexpr std::uint64_t hoechste_teilzahl = 1'000'000;
constexpr std::uint64_t gemeldete_zeilen = 20;

/// What costs most to change comes first.
constexpr std::array<std::string_view, 7> sortierung{
    "Klimadatei", "orient", "Check_Dachgeschoss", "Option_Dachfirst", "hd", "l", "b"};

std::vector<std::size_t> sortierspalten(const std::vector<const Feldzeile*>& spalten) {
    std::vector<std::size_t> stellen;
    for (const std::string_view name : sortierung) {
        const auto treffer =
            std::ranges::find(spalten, name, [](const Feldzeile* feld) { return feld->name; });
        if (treffer != spalten.end()) stellen.push_back(static_cast<std::size_t>(treffer - spalten.begin()));
    }
    return stellen;
}

std::string kopfzeile(const Studienplan& plan, const std::vector<Ergebnis>& ergebnisse) {
    Csvtext text;
    text.zelle("Nr");
    for (const Feldzeile* feld : plan.spalten())
        text.zelle(feld->name);
    for (const Ergebnis& ergebnis : ergebnisse)
        text.zelle(ergebnis.name);
    text.zelle("Fehler");
    text.zeilenende();
    return text.text();
}

void ausgabe_pruefen(const Studienauftrag& auftrag, const Studienumgebung& umgebung) {
    for (const std::string& quelle : {auftrag.plan, umgebung.projekt}) {
        std::error_code fehler;
        if (!auftrag.ausgabe.empty() && !quelle.empty() &&
            std::filesystem::equivalent(pfad(auftrag.ausgabe), pfad(quelle), fehler))
            throw Dateifehler(auftrag.ausgabe, {"die Ausgabe ist dieselbe Datei wie " + quelle,
                                                "the output is the same file as " + quelle});
    }
}

/// A study on its way.
class Studienlauf {
  public:
    Studienlauf(const Studienauftrag& auftrag, const Studienumgebung& umgebung, Studienbild* bild)
        : auftrag_(auftrag),
          umgebung_(umgebung),
          bild_(bild),
          plan_(plan_anlegen(auftrag)),
          sortierspalten_(sortierspalten(plan_->spalten())),
          stationen_(umgebung.programmordner, umgebung.datenordner,
                     [this](const Zweisprachig& warnung) { melde(warnung.in(umgebung_.sprache)); }),
          grundlage_{.programmordner = umgebung.programmordner,
                     .sprache = umgebung.sprache,
                     .basis = projektposten(bytes_lesen(pfad(umgebung.projekt), hoechste_projektgroesse),
                                            umgebung.projekt),
                     .spalten = plan_->spalten(),
                     .ergebnisse = auftrag.ergebnisse,
                     .stationen = stationen_},
          ausgabe_(auftrag.ausgabe, umgebung.aus) {}

    bool rechnen() {
        const std::uint64_t davor = auftrag_.teil.davor(plan_->anzahl());
        offen_ = auftrag_.teil.danach(plan_->anzahl()) - davor;
        plan_->ueberspringen(davor);
        if (auftrag_.tabelle) beginnen();
        const Abbruchwache wache;
        Fortschritt balken(umgebung_.fortschritt ? &umgebung_.fehler : nullptr, umgebung_.sprache, offen_);
        balken_ = &balken;
        laufen({.lesen = [this] { return fenster_lesen(); },
                .ordnen = [this](Studienfenster& fenster) { ordnen(fenster); },
                .einrichten = [this] { return std::make_unique<Rechenplatz>(grundlage_); },
                .rechnen = [this](Rechenplatz& platz, Studienfenster& fenster, std::size_t von,
                                  std::size_t bis) { stueck_rechnen(platz, fenster, von, bis); },
                .schreiben = [this](const Studienfenster& fenster) { fenster_schreiben(fenster); }},
               auftrag_.kerne);
        balken.weiche();
        if (bild_ != nullptr) basis_rechnen();
        return abschliessen();
    }

  private:
    void beginnen() {
        const std::string kopf = kopfzeile(*plan_, auftrag_.ergebnisse);
        if (auftrag_.fortsetzen) {
            const Vorlauf vorlauf = ausgabe_.fortsetzen(kopf, *plan_, offen_);
            offen_ -= vorlauf.zeilen;
            fehlerhafte_ = vorlauf.fehlerhafte;
        } else {
            ausgabe_.beginnen(kopf);
        }
    }

    std::unique_ptr<Studienfenster> fenster_lesen() {
        if (gelesen_ == offen_ || Abbruchwache::abgebrochen()) return nullptr;
        auto fenster = std::make_unique<Studienfenster>();
        const auto groesse =
            static_cast<std::size_t>(std::min<std::uint64_t>(fenstergroesse, offen_ - gelesen_));
        fenster->zeilen.resize(groesse);
        for (Planzeile& zeile : fenster->zeilen) {
            if (!plan_->naechste(zeile))
                throw Dateifehler(plan_->name(),
                                  {"die Datei ist kürzer geworden", "the file has become shorter"});
        }
        gelesen_ += groesse;
        fenster->texte.resize(groesse);
        fenster->meldungen.resize(groesse);
        fenster->bildwerte.resize(bild_ == nullptr ? 0 : groesse);
        return fenster;
    }

    void ordnen(Studienfenster& fenster) const {
        fenster.reihenfolge.resize(fenster.zeilen.size());
        std::iota(fenster.reihenfolge.begin(), fenster.reihenfolge.end(), std::size_t{0});
        if (sortierspalten_.empty()) return;
        std::ranges::stable_sort(fenster.reihenfolge, [&](std::size_t a, std::size_t b) {
            for (const std::size_t spalte : sortierspalten_) {
                const int folge = fenster.zeilen[a].zellen[spalte].compare(fenster.zeilen[b].zellen[spalte]);
                if (folge != 0) return folge < 0;
            }
            return false;
        });
    }

    void stueck_rechnen(Rechenplatz& platz, Studienfenster& fenster, std::size_t von, std::size_t bis) const {
        for (std::size_t i = von; i < bis && !Abbruchwache::abgebrochen(); ++i)
            zeile_rechnen(platz, fenster, fenster.reihenfolge[i]);
    }

    void zeile_rechnen(Rechenplatz& platz, Studienfenster& fenster, std::size_t stelle) const {
        const Planzeile& zeile = fenster.zeilen[stelle];
        Csvtext text;
        try {
            platz.rechnen(zeile);
            const Rechenstand stand = platz.stand();
            for (const Ergebnis& ergebnis : auftrag_.ergebnisse)
                ergebnis_schreiben(text, ergebnis, stand);
            text.zelle(std::string_view());
            if (bild_ != nullptr) fenster.bildwerte[stelle] = bild_->lesen(platz);
        } catch (const Laufzeitfehler& fehler) {
            text = Csvtext();
            for (std::size_t i = 0; i < auftrag_.ergebnisse.size(); ++i)
                text.zelle(std::string_view());
            text.zelle(in_einer_zeile(fehler.text(umgebung_.sprache)));
            const Dateifehler ort(plan_->name(), fehler.grund(), plan_->zeile(zeile.nummer), fehler.feld());
            fenster.meldungen[stelle] = ort.text(umgebung_.sprache);
            if (bild_ != nullptr) fenster.bildwerte[stelle].grund = fehler.text(umgebung_.sprache);
        }
        text.zeilenende();
        fenster.texte[stelle] = zeilenanfang(zeile) + text.text();
    }

    /// A window that was stopped is written up to its first row that is missing; nothing follows it.
    void fenster_schreiben(const Studienfenster& fenster) {
        if (unvollstaendig_) return;
        const auto ende = std::ranges::find_if(fenster.texte, &std::string::empty);
        unvollstaendig_ = ende != fenster.texte.end();
        const std::string zeilen = std::accumulate(fenster.texte.begin(), ende, std::string());
        if (auftrag_.tabelle) ausgabe_.schreiben(zeilen);
        const auto anzahl = static_cast<std::size_t>(ende - fenster.texte.begin());
        for (std::size_t i = 0; i < anzahl; ++i) {
            if (fenster.meldungen[i].empty()) continue;
            if (++gemeldet_ <= gemeldete_zeilen) melde(fenster.meldungen[i]);
        }
        for (std::size_t i = 0; i < anzahl && bild_ != nullptr; ++i)
            bild_->nimm(fenster.zeilen[i], fenster.bildwerte[i]);
        geschrieben_ += anzahl;
        const std::scoped_lock sperre(meldeschloss_);
        balken_->zeige(geschrieben_);
    }

    /// A project that cannot be calculated itself may have rows that can.
    void basis_rechnen() {
        Studiengrundlage ohne_zeile = grundlage_;
        ohne_zeile.spalten.clear();
        Rechenplatz platz(ohne_zeile);
        try {
            platz.rechnen({});
            bild_->nimm_basis(platz);
        } catch (const Laufzeitfehler& fehler) {
            melde(Zweisprachig{"der Ausgangsfall fehlt im Bild: " + fehler.text("d"),
                               "the picture lacks the base: " + fehler.text("e")}
                      .in(umgebung_.sprache));
        }
    }

    /// From any thread: a station that is read may have something to say while rows are written.
    void melde(const std::string& text) {
        const std::scoped_lock sperre(meldeschloss_);
        if (balken_ != nullptr) balken_->weiche();
        umgebung_.fehler << in_einer_zeile(text) << '\n';
    }

    bool abschliessen() {
        fehlerhafte_ += gemeldet_;
        const std::string zahl = std::to_string(fehlerhafte_);
        if (fehlerhafte_ > 0)
            melde((auftrag_.tabelle
                       ? Zweisprachig{"fehlerhafte Zeilen: " + zahl + "; die letzte Spalte nennt den Grund",
                                      "faulty rows: " + zahl + "; the last column tells the reason"}
                       : Zweisprachig{"fehlerhafte Zeilen: " + zahl, "faulty rows: " + zahl})
                      .in(umgebung_.sprache));
        if (geschrieben_ == offen_) return fehlerhafte_ == 0;
        const std::string rest = std::to_string(offen_ - geschrieben_);
        melde((bild_ == nullptr
                   ? Zweisprachig{"abgebrochen; fehlende Zeilen: " + rest + " (--fortsetzen rechnet sie)",
                                  "stopped; missing rows: " + rest + " (--fortsetzen calculates them)"}
                   : Zweisprachig{"abgebrochen; fehlende Zeilen: " + rest + "; ein Bild gibt es nicht",
                                  "stopped; missing rows: " + rest + "; there is no picture"})
                  .in(umgebung_.sprache));
        return false;
    }

    const Studienauftrag& auftrag_;
    const Studienumgebung& umgebung_;
    Studienbild* bild_;
    std::unique_ptr<Studienplan> plan_;
    std::vector<std::size_t> sortierspalten_;
    Stationsvorrat stationen_;
    Studiengrundlage grundlage_;
    Studienausgabe ausgabe_;
    std::mutex meldeschloss_;
    Fortschritt* balken_ = nullptr;  ///< while rows are calculated
    std::uint64_t offen_ = 0;        ///< rows to calculate
    std::uint64_t gelesen_ = 0;
    std::uint64_t geschrieben_ = 0;
    std::uint64_t gemeldet_ = 0;  ///< faulty ones among them
    std::uint64_t fehlerhafte_ = 0;
    bool unvollstaendig_ = false;
};

}  // namespace

Studienteil teil_lesen(std::string_view text) {
    Studienteil teil{0, 0};
    const char* const ende = text.data() + text.size();
    const auto vorn = std::from_chars(text.data(), ende, teil.nummer);
    const bool geteilt = vorn.ec == std::errc() && vorn.ptr != ende && *vorn.ptr == '/';
    const auto hinten = geteilt ? std::from_chars(vorn.ptr + 1, ende, teil.teile) : vorn;
    if (!geteilt || hinten.ec != std::errc() || hinten.ptr != ende || teil.nummer < 1 ||
        teil.nummer > teil.teile || teil.teile > hoechste_teilzahl)
        throw Laufzeitfehler(
            {"erwartet wird K/N mit 1 <= K <= N <= 1000000", "K/N with 1 <= K <= N <= 1000000 is expected"});
    return teil;
}

std::unique_ptr<Studienplan> plan_anlegen(const Studienauftrag& auftrag) {
    if (!auftrag.plan.empty()) return std::make_unique<Dateiplan>(auftrag.plan);
    return std::make_unique<Gitterplan>(auftrag.variiert);
}

bool studie_rechnen(const Studienauftrag& auftrag, const Studienumgebung& umgebung, Studienbild* bild) {
    ausgabe_pruefen(auftrag, umgebung);
    return Studienlauf(auftrag, umgebung, bild).rechnen();
}

}  // namespace velmaris
