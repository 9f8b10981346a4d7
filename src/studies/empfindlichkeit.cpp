#include "studies/empfindlichkeit.h"

#include "project/projektdatei.h"
#include "studies/rechenplatz.h"
#include "toolkit/csv.h"
#include "toolkit/fehler.h"
#include "toolkit/text.h"
#include "toolkit/zahlen.h"

#include <algorithm>
#include <cmath>
#include <functional>
#include <memory>

namespace velmaris {
namespace {

Messwerte messen(const Projekt& p) {
    Messwerte werte{};
    for (std::size_t i = 0; i < messgroessen; ++i)
        werte.at(i) = messgroesse(i).wert(p);
    return werte;
}

/// All lines of a project file as the columns of a plan, and the project as one of its rows.
std::vector<const Feldzeile*> alle_spalten() {
    std::vector<const Feldzeile*> spalten;
    for (int zeile = 2; zeile <= letzte_projektzeile; ++zeile)
        spalten.push_back(&feld_der_zeile(zeile));
    return spalten;
}

Planzeile gespeichert(const Projekt& p) {
    const Projektposten posten = projektposten(projekt_schreiben(p), p.Datei);
    Planzeile zeile;
    for (int i = 2; i <= letzte_projektzeile; ++i)
        zeile.zellen.push_back(posten(i));
    return zeile;
}

std::optional<double> gezeigte_zahl(const Eingabegroesse& groesse, const Projekt& p) {
    if (groesse.regler == nullptr) return std::nullopt;
    const double zehner = std::pow(10.0, groesse.regler->stellen);
    return runden(reglerwert(*groesse.regler, p) * zehner) / zehner;
}

/// The steps of all inputs, one after the other, on one record.
class Schrittfolge {
  public:
    explicit Schrittfolge(const Projekt& basis)
        : stationen_(basis.AppPfad, basis.Datenordner, [](const Zweisprachig&) {}),
          grundlage_{.programmordner = basis.AppPfad,
                     .sprache = basis.Sprache,
                     .basis = {},
                     .spalten = alle_spalten(),
                     .ergebnisse = {},
                     .stationen = stationen_},
          platz_(std::make_unique<Rechenplatz>(grundlage_)),
          basis_(gespeichert(basis)) {}

    Empfindlichkeit laufen() {
        platz_->rechnen(basis_);
        const Projekt& p = platz_->stand().p;
        gleiche_fenster_ = p.Option1 == 0;
        for (const Eingabegroesse& groesse : eingabegroessen())
            texte_.push_back(groesse.wert(platz_->ebenen()));
        Empfindlichkeit e{.projekt = {},
                          .station = p.Stationsname,
                          .sprache = p.Sprache,
                          .basis = messen(p),
                          .eingaben = {}};
        for (const Eingabegroesse& groesse : eingabegroessen()) {
            if (hat_schritte(groesse) && !entfaellt(groesse)) e.eingaben.push_back(eingabe(groesse));
        }
        return e;
    }

  private:
    /// Windows that are the same have their properties once.
    [[nodiscard]] bool entfaellt(const Eingabegroesse& groesse) const {
        return gleiche_fenster_ && groesse.folgt_dem_sueden();
    }

    [[nodiscard]] std::string name(const Eingabegroesse& groesse) const {
        return groesse.bezeichnung(grundlage_.sprache, gleiche_fenster_);
    }

    Eingabewirkung eingabe(const Eingabegroesse& groesse) {
        platz_->rechnen(basis_);
        Eingabewirkung eine{.name = name(groesse),
                            .einheit = groesse.einheit(),
                            .von = groesse.wert(platz_->ebenen()),
                            .zahl = gezeigte_zahl(groesse, platz_->stand().p),
                            .schritte = {}};
        const Schritt runter = schritt(groesse, Richtung::runter);
        const Schritt rauf = schritt(groesse, Richtung::rauf);
        if (runter.nach.empty() && rauf.nach.empty() && runter.hinweis == rauf.hinweis) {
            eine.schritte.push_back(runter);
            eine.schritte.front().richtung.reset();
            return eine;
        }
        for (const Schritt& einer : {runter, rauf}) {
            if (einer.werte || !einer.hinweis.empty()) eine.schritte.push_back(einer);
        }
        return eine;
    }

