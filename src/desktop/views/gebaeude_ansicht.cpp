#include "desktop/platform/stil.h"
#include "desktop/views/ansichten.h"
#include "desktop/widgets/bildflaeche.h"
#include "desktop/widgets/ebene.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

namespace velmaris {
namespace {

/// A frame with one scroll field.
QGroupBox* ein_schieber(std::string_view frame, Eingabefeld& feld, Anzeige& wert, QLabel* einheit,
                        const Ebenenbau& bau) {
    QGroupBox* rahmen = bau.rahmen(frame);
    bau.zeile(*schiebertabelle(*rahmen), "", feld, wert, einheit);
    return rahmen;
}

QGroupBox* lueftung(E_Gebaeude& e, const Ebenenbau& bau) {
    QGroupBox* rahmen = bau.rahmen("Frame4");
    QGridLayout& tabelle = *schiebertabelle(*rahmen);
    tabelle.setColumnMinimumWidth(0, 116);
    bau.zeile(tabelle, "Label1", e.lw_sb, e.lw_anz, bau.einheit("Einheit_lw"));
    bau.zeile(tabelle, "Label5", e.infiltration_sb, e.infiltration_anz, bau.einheit("Einheit_infiltration"));
    bau.zeile(tabelle, "Label4", e.WRG_Sb, e.WRG_anz, bau.einheit("Einheit_WRG"));
    return rahmen;
}

/// The same gains as energy of the year and as mean power.
QGroupBox* gewinne(E_Gebaeude& e, const Ebenenbau& bau) {
    QGroupBox* rahmen = bau.rahmen("Frame2");
    QGridLayout& tabelle = *schiebertabelle(*rahmen);
    tabelle.setColumnMinimumWidth(3, 30);
    tabelle.setColumnMinimumWidth(4, 30);
    bau.zeile(tabelle, "", e.intg_sb, e.intg_anz, bau.bruch("Bezeichnung19"));
    tabelle.addWidget(bau.zahl(e.intg_anz2), 1, 4);
    tabelle.addWidget(bau.bruch("Label12"), 1, 5);
    return rahmen;
}

QGroupBox* ueberwaermung(E_Gebaeude& e, const Ebenenbau& bau) {
    QGroupBox* rahmen = bau.rahmen("Frame7");
    QGridLayout& tabelle = *schiebertabelle(*rahmen);
    tabelle.addWidget(bau.wort("Label19"), 0, 0, 1, 4);
    bau.zeile(tabelle, "", e.Tueber_sb, e.Tueber_anz, bau.einheit("Einheit_Tueber"));
    return rahmen;
}

QGroupBox* bauart(std::string_view frame, Auswahlliste& liste, const Ebenenbau& bau) {
    constexpr int titelschrift = 10;  // half a plane is narrow for the titles
    QGroupBox* rahmen = bau.mit_tipp(bau.rahmen(frame), liste.name);
    QFont schrift = rahmen->font();
    QComboBox* kasten = bau.liste(liste, bau.text(frame));
    kasten->setFont(schrift);
    schrift.setPixelSize(titelschrift);
    rahmen->setFont(schrift);
    stapel(*rahmen)->addWidget(kasten);
    return rahmen;
}

/// The four walls as they lie on a map.
QGroupBox* nachbarn(E_Gebaeude& e, const Ebenenbau& bau) {
    QGroupBox* rahmen = bau.mit_tipp(bau.rahmen("Frame1"), e.awn_cb.name);
    auto* rose = new QGridLayout(rahmen);
    rose->setContentsMargins(mass::rand, 0, mass::rand, mass::innenrand);
    rose->setSpacing(0);
    rose->addWidget(bau.pruefung(e.awn_cb), 0, 1, Qt::AlignCenter);
    rose->addWidget(bau.pruefung(e.aww_cb), 1, 0, Qt::AlignCenter);
    rose->addWidget(bau.pruefung(e.awo_cb), 1, 2, Qt::AlignCenter);
    rose->addWidget(bau.pruefung(e.aws_cb), 2, 1, Qt::AlignCenter);
    return rahmen;
}

/// The heat capacity as a weight, with its two figures.
QGroupBox* speicher(E_Gebaeude& e, const Ebenenbau& bau) {
    constexpr int gewichtbreite = 76;
    QGroupBox* rahmen = bau.rahmen("Traegheit");
    rahmen->setObjectName(QStringLiteral("Frame_Traegheit"));
    auto* tafel = new QGridLayout(rahmen);
    tafel->setContentsMargins(mass::rand, 0, mass::rand, mass::innenrand);
    tafel->setHorizontalSpacing(mass::abstand);
    tafel->setVerticalSpacing(mass::zeilenabstand);
    Bildflaeche* gewicht = bau.bild(e.Traegheit, farben_der_tafel);
    gewicht->setMinimumSize(gewichtbreite, 60);
    tafel->addWidget(gewicht, 0, 0, 4, 1);
    tafel->addWidget(bau.wort("Frame8"), 0, 1, 1, 2);
    tafel->addWidget(bau.wort("Label7"), 1, 1, 1, 2);
    tafel->addWidget(bau.zahl(e.cges_anz), 2, 1);
    tafel->addWidget(bau.bruch("Einheit_cges"), 2, 2);
    tafel->addWidget(bau.zahl(e.Cwirk_anz), 3, 1);
    tafel->addWidget(bau.bruch("Einheit_Cwirk"), 3, 2);
    tafel->setColumnStretch(0, 1);
    return rahmen;
}

/// The efficiency is cold over electricity: both sides of the fraction and their units.
QGroupBox* kuehlung(E_Gebaeude& e, const Ebenenbau& bau) {
    QGroupBox* rahmen = bau.rahmen("Frame9");
    QGridLayout& tabelle = *schiebertabelle(*rahmen);
    tabelle.setColumnMinimumWidth(3, 0);
    tabelle.setVerticalSpacing(0);
    bau.zeile(tabelle, "", e.Klimaeffizienz_sb, e.KlimaEffizienz_anz, bau.bruch("Label8"));
    auto* stoffe = new QVBoxLayout;
    stoffe->setSpacing(1);
    stoffe->addWidget(bau.einheit("Label9"), 0, Qt::AlignHCenter);
    stoffe->addWidget(bau.einheit("Label10"), 0, Qt::AlignHCenter);
    tabelle.addLayout(stoffe, 1, 4);
    return rahmen;
}

}  // namespace

QWidget* gebaeude_ansicht(E_Gebaeude& e, const Ansichtsmittel& mittel, QWidget* eltern) {
    QWidget* ebene = ebene_bauen(e.ebene, eingabegroesse, mittel, eltern);
    const Ebenenbau bau(*ebene, "E_Gebaeude", mittel);
    QVBoxLayout& spalte = *ebenenspalte(*ebene);
    spalte.addWidget(ein_schieber("Frame3", e.Troom_sb, e.troom_anz, bau.einheit("Einheit_Troom"), bau));
    spalte.addWidget(lueftung(e, bau));
    spalte.addWidget(gewinne(e, bau));
    spalte.addWidget(ueberwaermung(e, bau));
    auto* bauarten = new QHBoxLayout;
    bauarten->addWidget(bauart("Frame5", e.Innenwandart, bau), 1);
    bauarten->addWidget(bauart("Frame6", e.Aussenwandart, bau), 1);
    spalte.addLayout(bauarten);
    auto* unten = new QHBoxLayout;
    unten->addWidget(nachbarn(e, bau), 2);
    unten->addWidget(speicher(e, bau), 3);
    spalte.addLayout(unten);
    spalte.addWidget(kuehlung(e, bau));
    spalte.addStretch();
    return ebene;
}

}  // namespace velmaris
