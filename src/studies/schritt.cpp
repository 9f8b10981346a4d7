#include "studies/schritt.h"

#include <algorithm>
#include <cstdint>
#include <optional>
#include <utility>
#include <variant>
#include <vector>

namespace velmaris {
namespace {

/// A field of the energy plane, the button that opens its list, and the entry of the record, from 1.
struct Energiefeld {
    Knopf* knopf;
    std::int16_t Projekt::*stelle;
};

/// The control that sets an input.
using Regler = std::variant<Eingabefeld*, Pruefeld*, Optionsgruppe*, Auswahlliste*, Energiefeld>;

/// A control by its input: a quantity of the record.
using Benannt = std::pair<std::string_view, Regler>;

constexpr std::string_view station = "Klimadatei";

namespace gruende {
constexpr Wort unteres_ende{"am unteren Ende des Bereichs", "at the lower end of the range"};
constexpr Wort oberes_ende{"am oberen Ende des Bereichs", "at the upper end of the range"};
constexpr Wort erster{"erster Eintrag der Liste", "first entry of the list"};
constexpr Wort letzter{"letzter Eintrag der Liste", "last entry of the list"};
constexpr Wort ohne_wahl{"keine andere Wahl bei diesem Heizungssystem",
                         "no other choice with this heating system"};
constexpr Wort offen{"kein Eintrag der Liste gewählt", "no entry of the list is chosen"};
constexpr Wort von_hand{"die Werte sind von Hand eingestellt, kein Typ ist gewählt",
                        "the values were set by hand, no type is chosen"};
constexpr Wort vor_grenze{"gibt vor der Überwärmungsgrenze nach", "gives way to the overheating limit"};
constexpr Wort vor_soll{"gibt vor der Soll-Raumlufttemperatur nach",
                        "gives way to the indoor set temperature"};
constexpr Wort nachbar{"gesperrt: die Wand grenzt an einen beheizten Nachbarn",
                       "locked: the wall adjoins a heated neighbour"};
constexpr Wort aussenluft{"gesperrt: über einem beheizten Dachgeschoß liegt immer die Außenluft",
                          "locked: above a heated attic there is always the outside air"};
constexpr Wort ohne_dach{"gesperrt: nur mit beheiztem Dachgeschoß", "locked: only with a heated attic"};
}  // namespace gruende

std::vector<Benannt> schieber(Eingabeebenen& e) {
    E_Geometrie& g = e.e_geometrie;
    E_Daemmung& d = e.e_daemmung;
    E_Gebaeude& b = e.e_gebaeude;
    std::vector<Eingabefeld*> alle{&g.l_sb,
                                   &g.b_sb,
                                   &g.h_sb,
                                   &g.hd_sb,
                                   &g.ag_sb,
                                   &g.orient_sb,
                                   &d.kwn_sb,
                                   &d.kws_sb,
                                   &d.kwo_sb,
                                   &d.kww_sb,
                                   &d.kd_sb,
                                   &d.kk_sb,
                                   &d.ft_sb,
                                   &d.kt_sb,
                                   &b.Troom_sb,
                                   &d.absfaktor_sb,
                                   &b.Tueber_sb,
                                   &b.intg_sb,
                                   &b.lw_sb,
                                   &b.WRG_Sb,
                                   &b.infiltration_sb,
                                   &b.Klimaeffizienz_sb};
    E_Fenster& f = e.e_fenster;
    for (Fensterseite* seite : {&f.nord, &f.sued, &f.ost, &f.west}) {
        for (Fensterschieber* eines :
             {&seite->f, &seite->gf, &seite->kfg, &seite->kfr, &seite->ra, &seite->versch})
            alle.push_back(&eines->sb);
    }
    std::vector<Benannt> benannte;
    for (Eingabefeld* feld : alle) {
        const std::string_view name = feld->name;
        benannte.emplace_back(name.substr(0, name.size() - 3), feld);
    }
    return benannte;
}

std::vector<Benannt> wahlen(Eingabeebenen& e) {
    E_Fenster& f = e.e_fenster;
    E_Gebaeude& b = e.e_gebaeude;
    return {{"Check_Dachgeschoss", &e.e_geometrie.Check_Dachgeschoss},
            {"Option_Dachfirst", &e.e_geometrie.Option_Dachfirst},
            {"fenstern_typ", &f.nord.typ},
            {"fensters_typ", &f.sued.typ},
            {"fenstero_typ", &f.ost.typ},
            {"fensterw_typ", &f.west.typ},
            {"Option1", &f.Option1},
            {"Dachraum_typ", &e.e_daemmung.ogd},
            {"ugd_typ", &e.e_daemmung.ugd},
            {"cbk_hDach", &e.e_daemmung.cbk_hDach},
            {"Waermebruecken", &e.e_daemmung.Waermebruecken_opt},
            {"awn", &b.awn_cb},
            {"aws", &b.aws_cb},
            {"awo", &b.awo_cb},
            {"aww", &b.aww_cb},
            {"Aussenwandart", &b.Aussenwandart},
            {"Innenwandart", &b.Innenwandart},
            {"Heizsystem", Energiefeld{&e.e_energie.Command1, &Projekt::Heizsystem}},
            {"Uebergabe", Energiefeld{&e.e_energie.Command2, &Projekt::Uebergabe}},
            {"Energietraeger", Energiefeld{&e.e_energie.Command3, &Projekt::Energietraeger}}};
}

Regler regler(Eingabeebenen& ebenen, const Eingabegroesse& groesse) {
    const std::vector<Benannt> alle = groesse.regler != nullptr ? schieber(ebenen) : wahlen(ebenen);
    return std::ranges::find(alle, groesse.groesse, &Benannt::first)->second;
}

/// A user at the planes: the scroll field that he moves has the focus, so that the windows note that a value
/// was moved by hand.
class Hand {
  public:
    Hand(E_Fenster& fenster, const Eingabefeld& feld)
        : fenster_(fenster), sichtbar_(fenster.ebene.sichtbar()) {
        fenster_.ebene.zeige(true);
        fenster_.fokusstellung = [&feld] { return feld.position(); };
    }
    Hand(const Hand&) = delete;
    Hand& operator=(const Hand&) = delete;
    ~Hand() {
        fenster_.fokusstellung = nullptr;
        fenster_.ebene.zeige(sichtbar_);
    }

