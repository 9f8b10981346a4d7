#include "desktop/platform/qt_text.h"
#include "desktop/platform/stil.h"
#include "desktop/views/ansichten.h"
#include "desktop/widgets/auswahlschild.h"
#include "desktop/widgets/auswahltafel.h"
#include "desktop/widgets/bildflaeche.h"
#include "desktop/widgets/ebene.h"
#include "desktop/widgets/mitnehmen.h"
#include "desktop/widgets/tooltip_ansicht.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>
#include <QWidget>
#include <array>

namespace velmaris {
namespace {

/// The three choices: caption, field, button that opens the list.
struct Wahl {
    Anzeige& wort;
    Anzeige& feld;
    Knopf& knopf;
};

std::array<Wahl, 3> wahlen(E_Energie& e) {
    return {Wahl{e.Label1, e.Label_System, e.Command1}, Wahl{e.Label3, e.Label_Übergabe, e.Command2},
            Wahl{e.Label2, e.Label_Energieträger, e.Command3}};
}

/// The chosen text of a list, framed like a list that is closed.
Auswahlschild* auswahlfeld(Anzeige& feld, const Binder& binder, QWidget* eltern) {
    auto* schild = new Auswahlschild(eltern);
    schild->setFrameShape(QFrame::StyledPanel);
    schild->setBackgroundRole(QPalette::Base);
    schild->setAutoFillBackground(true);
    schild->setMargin(2);
    binder.binde(*schild, feld);
    return schild;
}

QWidget* versorgung(E_Energie& e, const Ebenenbau& bau, QWidget* ebene, Auswahltafel& liste) {
    auto* block = new QWidget(ebene);
    auto* tabelle = new QGridLayout(block);
    tabelle->setContentsMargins(0, 0, 0, 0);
    tabelle->setSpacing(2);
    tabelle->setColumnStretch(0, 1);
    int reihe = 0;
    for (const Wahl& wahl : wahlen(e)) {
        tabelle->addWidget(bau.mit_tipp(bau.anzeige(wahl.wort), wahl.feld.name), reihe++, 0, 1, 2);
        Auswahlschild* feld =
            bau.mit_tipp(auswahlfeld(wahl.feld, bau.mittel().binder, block), wahl.feld.name);
        tabelle->addWidget(feld, reihe, 0);
        QPushButton* knopf = bau.knopf(wahl.knopf);
        knopf->setText(QStringLiteral("▾"));
        knopf->setAccessibleName(schildtext(wahl.wort.text()));
        knopf->setFixedSize(mass::knopf, mass::knopf);
        tabelle->addWidget(knopf, reihe++, 1, Qt::AlignTop);
        const QString tipp = knopf->accessibleDescription();
        wahl.feld.ansicht = [zeigen = wahl.feld.ansicht, knopf, tipp, &text = wahl.feld] {
            zeigen();
            knopf->setAccessibleDescription(tipp + u'\n' + schildtext(text.text()));
        };
        wahl.feld.ansicht();
        liste.bediene(*feld, *knopf);
    }
    return block;
}

QGroupBox* endenergie(E_Energie& e, const Ebenenbau& bau) {
    struct Reihe {
        Anzeige& wort;
        Anzeige& wert;
        Anzeige* einheit;
    };
    QGroupBox* rahmen = bau.rahmen(e.Frame1);
    auto* tabelle = new QGridLayout(rahmen);
    tabelle->setContentsMargins(mass::rand, 0, mass::rand, mass::innenrand);
    tabelle->setHorizontalSpacing(mass::abstand);
    tabelle->setVerticalSpacing(mass::zeilenabstand);
    tabelle->setColumnStretch(0, 1);
    int nummer = 0;
    for (const Reihe& reihe : {Reihe{e.Label11, e.anz_qhs_sum, &e.Einheit_qhs_sum},
                               {e.Label30, e.anz_q_verlust, &e.Einheit_q_verlust},
                               {e.Label16, e.anz_e_g, nullptr},
                               {e.Label8, e.anz_q_HE_Energieträger, &e.Einheit_q_HE_Energieträger},
                               {e.Label33, e.anz_q_HE_Strom, &e.Einheit_q_HE_Strom},
                               {e.Label21, e.anz_q_PE_Energieträger, &e.Einheit_q_PE_Energieträger},
                               {e.Label14, e.anz_q_PE_Strom, &e.Label6}}) {
        tabelle->addWidget(bau.anzeige(reihe.wort), nummer, 0);
        tabelle->addWidget(bau.zahl(reihe.wert), nummer, 1);
        if (reihe.einheit != nullptr) tabelle->addWidget(bau.anzeige(*reihe.einheit), nummer, 2);
        ++nummer;
    }
    wertemenue(
        *rahmen, [&e] { return e.endenergiewerte(); }, bau.mittel());
    return rahmen;
}

QGroupBox* faktoren(E_Energie& e, const Ebenenbau& bau) {
    QGroupBox* rahmen = bau.rahmen(e.Frame8);
    auto* tabelle = new QGridLayout(rahmen);
    tabelle->setContentsMargins(mass::rand, 0, mass::rand, mass::innenrand);
    tabelle->setVerticalSpacing(mass::zeilenabstand);
    tabelle->setColumnStretch(0, 1);
    tabelle->addWidget(bau.anzeige(e.Label27), 0, 0);
    tabelle->addWidget(bau.zahl(e.anz_Primärenergiefaktor_Energieträger), 0, 1);
    tabelle->addWidget(bau.anzeige(e.Label34), 1, 0);
    tabelle->addWidget(bau.zahl(e.anz_Primärenergiefaktor_Strom), 1, 1);
    wertemenue(
        *rahmen, [&e] { return e.faktorwerte(); }, bau.mittel());
    return rahmen;
}

}  // namespace

QWidget* energie_ansicht(E_Energie& e, const Ansichtsmittel& mittel, QWidget* eltern) {
    constexpr int traegerbreite = 80;
    QWidget* ebene = ebene_bauen(e.ebene, eingabegroesse, mittel, eltern);
    const Ebenenbau bau(*ebene, "E_Energie", mittel);
    QVBoxLayout& spalte = *ebenenspalte(*ebene);
    auto* liste = new Auswahltafel(e, mittel, ebene);
    spalte.addWidget(versorgung(e, bau, ebene, *liste));
    spalte.addWidget(endenergie(e, bau));
    auto* mitte = new QHBoxLayout;
    mitte->addWidget(faktoren(e, bau), 1);
    for (Bildfeld* bild : {&e.Picture2, &e.Picture3}) {
        Bildflaeche* flaeche = bau.bild(*bild, farben_des_fensters);
        flaeche->setFixedSize(traegerbreite, 64);
        mitte->addWidget(flaeche);
    }
    spalte.addLayout(mitte);
    QLabel* titel = bau.anzeige(e.Monatsverbrauch);
    titel->setWordWrap(true);
    spalte.addWidget(titel);
    Bildflaeche* diagramm = bau.bild(e.Monatsübersicht_Energieträger);
    diagramm->setFixedSize(330, 114);
    spalte.addWidget(diagramm);
    spalte.addStretch();
    tooltip_ansicht(e.tooltip, mittel, ebene);
    return ebene;
}

}  // namespace velmaris
