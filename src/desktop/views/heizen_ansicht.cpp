#include "charts/balkenfarben.h"
#include "desktop/platform/qt_text.h"
#include "desktop/platform/stil.h"
#include "desktop/views/ansichten.h"
#include "desktop/widgets/bildflaeche.h"
#include "desktop/widgets/ebene.h"
#include "desktop/widgets/legende.h"
#include "desktop/widgets/mitnehmen.h"
#include "desktop/widgets/tooltip_ansicht.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QWidget>

namespace velmaris {
namespace {

/// Year sums: what it is, per square metre, in all.
void jahrestabelle(A_Heizen& a, const Ebenenbau& bau, QWidget* ebene) {
    struct Reihe {
        Anzeige& wort;
        Anzeige& spezifisch;
        Anzeige& absolut;
    };
    constexpr int kopfbreite = 68;  // the unit stands on a line of its own
    auto* tafel = new QWidget(ebene);
    auto* tabelle = new QGridLayout(tafel);
    tabelle->setContentsMargins(0, 0, 0, 0);
    tabelle->setHorizontalSpacing(mass::abstand);
    tabelle->setVerticalSpacing(1);
    tabelle->setColumnStretch(0, 1);
    tabelle->setColumnMinimumWidth(1, 76);
    tabelle->setColumnMinimumWidth(2, 64);
    tabelle->addWidget(bau.anzeige(a.Label1), 0, 0, Qt::AlignBottom);
    int spalte = 1;
    for (Anzeige* kopf : {&a.Label15, &a.Label16}) {
        QLabel* schild = bau.zahl(*kopf);
        schild->setWordWrap(true);
        schild->setFixedWidth(kopfbreite);
        tabelle->addWidget(schild, 0, spalte++, Qt::AlignRight | Qt::AlignBottom);
    }
    int nummer = 1;
    for (const Reihe& reihe : {Reihe{a.Label6, a.qtrs_anz, a.qtr_anz},
                               {a.Label5, a.qinfs_anz, a.qinf_anz},
                               {a.Label4, a.qis_anz, a.qi_anz},
                               {a.Label3, a.qsols_anz, a.qsol_anz},
                               {a.Label2, a.qh_s_anz, a.qh_anz}}) {
        tabelle->addWidget(bau.anzeige(reihe.wort), nummer, 0);
        tabelle->addWidget(bau.zahl(reihe.spezifisch), nummer, 1);
        tabelle->addWidget(bau.zahl(reihe.absolut), nummer, 2);
        ++nummer;
    }
    tafel->setAccessibleName(qtext(a.jahreswerte().titel));
    wertemenue(
        *tafel, [&a] { return a.jahreswerte(); }, bau.mittel());
    setze(tafel, ebene, 8, 362, 288, 132);
}

/// Gains and losses of the windows, a pair of bars for each facade.
void fassaden(A_Heizen& a, const Ebenenbau& bau, QWidget* ebene) {
    legende(bau, ebene, 304, 362, 142, {{balkenfarben::solar, &a.Label17}});
    legende(bau, ebene, 304, 378, 142, {{balkenfarben::transmission, &a.Label18}}, 40);
    for (Bildfeld* feld : {&a.Gewinne_N, &a.Verluste_N, &a.Gewinne_S, &a.Verluste_S, &a.Gewinne_O,
                           &a.Verluste_O, &a.Gewinne_W, &a.Verluste_W})
        bau.bild(*feld, farben_des_fensters);
    setze(bau.anzeige(a.Label19), ebene, 315, 475, 130, 14);
}

}  // namespace

QWidget* heizen_ansicht(A_Heizen& a, const Ansichtsmittel& mittel, QWidget* eltern) {
    QWidget* ebene = ebene_bauen(a.ebene, ausgabegroesse, mittel, eltern);
    const Ebenenbau bau(*ebene, "A_Heizen", mittel);
    legende(bau, ebene, 8, 1, 436,
            {{balkenfarben::transmission, &a.Label8},
             {balkenfarben::lueftung, &a.Label7},
             {balkenfarben::heizen, &a.Label9}});
    legende(bau, ebene, 8, 17, 436, {{balkenfarben::intern, &a.Label25}, {balkenfarben::solar, &a.Label21}});
    bau.bild(a.Heizbilanz);
    bau.bild(a.JahrBilanz);
    legende(bau, ebene, 8, 179, 436,
            {{balkenfarben::solar, &a.Label13}, {balkenfarben::solar_ungenutzt, &a.Label11}});
    legende(bau, ebene, 8, 195, 436,
            {{balkenfarben::intern, &a.Label12}, {balkenfarben::intern_ungenutzt, &a.Label10}});
    bau.bild(a.NutzungsgradMonat);
    bau.bild(a.NutzungsgradJahr);
    jahrestabelle(a, bau, ebene);
    fassaden(a, bau, ebene);
    tooltip_ansicht(a.tooltip, mittel, ebene);
    return ebene;
}

}  // namespace velmaris
