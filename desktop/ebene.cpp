#include "desktop/ebene.h"

#include "desktop/stil.h"

#include <QVBoxLayout>
#include <QWidget>

namespace velmaris {

QWidget* ebene_bauen(Feld& feld, QSize groesse, const Ansichtsmittel& mittel, QWidget* eltern) {
    auto* ebene = new QWidget(eltern);
    ebene->setFixedSize(groesse);
    QFont schrift = ebene->font();
    schrift.setPixelSize(mass::ebenenschrift);
    ebene->setFont(schrift);
    ebene->setFocusPolicy(Qt::ClickFocus);
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
