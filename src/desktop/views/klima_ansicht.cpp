#include "climate/karten.h"
#include "desktop/platform/massstab.h"
#include "desktop/platform/stil.h"
#include "desktop/views/ansichten.h"
#include "desktop/widgets/bildflaeche.h"
#include "desktop/widgets/ebene.h"
#include "desktop/widgets/kartenwahl.h"
#include "desktop/widgets/mitnehmen.h"
#include "desktop/widgets/nebenfenster.h"
#include "desktop/widgets/schwebeschild.h"
#include "desktop/widgets/scrollleiste.h"

#include <QComboBox>
#include <QDialog>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

namespace velmaris {
namespace {

constexpr int kartenrand = 5;  ///< between the frame and the maps
constexpr int karten_oben = 22;

void rahmen_mit_liste(Anzeige& titel, Auswahlliste& liste, const Ebenenbau& bau, QWidget* ebene) {
    QGroupBox* rahmen = setze(bau.mit_tipp(bau.rahmen(titel), liste.name), ebene, 6, 28, 340, 48);
    stapel(*rahmen)->addWidget(bau.liste(liste, titel.text()));
}

void deutschland(E_Klima& e, const Ebenenbau& bau, QGroupBox* karte) {
    Bildflaeche* bild = setze(bau.bild(e.Picture1), karte, kartenrand, karten_oben, deutschlandgroesse.breite,
                              deutschlandgroesse.hoehe);
    new Kartenwahl(e.regionenweg, *bild, bau.mittel().wache);
    auto* hinweis = new Schwebeschild(bild);
    bau.mittel().binder.binde(*hinweis, e.Label2);
    QGroupBox* rahmen = setze(bau.rahmen(e.Frame_plz), karte, 240, karten_oben, 95, 78);
    QVBoxLayout& spalte = *stapel(*rahmen);
    spalte.addWidget(bau.textfeld(e.plz, e.Frame_plz.text()));
    spalte.addWidget(bau.knopf(e.PLZsuchen));
}

void europa_und_welt(E_Klima& e, const Ebenenbau& bau, QGroupBox* karte) {
    constexpr int europa_links = 53;
    Bildflaeche* europa = setze(bau.bild(e.Picture2), karte, europa_links, karten_oben, europagroesse.breite,
                                europagroesse.hoehe);
    new Kartenwahl(e.europaweg, *europa, bau.mittel().wache);
    auto* ausschnitt = new QWidget(karte);
    lege(*ausschnitt, QRectF(kartenrand, karten_oben, E_Klima::rahmenbreite, weltgroesse.hoehe));
    bau.mittel().binder.binde(*ausschnitt, e.picture3f);
    Bildflaeche* welt = bau.bild(e.Picture3);
    welt->setParent(ausschnitt);
    new Kartenwahl(e.weltweg, *welt, bau.mittel().wache);
    e.Picture3.ansicht();
    setze(bau.leiste(e.HScroll1, e.Frame_Karte.text()), karte, kartenrand, karten_oben + 248,
          E_Klima::rahmenbreite, mass::leiste);
    QLabel* station = setze(bau.anzeige(e.MausRegion), karte, kartenrand + 3, karten_oben + 270, 230, 20);
    station->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    QPushButton* groesser = setze(bau.knopf(e.Image1), karte, 300, karten_oben + 269, 34, mass::knopf);
    groesser->setText(QStringLiteral("⤢"));
    groesser->setAccessibleName(QString::fromStdString(e.zoom.ebene.text()));
    groesser->setToolTip(groesser->accessibleName());
}

QGroupBox* klimadaten(E_Klima& e, const Ebenenbau& bau) {
    struct Reihe {
        Anzeige& wort;
        Anzeige& wert;
        std::string_view einheit;
    };
    QGroupBox* rahmen = bau.rahmen(e.Frame_Klimadaten);
    auto* tabelle = new QGridLayout(rahmen);
    tabelle->setContentsMargins(mass::rand, 0, mass::rand, mass::innenrand);
    tabelle->setHorizontalSpacing(mass::abstand);
    tabelle->setVerticalSpacing(mass::zeilenabstand);
    tabelle->setColumnStretch(0, 1);
    int nummer = 0;
    for (const Reihe& reihe : {Reihe{e.anz_MittelJahrText, e.anz_MittelJahrTemp, "Einheit_MittelJahrTemp"},
                               {e.anz_MinMonatText, e.anz_MinMonatTemp, "Einheit_MinMonatTemp"},
                               {e.anz_MaxMonatText, e.anz_MaxMonatTemp, "Einheit_MaxMonatTemp"}}) {
        tabelle->addWidget(bau.anzeige(reihe.wort), nummer, 0);
        tabelle->addWidget(bau.zahl(reihe.wert), nummer, 1);
        tabelle->addWidget(bau.einheit(reihe.einheit), nummer, 2);
        ++nummer;
    }
    wertemenue(
        *rahmen, [&e] { return e.klimawerte(); }, bau.mittel());
    return rahmen;
}

}  // namespace

QWidget* klima_ansicht(E_Klima& e, const Ansichtsmittel& mittel, QWidget* eltern) {
    QWidget* ebene = ebene_bauen(e.ebene, eingabegroesse, mittel, eltern);
    const Ebenenbau bau(*ebene, "E_Klima", mittel);
    int x = 10;
    for (QRadioButton* option : bau.optionen(e.Option)) {
        setze(option, ebene, x, 6, 108, 20);
        x += 112;
    }
    rahmen_mit_liste(e.Frame_Region, e.Klimaregionwahl, bau, ebene);
    rahmen_mit_liste(e.Frame_Station, e.Klimaregionwahl2, bau, ebene);
    QGroupBox* karte = setze(bau.rahmen(e.Frame_Karte), ebene, 6, 82, 340, 336);
    deutschland(e, bau, karte);
    europa_und_welt(e, bau, karte);
    setze(klimadaten(e, bau), ebene, 6, 424, 340, 92);
    return ebene;
}

QWidget* zoom_klima_ansicht(E_Zoom_Klima& e, const Ansichtsmittel& mittel, QWidget* eltern) {
    auto* fenster = new Nebenfenster(
        mittel.wache, [&e] { e.Command2.druecke(); }, eltern);
    fenster->setWindowModality(Qt::ApplicationModal);
    const Ebenenbau bau(*fenster, "E_Zoom_Klima", mittel);
    auto* spalte = new QVBoxLayout(fenster);
    Bildflaeche* karte = bau.bild(e.Picture1);
    karte->setFixedSize(QSize(weltgroesse.breite, weltgroesse.hoehe) * weltvergroesserung);
    new Kartenwahl(e.weg, *karte, mittel.wache);
    spalte->addWidget(karte);
    auto* reihe = new QHBoxLayout;
    reihe->addWidget(bau.liste(e.Klimaregionwahl2, e.ebene.text()), 1);
    reihe->addWidget(bau.anzeige(e.MausRegion), 1);
    QPushButton* ok = bau.knopf(e.Command1);
    ok->setDefault(true);
    reihe->addWidget(ok);
    reihe->addWidget(bau.knopf(e.Command2));
    spalte->addLayout(reihe);
    spalte->setSizeConstraint(QLayout::SetFixedSize);
    mittel.binder.binde(*fenster, e.ebene);
    return fenster;
}

}  // namespace velmaris
