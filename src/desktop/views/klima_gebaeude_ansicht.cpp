#include "desktop/platform/stil.h"
#include "desktop/views/ansichten.h"
#include "desktop/widgets/ebene.h"
#include "desktop/widgets/mitnehmen.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QVBoxLayout>

namespace velmaris {
namespace {

/// A row of figures: caption, value, unit (none if empty).
struct Zeile {
    std::string_view wort;
    Anzeige& wert;
    std::string_view einheit;
};

QGridLayout* tabelle(QGroupBox& rahmen) {
    auto* neu = new QGridLayout(&rahmen);
    neu->setContentsMargins(mass::gruppenabstand, 2, mass::gruppenabstand, mass::rand);
    neu->setHorizontalSpacing(mass::gruppenabstand);
    neu->setColumnStretch(0, 1);
    neu->setColumnMinimumWidth(1, 70);
    neu->setColumnMinimumWidth(2, 60);
    return neu;
}

void fuellen(QGridLayout& tabelle, const Ebenenbau& bau, std::initializer_list<Zeile> zeilen) {
    for (const Zeile& zeile : zeilen) {
        const int nummer = tabelle.rowCount();
        tabelle.addWidget(bau.wort(zeile.wort), nummer, 0);
        tabelle.addWidget(bau.zahl(zeile.wert), nummer, 1);
        if (!zeile.einheit.empty()) tabelle.addWidget(bau.einheit(zeile.einheit), nummer, 2);
    }
}

QGroupBox* klima(A_Klima& a, const Ebenenbau& bau) {
    QGroupBox* rahmen = bau.rahmen("Frame1");
    QGridLayout& figuren = *tabelle(*rahmen);
    figuren.addWidget(bau.anzeige(a.anz_klimaregion), 0, 0, 1, 3);
    fuellen(figuren, bau,
            {{"Label_MaxJahrTemp", a.anz_MaxJahrTemp, "Einheit_MaxJahrTemp"},
             {"Label_MaxMonatTemp", a.anz_MaxMonatTemp, "Einheit_MaxMonatTemp"},
             {"Label_MaxMonatName", a.anz_MaxMonatName, ""},
             {"Label_MittelJahrTemp", a.anz_MittelJahrTemp, "Einheit_MittelJahrTemp"},
             {"Label_MinMonatTemp", a.anz_MinMonatTemp, "Einheit_MinMonatTemp"},
             {"Label_MinMonatName", a.anz_MinMonatName, ""},
             {"Label_MinJahrTemp", a.anz_MinJahrTemp, "Einheit_MinJahrTemp"},
             {"Label_Heizgradtage", a.anz_Heizgradtage, "Einheit_Heizgradtage"}});
    const Projekt& p = bau.mittel().sitzung.p;
    wertemenue(
        *rahmen, [&p] { return A_Klima::klimawerte(p); }, bau.mittel());
    return rahmen;
}

QGroupBox* gebaeude(A_Klima& a, const Ebenenbau& bau) {
    QGroupBox* rahmen = bau.rahmen("Frame2");
    fuellen(*tabelle(*rahmen), bau,
            {{"Label_Umittel", a.anz_Umittel, "Einheit_Umittel"},
             {"Label_Tspez", a.anz_Tspez, "Einheit_Tspez"},
             {"Label_Vspez", a.anz_Vspez, "Einheit_Vspez"},
             {"Label_TVspez", a.anz_TVspez, "Einheit_TVspez"},
             {"Label_tau", a.anz_tau, "Einheit_tau"},
             {"Label_Heizlast", a.anz_Heizlast, "Einheit_Heizlast"},
             {"Label_heizlast_spez", a.anz_heizlast_spez, "Einheit_heizlast_spez"},
             {"Label_kuehllast", a.anz_kuehllast, "Einheit_kuehllast"},
             {"Label_kuehllast_spez", a.anz_kuehllast_spez, "Einheit_kuehllast_spez"},
             {"Label_Heizgrenztemp", a.anz_Heizgrenztemp, "Einheit_Heizgrenztemp"},
             {"Label_Heiztage", a.anz_Heiztage, "Einheit_Heiztage"}});
    const Projekt& p = bau.mittel().sitzung.p;
    wertemenue(
        *rahmen, [&p] { return A_Klima::gebaeudewerte(p); }, bau.mittel());
    return rahmen;
}

}  // namespace

QWidget* klima_gebaeude_ansicht(A_Klima& a, const Ansichtsmittel& mittel, QWidget* eltern) {
    QWidget* ebene = ebene_bauen(a.ebene, ausgabegroesse, mittel, eltern);
    const Ebenenbau bau(*ebene, "A_Klima", mittel);
    ebene->setWindowTitle(QString::fromStdString(bau.text("Titel")));
    QVBoxLayout& spalte = *ebenenspalte(*ebene);
    spalte.addWidget(klima(a, bau));
    spalte.addWidget(gebaeude(a, bau));
    spalte.addStretch();
    return ebene;
}

}  // namespace velmaris
