#include "desktop/widgets/legende.h"

#include "desktop/platform/qt_text.h"
#include "desktop/platform/stil.h"
#include "desktop/widgets/ebene.h"

#include <QHBoxLayout>
#include <QLabel>

namespace velmaris {
namespace {

QWidget* farbfeld(Farbe farbe, QWidget* eltern) {
    constexpr int seite = 9;
    auto* feld = new QWidget(eltern);
    feld->setFixedSize(seite, seite);
    feld->setAutoFillBackground(true);
    QPalette palette = feld->palette();
    palette.setColor(QPalette::Window, qfarbe(farbe));
    feld->setPalette(palette);
    return feld;
}

}  // namespace

void legende(const Ebenenbau& bau, QWidget* ebene, int x, int y, int breite,
             std::initializer_list<std::pair<Farbe, Anzeige*>> eintraege, int hoehe) {
    constexpr int zeilenhoehe = 16;
    constexpr int textabstand = 3;
    auto* zeile = new QWidget(ebene);
    auto* reihe = new QHBoxLayout(zeile);
    reihe->setContentsMargins(0, 0, 0, 0);
    reihe->setSpacing(textabstand);
    for (const auto& [farbe, anzeige] : eintraege) {
        if (reihe->count() > 0) reihe->addSpacing(mass::gruppenabstand);
        const bool umbruch = hoehe > zeilenhoehe;
        QWidget* feld = farbfeld(farbe, zeile);
        reihe->addWidget(feld, 0, umbruch ? Qt::AlignTop : Qt::AlignVCenter);
        QLabel* text = bau.anzeige(*anzeige);
        text->setWordWrap(umbruch);
        reihe->addWidget(text, umbruch ? 1 : 0, umbruch ? Qt::AlignTop : Qt::AlignVCenter);
    }
    if (hoehe == zeilenhoehe) reihe->addStretch();
    setze(zeile, ebene, x, y, breite, hoehe);
}

}  // namespace velmaris