  private:
    E_Fenster& fenster_;
    bool sichtbar_;
};

/// A step on the controls of one record.
class Schritttat {
  public:
    Schritttat(Eingabeebenen& ebenen, const Eingabegroesse& groesse, Richtung richtung)
        : e_(ebenen), groesse_(groesse), rauf_(richtung == Richtung::rauf) {}

    Schrittausgang operator()(Eingabefeld* feld) const {
        if (!feld->sichtbar() || !feld->aktiv()) return gesperrt();
        const bool zum_maximum = rauf_ == (groesse_.regler->teiler > 0);
        const int vorher = feld->position();
        const int weite = zum_maximum ? feld->kleiner_schritt() : -feld->kleiner_schritt();
        const int ziel = std::clamp(vorher + weite, feld->minimum(), feld->maximum());
        if (ziel == vorher) return {false, rauf_ ? gruende::oberes_ende : gruende::unteres_ende};
        const Hand hand(e_.e_fenster, *feld);
        feld->bewege(ziel);
        return {feld->position() != vorher, feld->position() == ziel ? Wort{} : nachgegeben()};
    }

    Schrittausgang operator()(Pruefeld* feld) const {
        const bool gesetzt = feld->wert() != 0;
        if (gesetzt == rauf_) return {};
        feld->setze(rauf_ ? 1 : 0);
        return {true};
    }

    Schrittausgang operator()(Optionsgruppe* gruppe) const {
        if (!gruppe->aktiv()) return gesperrt();
        const std::optional<int> option = gruppe->gesetzt();
        const auto weiter = nachbar(option.value_or(gruppe->erste() - 1), gruppe->erste(),
                                    gruppe->erste() + gruppe->anzahl() - 1);
        if (!weiter) return am_rand(option.has_value());
        gruppe->setze(*weiter);
        return {true};
    }

    Schrittausgang operator()(Auswahlliste* liste) const {
        if (!liste->sichtbar()) return gesperrt();
        const bool typen = groesse_.hinweis.ebene == "E_Fenster";
        if (typen && liste->index() == typ_sonstiges) return {false, gruende::von_hand};
        const int letzter = typen ? typ_sonstiges - 1 : static_cast<int>(liste->eintraege().size()) - 1;
        const auto weiter = nachbar(liste->index(), 0, letzter);
        if (!weiter) return am_rand(liste->index() >= 0);
        liste->setze(*weiter);
        return {true};
    }

    Schrittausgang operator()(const Energiefeld& feld) const {
        Auswahlrahmen& liste = e_.e_energie.Auswahl;
        const int stelle = e_.p.*feld.stelle;
        feld.knopf->druecke();
        int weiter = 0;
        int eintraege = 0;
        for (int i = 1; i <= Auswahlrahmen::eintraege; ++i) {
            if (!liste.offen() || !liste.Label_Auswahl(i).sichtbar()) continue;
            ++eintraege;
            if (rauf_ ? i > stelle && weiter == 0 : i < stelle) weiter = i;
        }
        if (weiter > 0) {
            e_.e_energie.Label_Auswahl_Click(weiter);
            return {true};
        }
        liste.schliesse();
        if (eintraege < 2) return {false, gruende::ohne_wahl};
        return am_rand(true);
    }

  private:
    /// The entry before or behind, of a list from `erster` to `letzter`, nothing beyond its ends.
    [[nodiscard]] std::optional<int> nachbar(int stelle, int erster, int letzter) const {
        const int weiter = rauf_ ? stelle + 1 : stelle - 1;
        const bool moeglich = stelle >= erster && weiter >= erster && weiter <= letzter;
        return moeglich ? std::optional(weiter) : std::nullopt;
    }

    [[nodiscard]] Schrittausgang am_rand(bool gewaehlt) const {
        if (!gewaehlt) return {false, gruende::offen};
        return {false, rauf_ ? gruende::letzter : gruende::erster};
    }

    /// The two temperatures keep their order.
    [[nodiscard]] Wort nachgegeben() const {
        return groesse_.groesse == "Troom" ? gruende::vor_grenze : gruende::vor_soll;
    }

    [[nodiscard]] Schrittausgang gesperrt() const {
        if (groesse_.hinweis.ebene == "E_Fenster") return {false, gruende::nachbar};
        return {false, groesse_.groesse == "Dachraum_typ" ? gruende::aussenluft : gruende::ohne_dach};
    }

    Eingabeebenen& e_;
    const Eingabegroesse& groesse_;
    bool rauf_;
};

}  // namespace

bool hat_schritte(const Eingabegroesse& groesse) {
    return groesse.groesse != station;
}

Schrittausgang schritt_tun(Eingabeebenen& ebenen, const Eingabegroesse& groesse, Richtung richtung) {
    return std::visit(Schritttat(ebenen, groesse, richtung), regler(ebenen, groesse));
}

}  // namespace velmaris
