#include "desktop/platform/stil.h"
#include "desktop/views/ansichten.h"
#include "desktop/widgets/ebene.h"
#include "desktop/widgets/scrollleiste.h"

#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>
#include <array>

namespace velmaris {
namespace {

/// Share and area of the windows, a row for each facade.
QGroupBox* flaechen(E_Fenster& e, const Ebenenbau& bau) {
    struct Reihe {
        Fensterseite& seite;
        std::string_view wort;
    };
    constexpr int flaechenspalte = 4;
    QGroupBox* rahmen = bau.rahmen("Frame10");
    QGridLayout& tabelle = *schiebertabelle(*rahmen);
    tabelle.setColumnMinimumWidth(0, 40);
    tabelle.setColumnMinimumWidth(3, 16);
    tabelle.setColumnMinimumWidth(flaechenspalte, 50);
    tabelle.addWidget(bau.wort("Label16"), 0, 1, 1, flaechenspalte + 1, Qt::AlignRight);
    for (const Reihe& reihe :
         {Reihe{e.nord, "Label64"}, {e.sued, "Label58"}, {e.ost, "Label49"}, {e.west, "Label41"}}) {
        const std::string buchstabe_der_seite(1, buchstabe(reihe.seite.fassade));
        const int nummer = tabelle.rowCount();
        bau.zeile(tabelle, reihe.wort, reihe.seite.f.sb, reihe.seite.f.anz,
                  bau.einheit("Einheit_f" + buchstabe_der_seite));
        tabelle.addWidget(bau.zahl(reihe.seite.flaeche_anz), nummer, flaechenspalte);
        tabelle.addWidget(bau.einheit("Einheit_f_" + buchstabe_der_seite + "f"), nummer, flaechenspalte + 1);
    }
    return rahmen;
}

/// The properties of the windows of one facade.
QGroupBox* panel(Fensterseite& seite, const Ebenenbau& bau) {
    struct Reihe {
        std::string_view groesse;
        Fensterschieber& schieber;
        std::string_view einheit;
    };
    const std::string endung(1, buchstabe(seite.fassade));
    QGroupBox* rahmen = bau.rahmen(seite.rahmen);
    QGridLayout& tabelle = *schiebertabelle(*rahmen);
    tabelle.addWidget(bau.liste(seite.typ, bau.text("Frame_Sued")), 0, 0, 1, 4);
    for (const Reihe& reihe : {Reihe{"kfg", seite.kfg, "Einheit_kfg"},
                               {"kfr", seite.kfr, "Einheit_kfr"},
                               {"gf", seite.gf, ""},
                               {"ra", seite.ra, "Einheit_ra"},
                               {"versch", seite.versch, "Einheit_versch"}}) {
        bau.zeile(tabelle, "Label_" + std::string(reihe.groesse) + endung, reihe.schieber.sb,
                  reihe.schieber.anz, reihe.einheit.empty() ? nullptr : bau.einheit(reihe.einheit));
    }
    return rahmen;
}

/// The tabs and, all at one place, the panels of the facades.
QGridLayout* panels(E_Fenster& e, const Ebenenbau& bau) {
    auto* platz = new QGridLayout;
    platz->setSpacing(mass::zeilenabstand);
    int spalte = 0;
    for (Knopf& knopf : e.Command_HR)
        platz->addWidget(bau.reiter(knopf), 0, spalte++);
    platz->setRowMinimumHeight(0, mass::knopf);
    for (Fensterseite* seite : {&e.nord, &e.sued, &e.ost, &e.west})
        platz->addWidget(panel(*seite, bau), 1, 0, 1, spalte);
    return platz;
}

/// A mean or sum over all windows, with its caption as title.
QGroupBox* ergebnis(std::string_view frame, Anzeige& wert, std::string_view einheit, const Ebenenbau& bau) {
    QGroupBox* rahmen = bau.rahmen(frame);
    auto* reihe = new QHBoxLayout(rahmen);
    reihe->setContentsMargins(mass::rand, 0, mass::rand, mass::innenrand);
    reihe->addStretch();
    reihe->addWidget(bau.zahl(wert));
    if (!einheit.empty()) reihe->addWidget(bau.einheit(einheit));
    reihe->addStretch();
    return rahmen;
}

}  // namespace

QWidget* fenster_ansicht(E_Fenster& e, const Ansichtsmittel& mittel, QWidget* eltern) {
    QWidget* ebene = ebene_bauen(e.ebene, eingabegroesse, mittel, eltern);
    const Ebenenbau bau(*ebene, "E_Fenster", mittel);
    e.fokusstellung = [ebene] { return fokusstellung(*ebene); };
    QVBoxLayout& spalte = *ebenenspalte(*ebene);
    spalte.addWidget(flaechen(e, bau));
    for (QRadioButton* option : bau.optionen(e.Option1))
        spalte.addWidget(option);
    spalte.addLayout(panels(e, bau));
    auto* ergebnisse = new QGridLayout;
    ergebnisse->setSpacing(mass::abstand);
    ergebnisse->addWidget(ergebnis("Frame6", e.f_gf_anz, "Einheit_f_gf", bau), 0, 0);
    ergebnisse->addWidget(ergebnis("Frame7", e.kf_anz, "Einheit_kf", bau), 0, 1);
    ergebnisse->addWidget(ergebnis("Frame5", e.f_vf_anz, "Einheit_f_vf", bau), 1, 0);
    ergebnisse->addWidget(ergebnis("Frame8", e.gfm_anz, "", bau), 1, 1);
    spalte.addLayout(ergebnisse);
    spalte.addStretch();
    return ebene;
}

}  // namespace velmaris
