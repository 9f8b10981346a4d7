#include "desktop/widgets/ebene.h"

#include "desktop/platform/qt_text.h"
#include "desktop/platform/stil.h"
#include "language/beschriftungen.h"

#include <QVBoxLayout>
#include <QWidget>

namespace velmaris {
namespace {

/// What the button of a plane is called: a plane "E_Klima" has the button "Klima" on the bar "E_Menue".
QString knopftext(const std::string& ebene, const std::string& sprache) {
    const std::size_t strich = ebene.find('_');
    return qtext(beschriftung(ebene.substr(0, strich) + "_Menue", ebene.substr(strich + 1), sprache));
}

}  // namespace

QWidget* ebene_bauen(Feld& feld, QSize groesse, const Ansichtsmittel& mittel, QWidget* eltern) {
    auto* ebene = new QWidget(eltern);
    ebene->setFixedSize(groesse);
    QFont schrift = ebene->font();
    schrift.setPixelSize(mass::ebenenschrift);
    ebene->setFont(schrift);
    ebene->setFocusPolicy(Qt::ClickFocus);
    ebene->setAccessibleName(knopftext(feld.name, mittel.sprache));
    mittel.binder.binde(*ebene, feld);
    return ebene;
}

QVBoxLayout* ebenenspalte(QWidget& ebene) {
    auto* spalte = new QVBoxLayout(&ebene);
    spalte->setContentsMargins(mass::abstand, mass::ebenenabstand, mass::abstand, mass::ebenenabstand);
    spalte->setSpacing(mass::ebenenabstand);
    return spalte;
}

}  // namespace velmaris
