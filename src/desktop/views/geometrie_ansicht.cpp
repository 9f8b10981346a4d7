#include "charts/geometriebilder.h"
#include "desktop/platform/stil.h"
#include "desktop/views/ansichten.h"
#include "desktop/widgets/bildflaeche.h"
#include "desktop/widgets/ebene.h"
#include "desktop/widgets/scrollleiste.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QRadioButton>
#include <QVBoxLayout>

namespace velmaris {
namespace {

constexpr int bild_links = 98;  ///< of the house picture, 190 x 176 pixels
constexpr int bild_oben = 30;

QLabel* umbrochen(QLabel* schild, Qt::Alignment richtung = Qt::AlignHCenter) {
    schild->setWordWrap(true);
    schild->setAlignment(richtung | Qt::AlignVCenter);
    return schild;
}

/// A display in the middle of its place, for numbers over the picture.
QLabel* mittig(QLabel* schild) {
    schild->setAlignment(Qt::AlignCenter);
    return schild;
}

/// The house with the captions and areas that lie upon it.
void haus(E_Geometrie& e, const Ebenenbau& bau, QWidget* ebene) {
    constexpr int giebelbreite = 64;
    Bildflaeche* bild =
        setze(bau.bild(e.Picture3, farben_des_fensters), ebene, bild_links, bild_oben, 190, 176);
    setze(mittig(bau.wort("Label12")), bild, 6, 98, 52);
    setze(mittig(bau.wort("Label15")), bild, 6, 110, 52);
    setze(bau.zahl(e.f_wfa_anz), bild, 2, 122, 38);
    setze(bau.einheit("Einheit_f_wfa"), bild, 42, 122);
    setze(mittig(bau.wort("Label14")), bild, 62, 128, 106);
    setze(bau.zahl(e.f_nfa_anz), bild, 62, 142, 56);
    setze(bau.einheit("Einheit_f_nfa"), bild, 121, 142);
    setze(bau.wort("Label_Ost"), bild, 176, 130);

    QLabel* dach = bau.anzeige(e.Label9);
    dach->setParent(bild);
    dach->setWordWrap(true);
    dach->setFixedWidth(72);
    for (Anzeige* anzeige : {&e.Label6, &e.dachfläche_anz})
        bau.anzeige(*anzeige)->setParent(bild);
    QLabel* giebel = mittig(bau.anzeige(e.Giebel_anz));
    giebel->setParent(bild);
    giebel->setMinimumWidth(giebelbreite);
    for (Anzeige* anzeige : {&e.Label9, &e.Label6, &e.dachfläche_anz, &e.Giebel_anz})
        anzeige->ansicht();
}

/// The heights at the left of the house, the floors at its right, the plan below.
void masse(E_Geometrie& e, const Ebenenbau& bau, QWidget* ebene) {
    constexpr int leiste_links = 78;
    const std::string dachhoehe = e.Label4.text();
    setze(umbrochen(bau.mit_tipp(bau.anzeige(e.Label4), e.hd_sb.name)), ebene, 2, 44, 74, 28);
    QLabel* hd = setze(mittig(bau.anzeige(e.hd_anz)), ebene, 2, 72, 74, 16);
    setze(bau.eingabe(e.hd_sb, *hd, dachhoehe, Qt::Vertical), ebene, leiste_links, 44, mass::leiste, 78);
    setze(umbrochen(bau.mit_tipp(bau.wort("Label22"), e.h_sb.name)), ebene, 2, 128, 74, 40);
    QLabel* h = setze(mittig(bau.anzeige(e.h_anz)), ebene, 2, 168, 74, 16);
    setze(bau.eingabe(e.h_sb, *h, bau.text("Label22"), Qt::Vertical), ebene, leiste_links, 111, mass::leiste,
          97);
    setze(umbrochen(bau.mit_tipp(bau.wort("Label1"), e.ag_sb.name)), ebene, 288, 44, 62, 40);
    QLabel* ag = setze(mittig(bau.anzeige(e.ag_anz)), ebene, 316, 128, 28, 16);
    setze(bau.eingabe(e.ag_sb, *ag, bau.text("Label1"), Qt::Vertical), ebene, 296, 88, mass::leiste, 97);

    QLabel* b = setze(mittig(bau.anzeige(e.b_anz)), ebene, 10, 210, 160, 15);
    setze(bau.eingabe(e.b_sb, *b, bau.text(e.b_sb.name)), ebene, 10, 226, 160, mass::leiste);
    QLabel* l = setze(mittig(bau.anzeige(e.l_anz)), ebene, 182, 210, 160, 15);
    setze(bau.eingabe(e.l_sb, *l, bau.text(e.l_sb.name)), ebene, 182, 226, 160, mass::leiste);
}

QGroupBox* dachfirst(E_Geometrie& e, const Ebenenbau& bau) {
    QGroupBox* rahmen = bau.mit_tipp(bau.rahmen(e.Frame3), e.Option_Dachfirst.name);
    QVBoxLayout& spalte = *stapel(*rahmen);
    for (QRadioButton* option : bau.optionen(e.Option_Dachfirst))
        spalte.addWidget(option);
    return rahmen;
}

QGroupBox* gebaeudedaten(E_Geometrie& e, const Ebenenbau& bau) {
    struct Reihe {
        std::string_view wort;
        Anzeige& wert;
        std::string_view einheit;
    };
    constexpr int seitenrand = 4, spaltenabstand = 2;  // the largest volume has eight places
    QGroupBox* rahmen = bau.rahmen("Frame4");
    auto* tabelle = new QGridLayout(rahmen);
    tabelle->setContentsMargins(seitenrand, 0, seitenrand, mass::innenrand);
    tabelle->setHorizontalSpacing(spaltenabstand);
    tabelle->setVerticalSpacing(mass::zeilenabstand);
    tabelle->setColumnStretch(1, 1);
    int nummer = 0;
    for (const Reihe& reihe : {Reihe{"label37", e.f_gd_anz, "Einheit_f_gd"},
                               {"Label13", e.f_nutz_anz, "Einheit_f_nutz"},
                               {"Label5", e.v_geb_anz, "Einheit_v_geb"},
                               {"Label18", e.v_luft_anz, "Einheit_v_luft"}}) {
        tabelle->addWidget(bau.wort(reihe.wort), nummer, 0);
        tabelle->addWidget(bau.zahl(reihe.wert), nummer, 1);
        tabelle->addWidget(bau.einheit(reihe.einheit), nummer, 2);
        ++nummer;
    }
    return rahmen;
}

/// The plan of the house between the compass letters, with the scroll field that turns it.
QGroupBox* orientierung(E_Geometrie& e, const Ebenenbau& bau) {
    constexpr int zweckschrift = 10;  // on one line, so that the plan keeps its height
    QGroupBox* rahmen = bau.rahmen("Frame2");
    auto* rose = new QGridLayout(rahmen);
    rose->setContentsMargins(mass::rand, 0, mass::rand, mass::innenrand);
    rose->setHorizontalSpacing(mass::abstand);
    rose->setVerticalSpacing(1);
    Bildflaeche* plan = bau.bild(e.Picture1, farben_der_tafel);
    plan->setFixedSize(64, 64);
    rose->addWidget(bau.wort("Label29"), 0, 0, 1, 3, Qt::AlignHCenter);
    rose->addWidget(bau.wort("Label24"), 1, 0, Qt::AlignRight | Qt::AlignVCenter);
    rose->addWidget(plan, 1, 1);
    rose->addWidget(bau.wort("Label27"), 1, 2, Qt::AlignLeft | Qt::AlignVCenter);
    rose->addWidget(bau.wort("Label28"), 2, 0, 1, 3, Qt::AlignHCenter);
    rose->setColumnStretch(0, 1);
    rose->setColumnStretch(2, 1);
    auto* enden = new QHBoxLayout;
    enden->addWidget(bau.wort("Label31"));
    QLabel* wert = mittig(bau.anzeige(e.orient_anz));
    enden->addWidget(wert, 1);
    enden->addWidget(bau.wort("Label30"));
    rose->addLayout(enden, 3, 0, 1, 3);
    rose->addWidget(bau.eingabe(e.orient_sb, *wert, bau.text("Label23")), 4, 0, 1, 3);
    QLabel* zweck = umbrochen(bau.mit_tipp(bau.wort("Label23"), e.orient_sb.name));
    QFont schrift = zweck->font();
    schrift.setPixelSize(zweckschrift);
    zweck->setFont(schrift);
    rose->addWidget(zweck, 5, 0, 1, 3);
    return rahmen;
}

/// The A/V bar with the building's own value at its left and the bodies of the same volume at its right.
QGroupBox* av_verhaeltnis(E_Geometrie& e, const Ebenenbau& bau) {
    constexpr int diagramm_oben = 22;
    QGroupBox* rahmen = bau.rahmen("Frame5");
    Bildflaeche* diagramm =
        setze(bau.bild(e.AV_Picture, farben_der_tafel), rahmen, 2, diagramm_oben, 56, 126);
    QLabel* wert = bau.zahl(e.av_anz);
    wert->setParent(diagramm);
    wert->setMinimumWidth(40);
    e.av_anz.ansicht();
    setze(umbrochen(bau.wort("Label36")), rahmen, 66, diagramm_oben, 96, 28);
    struct Koerper {
        std::string_view wort;
        Anzeige& wert;
        double av;
    };
    for (const Koerper& k : {Koerper{"Label11", e.AV_Tetraeder, av_tetraeder},
                             {"Label34", e.AV_Wuerfel, av_wuerfel},
                             {"Label35", e.AV_Kugel, av_kugel}}) {
        const int y = diagramm_oben + qRound(av_hoehe(k.av)) - 8;
        setze(bau.wort(k.wort), rahmen, 68, y, 60, 16);
        setze(bau.zahl(k.wert), rahmen, 126, y, 36, 16);
    }
    return rahmen;
}

}  // namespace

QWidget* geometrie_ansicht(E_Geometrie& e, const Ansichtsmittel& mittel, QWidget* eltern) {
    QWidget* ebene = ebene_bauen(e.ebene, eingabegroesse, mittel, eltern);
    const Ebenenbau bau(*ebene, "E_Geometrie", mittel);
    haus(e, bau, ebene);
    masse(e, bau, ebene);
    setze(bau.pruefung(e.Check_Dachgeschoss), ebene, 8, 250, 164);
    setze(dachfirst(e, bau), ebene, 6, 272, 167, 72);
    setze(gebaeudedaten(e, bau), ebene, 179, 250, 167, 94);
    setze(orientierung(e, bau), ebene, 6, 350, 167, 166);
    setze(av_verhaeltnis(e, bau), ebene, 179, 350, 167, 166);
    return ebene;
}

}  // namespace velmaris
