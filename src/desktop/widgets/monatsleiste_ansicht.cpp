#include "desktop/widgets/monatsleiste_ansicht.h"

#include <QFrame>
#include <QLabel>
#include <QPushButton>

namespace velmaris {

void monatsleiste_ansicht(Monatsleiste& leiste, const Ebenenbau& bau, QWidget* ebene) {
    for (Knopf& knopf : leiste.Monatsbutton)
        bau.knopf(knopf);
    auto* rahmen = new QFrame(ebene);
    rahmen->setAttribute(Qt::WA_TransparentForMouseEvents);
    rahmen->setAutoFillBackground(true);
    QPalette farben = rahmen->palette();
    farben.setColor(QPalette::Window, farben.color(QPalette::Highlight));
    rahmen->setPalette(farben);
    QLabel* text = bau.anzeige(leiste.AktiverMonat1);
    text->setParent(rahmen);
    text->setAlignment(Qt::AlignCenter);
    farben.setColor(QPalette::WindowText, farben.color(QPalette::HighlightedText));
    text->setPalette(farben);
    text->show();
    bau.mittel().binder.binde(*rahmen, leiste.AktiverMonat);
}

}  // namespace velmaris
