#include "desktop/platform/stil.h"
#include "desktop/views/ansichten.h"
#include "desktop/widgets/ebene.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QRadioButton>
#include <QVBoxLayout>

namespace velmaris {
namespace {

QGroupBox* waende(E_Daemmung& e, const Ebenenbau& bau) {
    QGroupBox* rahmen = bau.rahmen("Frame3");
    QGridLayout& tabelle = *schiebertabelle(*rahmen);
    bau.zeile(tabelle, "Label3", e.kwn_sb, e.kwn_anz, bau.einheit("Einheit_kwn"));
    bau.zeile(tabelle, "Label14", e.kws_sb, e.kws_anz, bau.einheit("Einheit_kws"));
    bau.zeile(tabelle, "Label29", e.kwo_sb, e.kwo_anz, bau.einheit("Einheit_kwo"));
    bau.zeile(tabelle, "Label32", e.kww_sb, e.kww_anz, bau.einheit("Einheit_kww"));
    return rahmen;
}

QGroupBox* tuer(E_Daemmung& e, const Ebenenbau& bau) {
    QGroupBox* rahmen = bau.rahmen("Frame1");
    QGridLayout& tabelle = *schiebertabelle(*rahmen);
    bau.zeile(tabelle, "Label1", e.ft_sb, e.ft_anz, bau.einheit("Einheit_ft"));
    bau.zeile(tabelle, "Label2", e.kt_sb, e.kt_anz, bau.einheit("Einheit_kt"));
    return rahmen;
}

/// What a closure borders on: a caption and the lists to choose from, all at one place, of which one shows.
QHBoxLayout* gegen(std::string_view wort, std::initializer_list<Auswahlliste*> listen,
                   const std::string& zweck, const Ebenenbau& bau) {
    auto* reihe = new QHBoxLayout;
    reihe->setSpacing(mass::gruppenabstand);
    reihe->addWidget(bau.mit_tipp(bau.wort(wort), (*listen.begin())->name));
    for (Auswahlliste* liste : listen)
        reihe->addWidget(bau.liste(*liste, zweck), 1);
    return reihe;
}

QGroupBox* oberer_abschluss(E_Daemmung& e, const Ebenenbau& bau) {
    QGroupBox* rahmen = bau.rahmen(e.liste2);
    QGridLayout& tabelle = *schiebertabelle(*rahmen);
    tabelle.addLayout(gegen("Label18", {&e.ogd, &e.ogd_Dach}, e.liste2.text(), bau), 0, 0, 1, 4);
    bau.zeile(tabelle, "Label19", e.kd_sb, e.kd_anz, bau.einheit("Einheit_kd"));
    tabelle.addWidget(bau.pruefung(e.cbk_hDach), 2, 1, 1, 3);
    return rahmen;
}

QGroupBox* unterer_abschluss(E_Daemmung& e, const Ebenenbau& bau) {
    QGroupBox* rahmen = bau.rahmen("Frame2");
    QGridLayout& tabelle = *schiebertabelle(*rahmen);
    tabelle.addLayout(gegen("Label15", {&e.ugd}, bau.text("Frame2"), bau), 0, 0, 1, 4);
    bau.zeile(tabelle, "Label16", e.kk_sb, e.kk_anz, bau.einheit("Einheit_kk"));
    return rahmen;
}

QGroupBox* absorption(E_Daemmung& e, const Ebenenbau& bau) {
    QGroupBox* rahmen = bau.rahmen("Frame4");
    QGridLayout& tabelle = *schiebertabelle(*rahmen);
    bau.zeile(tabelle, "", e.absfaktor_sb, e.absfaktor_anz, nullptr);
    return rahmen;
}

/// Each surcharge with the note that explains it.
QGroupBox* waermebruecken(E_Daemmung& e, const Ebenenbau& bau) {
    constexpr int unter_dem_text = 19;
    QGroupBox* rahmen = bau.mit_tipp(bau.rahmen("Frame5"), e.Waermebruecken_opt.name);
    QVBoxLayout& spalte = *stapel(*rahmen);
    spalte.setSpacing(1);
    spalte.setContentsMargins(mass::ebenenabstand, 0, mass::ebenenabstand, mass::innenrand);
    const auto notiz = [&](std::string_view feld) {
        QLabel* schild = bau.einheit(feld);
        schild->setIndent(unter_dem_text);
        return schild;
    };
    const std::vector<QRadioButton*> optionen = bau.optionen(e.Waermebruecken_opt);
    spalte.addWidget(optionen[0]);
    spalte.addWidget(optionen[1]);
    spalte.addWidget(notiz("Label4"));
    spalte.addWidget(optionen[2]);
    spalte.addWidget(notiz("Label5"));
    return rahmen;
}

}  // namespace

QWidget* daemmung_ansicht(E_Daemmung& e, const Ansichtsmittel& mittel, QWidget* eltern) {
    QWidget* ebene = ebene_bauen(e.ebene, eingabegroesse, mittel, eltern);
    const Ebenenbau bau(*ebene, "E_Daemmung", mittel);
    QVBoxLayout& spalte = *ebenenspalte(*ebene);
    spalte.addWidget(waende(e, bau));
    spalte.addWidget(tuer(e, bau));
    spalte.addWidget(oberer_abschluss(e, bau));
    spalte.addWidget(unterer_abschluss(e, bau));
    spalte.addWidget(absorption(e, bau));
    spalte.addWidget(waermebruecken(e, bau));
    spalte.addStretch();
    return ebene;
}

}  // namespace velmaris
