#include "planes/E_Fenster.h"

#include "planes/geometrietexte.h"
#include "toolkit/wort.h"
#include "toolkit/zahlen.h"

namespace velmaris {
namespace {

/// Gives a place another value as long as it lives.
template <class Wert>
class Solange {
  public:
    Solange(Wert& stelle, Wert wert) : stelle_(stelle), vorher_(stelle) { stelle_ = wert; }
    Solange(const Solange&) = delete;
    Solange& operator=(const Solange&) = delete;
    ~Solange() { stelle_ = vorher_; }

  private:
    Wert& stelle_;
    Wert vorher_;
};

/// The load guard while several controls move.
constexpr std::int16_t gesetzt = -1;

std::vector<std::string> typnamen(const std::string& sprache) {
    std::vector<std::string> namen;
    for (const Fenstertyp& typ : fenstertypen())
        namen.emplace_back(typ.name.in(sprache));
    namen.emplace_back(Wort{"Sonstiges", "others"}.in(sprache));
    return namen;
}

/// U value of the whole window, from the positions of glazing and frame.
void fenster_u_wert(Projekt& p, const Fensterseite& seite) {
    const double rahmenanteil = p.*seite.ra_feld;
    p.*seite.kf_feld = f32((1 - rahmenanteil) * seite.kfg.sb.position() / 100 +
                           seite.kfr.sb.position() / 100.0 * rahmenanteil);
}

}  // namespace

E_Fenster::E_Fenster(Sitzung& sitzung) : s_(sitzung) {
    for (Fensterseite* seite : seiten()) {
        seite->typ.fuelle(typnamen(s_.p.Sprache));
        binden(*seite);
        seite->rahmen.zeige(seite->fassade == Wandseite::sued);
    }
    Option1.markiere(0);
    Option1.geklickt = [this](int index) {
        s_.p.Option1 = i16(index, "Option1");
        Option1_Click(index);
    };
    for (int i = 0; i < 4; ++i) {
        Knopf& knopf = Command_HR[static_cast<std::size_t>(i)];
        knopf.gedrueckt = [this, i] { Command_HR_Click(i); };
        knopf.zeige(false);
    }
    ebene.zeige(false);
}

std::array<Fensterseite*, 4> E_Fenster::seiten() {
    return {&nord, &sued, &ost, &west};
}

Fensterseite& E_Fenster::seite(Wandseite fassade) {
    return *seiten()[static_cast<std::size_t>(fassade)];
}

Fensterseite* E_Fenster::seite_mit_typ(std::string_view name) {
    for (Fensterseite* seite : seiten()) {
        if (seite->typ.name == name) return seite;
    }
    return nullptr;
}

bool E_Fenster::gleiche_fenster() const {
    return s_.p.Option1 == 0;
}

void E_Fenster::binden(Fensterseite& seite) {
    seite.f.sb.geaendert = [this, &seite] { anteil_geaendert(seite); };
    seite.typ.gewaehlt = [this, &seite] { typ_gewaehlt(seite); };
    for (Fensterschieber* schieber : {&seite.gf, &seite.kfg, &seite.kfr}) {
        schieber->sb.geaendert = [this, &seite, schieber] { glaswert_geaendert(seite, *schieber); };
    }
    for (Fensterschieber* schieber : {&seite.ra, &seite.versch}) {
        schieber->sb.geaendert = [this, &seite, schieber] { rahmen_geaendert(seite, *schieber); };
    }
}

void E_Fenster::anteil_geaendert(Fensterseite& seite) {
    seite.f.sb.uebernehmen(s_.p);
    seite.f.anz.schreibe(seite.f.sb.anzeigetext(s_.p));
    geaendert(s_);
}

void E_Fenster::folgen(Fensterseite& seite, const std::function<void(Fensterseite&)>& kopieren) {
    if (seite.fassade != Wandseite::sued) {
        if (!gleiche_fenster()) s_.alles_berechnen();
        return;
    }
    if (gleiche_fenster()) {
        for (Fensterseite* andere : {&nord, &west, &ost})
            kopieren(*andere);
    }
    s_.alles_berechnen();
}

void E_Fenster::typ_gewaehlt(Fensterseite& seite) {
    Projekt& p = s_.p;
    p.Geaendert = 1;
    const int zeile = seite.typ.index();
    p.*seite.typ_feld = i16(zeile, seite.typ.name);
    if (zeile < typ_sonstiges) {
        const Fenstertyp& typ = fenstertypen()[static_cast<std::size_t>(zeile)];
        p.*seite.kfg_feld = f32(typ.kfg);
        p.*seite.gf_feld = f32(typ.gf);
        p.*seite.kfr_feld = f32(typ.kfr);
    }
    {
        const Solange waechter(p.FormLoadGuard, ebene.sichtbar() ? gesetzt : p.FormLoadGuard);
        for (Fensterschieber* schieber : {&seite.kfg, &seite.kfr, &seite.gf})
            schieber->sb.stellen(p);
    }
    folgen(seite, [zeile](Fensterseite& andere) { andere.typ.setze(zeile); });
}

bool E_Fenster::von_hand(int stellung) const {
    return !folgt_dem_projekt_ && ebene.sichtbar() && fokusstellung && fokusstellung() == stellung;
}

void E_Fenster::glaswert_geaendert(Fensterseite& seite, Fensterschieber& schieber) {
    s_.p.Geaendert = 1;
    schieber.sb.uebernehmen(s_.p);
    schieber.anz.schreibe(schieber.sb.anzeigetext(s_.p));
    if (&schieber != &seite.gf) fenster_u_wert(s_.p, seite);
    const int stellung = schieber.sb.position();
    if (von_hand(stellung)) {
        // The recalculation that the list would run follows below in any case.
        const Solange waechter(s_.p.FormLoadGuard, gesetzt);
        seite.typ.setze(typ_sonstiges);
    }
    Fensterschieber Fensterseite::*const gleicher =
        &schieber == &seite.gf ? &Fensterseite::gf
                               : (&schieber == &seite.kfg ? &Fensterseite::kfg : &Fensterseite::kfr);
    folgen(seite, [gleicher, stellung](Fensterseite& andere) { (andere.*gleicher).sb.setze(stellung); });
}

void E_Fenster::rahmen_geaendert(Fensterseite& seite, Fensterschieber& schieber) {
    s_.p.Geaendert = 1;
    schieber.sb.uebernehmen(s_.p);
    schieber.anz.schreibe(schieber.sb.anzeigetext(s_.p));
    if (&schieber == &seite.ra) fenster_u_wert(s_.p, seite);
    Fensterschieber Fensterseite::*const gleicher =
        &schieber == &seite.ra ? &Fensterseite::ra : &Fensterseite::versch;
    const int stellung = schieber.sb.position();
    folgen(seite, [gleicher, stellung](Fensterseite& andere) { (andere.*gleicher).sb.setze(stellung); });
}

void E_Fenster::Option1_Click(int index) {
    for (Knopf& knopf : Command_HR) {
        knopf.zeige(index == 1);
        knopf.aktiviere(true);
    }
    if (index == 1) Command_HR[1].aktiviere(false);
    if (index == 0) {
        const std::array andere{&nord, &ost, &west};
        if (sued.typ.index() >= 0) {
            for (Fensterseite* seite : andere)
                seite->typ.setze(sued.typ.index());
        }
        for (Fensterschieber Fensterseite::*const schieber :
             {&Fensterseite::kfg, &Fensterseite::kfr, &Fensterseite::gf, &Fensterseite::ra,
              &Fensterseite::versch}) {
            for (Fensterseite* seite : andere)
                (seite->*schieber).sb.setze((sued.*schieber).sb.position());
        }
    }
    for (Fensterseite* seite : seiten())
        seite->rahmen.zeige(seite->fassade == Wandseite::sued);
    s_.alles_berechnen();
}

void E_Fenster::Command_HR_Click(int index) {
    for (int i = 0; i < 4; ++i) {
        Command_HR[static_cast<std::size_t>(i)].aktiviere(i != index);
        seiten()[static_cast<std::size_t>(i)]->rahmen.zeige(i == index);
    }
}

void E_Fenster::fenstermodus_lesen(int wert) {
    const Solange laden(folgt_dem_projekt_, true);
    Option1.pruefe(wert);
    Option1.markiere(wert);
    s_.p.Option1 = i16(wert, "Option1");
    Option1_Click(wert);
}

void E_Fenster::nachbar_zeigen(Wandseite fassade, bool nachbar) {
    Fensterschieber& anteil = seite(fassade).f;
    anteil.sb.aktiviere(!nachbar);
    anteil.anz.verberge(nachbar);
}

void E_Fenster::geometrie_zeigen() {
    const FensterTexte texte = fenster_texte(s_.p);
    nord.flaeche_anz.schreibe(texte.f_nf_anz);
    sued.flaeche_anz.schreibe(texte.f_sf_anz);
    ost.flaeche_anz.schreibe(texte.f_of_anz);
    west.flaeche_anz.schreibe(texte.f_wf_anz);
    f_gf_anz.schreibe(texte.f_gf_anz);
    f_vf_anz.schreibe(texte.f_vf_anz);
    kf_anz.schreibe(texte.kf_anz);
    gfm_anz.schreibe(texte.gfm_anz);
}

void E_Fenster::eingaben_anzeigen() {
    const Solange laden(folgt_dem_projekt_, true);
    for (Fensterseite* seite : seiten())
        seite->typ.setze(s_.p.*(seite->typ_feld));
    for (Fensterseite* seite : {&ost, &sued, &west, &nord})
        seite->f.sb.stellen(s_.p);
    for (Fensterseite* seite : seiten())
        seite->versch.sb.stellen(s_.p);
    for (Fensterseite* seite : seiten())
        seite->ra.sb.stellen(s_.p);
}

}  // namespace velmaris