    Schritt schritt(const Eingabegroesse& groesse, Richtung richtung) {
        platz_->rechnen(basis_);
        const Schrittausgang ausgang = schritt_tun(platz_->ebenen(), groesse, richtung);
        Schritt einer{.richtung = richtung,
                      .nach = {},
                      .zahl = {},
                      .werte = {},
                      .hinweis = std::string(ausgang.grund.in(grundlage_.sprache))};
        if (!ausgang.getan) return einer;
        einer.nach = groesse.wert(platz_->ebenen());
        einer.zahl = gezeigte_zahl(groesse, platz_->stand().p);
        try {
            platz_->rechnen(gespeichert(platz_->stand().p));
            einer.werte = messen(platz_->stand().p);
            dazu(einer.hinweis, weitere_aenderungen(groesse));
        } catch (const Laufzeitfehler& fehler) {
            dazu(einer.hinweis, in_einer_zeile(fehler.text(grundlage_.sprache)));
        }
        return einer;
    }

    static void dazu(std::string& hinweis, const std::string& text) {
        if (!hinweis.empty() && !text.empty()) hinweis += "; ";
        hinweis += text;
    }

    /// The other inputs that a step has moved.
    std::string weitere_aenderungen(const Eingabegroesse& schritt) {
        std::vector<Eingabeaenderung> aenderungen;
        std::size_t i = 0;
        for (const Eingabegroesse& groesse : eingabegroessen()) {
            const std::string& vorher = texte_[i++];
            const std::string nachher = groesse.wert(platz_->ebenen());
            if (&groesse == &schritt || entfaellt(groesse) || nachher == vorher) continue;
            aenderungen.push_back({name(groesse), vorher, nachher, groesse.einheit()});
        }
        if (aenderungen.empty()) return {};
        return std::string(Wort{"ändert auch ", "also changes "}.in(grundlage_.sprache)) +
               aufzaehlung(aenderungen, grundlage_.sprache);
    }

    Stationsvorrat stationen_;
    Studiengrundlage grundlage_;
    std::unique_ptr<Rechenplatz> platz_;
    Planzeile basis_;
    bool gleiche_fenster_ = false;
    std::vector<std::string> texte_;  ///< of all inputs in the base
};

void kopf_schreiben(Csvtext& tabelle, std::string_view sprache) {
    for (const Wort& kopf : {Wort{"Eingabe", "input"}, Wort{"Einheit", "unit"}, Wort{"Schritt", "step"},
                             Wort{"von", "from"}, Wort{"nach", "to"}})
        tabelle.zelle(kopf.in(sprache));
    for (std::size_t i = 0; i < messgroessen; ++i)
        tabelle.zelle(std::string(messgroesse(i).name.in(sprache)) + " " + messgroesse(i).einheit);
    for (std::size_t i = 0; i < messgroessen; ++i)
        tabelle.zelle(std::string(Wort{"Differenz ", "difference "}.in(sprache))
                          .append(messgroesse(i).name.in(sprache)));
    tabelle.zelle(Wort{"Hinweis", "note"}.in(sprache));
    tabelle.zeilenende();
}

void zahl_oder_text(Csvtext& tabelle, const std::optional<double>& zahl, const std::string& text) {
    if (zahl && !text.empty()) {
        tabelle.zelle(f32(*zahl));
    } else {
        tabelle.zelle(text);
    }
}

void werte_schreiben(Csvtext& tabelle, const std::function<std::optional<double>(std::size_t)>& wert) {
    for (std::size_t i = 0; i < messgroessen; ++i) {
        if (const auto zahl = wert(i)) {
            tabelle.zelle(f32(*zahl));
        } else {
            tabelle.zelle("");
        }
    }
}

void schritt_schreiben(Csvtext& tabelle, const Empfindlichkeit& e, const Eingabewirkung& eingabe,
                       const Schritt& schritt) {
    tabelle.zelle(eingabe.name);
    tabelle.zelle(eingabe.einheit);
    tabelle.zelle(richtungswort(schritt, e.sprache));
    zahl_oder_text(tabelle, eingabe.zahl, eingabe.von);
    zahl_oder_text(tabelle, schritt.zahl, schritt.nach);
    werte_schreiben(tabelle, [&](std::size_t i) {
        return schritt.werte ? std::optional(schritt.werte->at(i)) : std::nullopt;
    });
    werte_schreiben(tabelle, [&](std::size_t i) { return e.wirkung(schritt, i); });
    tabelle.zelle(schritt.hinweis);
    tabelle.zeilenende();
}

}  // namespace

const Ergebniszeile& messgroesse(std::size_t i) {
    static const std::array<const Ergebniszeile*, messgroessen> alle{
        &ergebnis_heizen, &ergebnis_kuehlen, &ergebnis_primaer, &ergebnis_primaer_heizen,
        &ergebnis_primaer_kuehlen};
    return *alle.at(i);
}

std::string_view richtungswort(const Schritt& schritt, std::string_view sprache) {
    if (!schritt.richtung) return {};
    return (schritt.richtung == Richtung::rauf ? Wort{"nach oben", "up"} : Wort{"nach unten", "down"})
        .in(sprache);
}

std::optional<double> Empfindlichkeit::wirkung(const Schritt& schritt, std::size_t groesse) const {
    if (!schritt.werte) return std::nullopt;
    return schritt.werte->at(groesse) - basis.at(groesse);
}

double Empfindlichkeit::groesste_wirkung(const Eingabewirkung& eingabe, std::size_t groesse) const {
    double groesste = 0;
    for (const Schritt& schritt : eingabe.schritte)
        groesste = std::max(groesste, std::fabs(wirkung(schritt, groesse).value_or(0)));
    return groesste;
}

std::vector<const Eingabewirkung*> Empfindlichkeit::nach_wirkung(std::size_t groesse) const {
    std::vector<const Eingabewirkung*> liste;
    for (const Eingabewirkung& eingabe : eingaben) {
        if (groesste_wirkung(eingabe, groesse) >= kleinste_wirkung) liste.push_back(&eingabe);
    }
    const double stufen = std::pow(10.0, wirkungsstellen);
    std::ranges::stable_sort(liste, std::greater{}, [&](const Eingabewirkung* eingabe) {
        return runden(groesste_wirkung(*eingabe, groesse) * stufen);
    });
    return liste;
}

std::vector<const Eingabewirkung*> Empfindlichkeit::ohne_wirkung(std::size_t groesse) const {
    std::vector<const Eingabewirkung*> liste;
    for (const Eingabewirkung& eingabe : eingaben) {
        const bool gerechnet =
            std::ranges::any_of(eingabe.schritte, [](const Schritt& s) { return s.werte.has_value(); });
        if (gerechnet && groesste_wirkung(eingabe, groesse) < kleinste_wirkung) liste.push_back(&eingabe);
    }
    return liste;
}

Empfindlichkeit empfindlichkeit(const Projekt& basis) {
    Empfindlichkeit e = Schrittfolge(basis).laufen();
    e.projekt = pfadtext(pfad(basis.Datei).stem());
    return e;
}

std::string empfindlichkeit_csv(const Empfindlichkeit& e) {
    Csvtext tabelle;
    kopf_schreiben(tabelle, e.sprache);
    for (const std::string_view zelle : {Wort{"Ausgangsfall", "base"}.in(e.sprache), std::string_view(),
                                         std::string_view(), std::string_view(), std::string_view()})
        tabelle.zelle(zelle);
    werte_schreiben(tabelle, [&](std::size_t i) { return std::optional(e.basis.at(i)); });
    werte_schreiben(tabelle, [](std::size_t) { return std::optional(0.0); });
    tabelle.zelle("");
    tabelle.zeilenende();
    for (const Eingabewirkung& eingabe : e.eingaben) {
        for (const Schritt& schritt : eingabe.schritte)
            schritt_schreiben(tabelle, e, eingabe, schritt);
    }
    return tabelle.text();
}

}  // namespace velmaris
