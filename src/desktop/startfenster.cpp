#include "desktop/startfenster.h"

#include "desktop/platform/bilddatei.h"
#include "desktop/platform/massstab.h"
#include "desktop/platform/qt_text.h"
#include "desktop/platform/stil.h"
#include "desktop/widgets/nebenfenster.h"
#include "language/beschriftungen.h"

#include <QDialog>
#include <QGridLayout>
#include <QLabel>
#include <QPixmap>
#include <QPushButton>
#include <QVBoxLayout>

namespace velmaris {
namespace {

/// The picture of the program, `hoehe` high, sharp at the screen's resolution.
QPixmap programmbild(const std::filesystem::path& programmordner, double hoehe, qreal pixel_je_einheit) {
    return QPixmap::fromImage(
        bild_in_hoehe(programmordner / "Grafiken" / "velmaris.bmp", hoehe, pixel_je_einheit));
}

QLabel* ueberschrift(QWidget* fenster) {
    auto* schild = new QLabel(QStringLiteral("Velmaris"), fenster);
    QFont schrift = schild->font();
    schrift.setPixelSize(40);
    schrift.setBold(true);
    schild->setFont(schrift);
    QPalette palette = schild->palette();
    palette.setColor(QPalette::WindowText, QColor(stilfarben::betonung));
    schild->setPalette(palette);
    return schild;
}

/// A language: its picture and its name below, both to be clicked.
class Sprachknopf : public QPushButton {
  public:
    Sprachknopf(const std::filesystem::path& bild, const char* name, QWidget* fenster)
        : QPushButton(fenster) {
        setObjectName(QLatin1String(name));
        const QPixmap fahne = QPixmap::fromImage(bild_lesen(bild));
        QIcon zeichen(fahne);
        zeichen.addPixmap(QPixmap::fromImage(feines_bild_lesen(bild)));
        setIcon(zeichen);
        setIconSize(fahne.isNull() ? QSize(96, 64) : fahne.size());
        setFixedSize(iconSize() + QSize(16, 12));
    }
};

}  // namespace

QWidget* startfenster(Start& start, const Ansichtsmittel& mittel,
                      const std::filesystem::path& programmordner) {
    auto* fenster = new Nebenfenster(
        mittel.wache, [&start] { start.schliessen(); }, nullptr);
    fenster->setWindowModality(Qt::ApplicationModal);
    fenster->setWindowTitle(QStringLiteral("Velmaris"));
    constexpr QSize kleinste(650, 429);
    fenster->setMinimumSize(kleinste);
    const Ebenenbau bau(*fenster, "Start", mittel);
    auto* tafel = new QGridLayout(fenster);
    tafel->setContentsMargins(40, 30, 40, 24);
    tafel->setHorizontalSpacing(30);
    auto* bild = new QLabel(fenster);
    const auto bild_zeigen = [bild, programmordner](double massstab) {
        constexpr int hoehe = 160;
        bild->setPixmap(programmbild(programmordner, hoehe * massstab, bild->devicePixelRatioF()));
    };
    bild_zeigen(1);
    QObject::connect(&fenster->skala(), &Fenstermassstab::geaendert, bild, bild_zeigen);
    tafel->addWidget(bild, 0, 0, 2, 1, Qt::AlignCenter);
    tafel->addWidget(ueberschrift(fenster), 0, 1, Qt::AlignLeft | Qt::AlignBottom);
    QLabel* text = bau.anzeige(start.Text);
    constexpr int textbreite = 400;
    text->setWordWrap(true);
    text->setFixedWidth(textbreite);
    tafel->addWidget(text, 1, 1, Qt::AlignLeft | Qt::AlignTop);
    tafel->setColumnStretch(1, 1);
    tafel->setRowStretch(0, 1);
    tafel->setRowStretch(1, 1);
    QPushButton* knopf = bau.knopf(start.OK_Button);
    knopf->setDefault(true);
    knopf->setMinimumWidth(90);
    tafel->addWidget(knopf, 2, 0, 1, 2, Qt::AlignRight);
    fenster->einheitsgroesse(kleinste, kleinste.expandedTo(fenster->sizeHint()));
    mittel.binder.binde(static_cast<QWidget&>(*fenster), start.fenster);
    return fenster;
}

std::optional<std::string> sprachfenster(const std::filesystem::path& programmordner) {
    struct Wahl {
        const char* letter;
        const char* grafik;
        const char* bild;
        const char* schild;
    };
    QDialog fenster;
    fenster.setObjectName(QStringLiteral("Sprachwahl"));
    fenster.setWindowTitle(qtext(beschriftung("Sprachwahl", fenstertitel, "d")));
    auto* tafel = new QGridLayout(&fenster);
    tafel->setContentsMargins(30, 24, 30, 24);
    tafel->setHorizontalSpacing(30);
    std::optional<std::string> gewaehlt;
    int spalte = 0;
    for (const Wahl& wahl :
         {Wahl{"d", "sprache_d.bmp", "Image1", "Label4"}, {"e", "sprache_e.bmp", "Image2", "Label5"}}) {
        const auto waehle = [&gewaehlt, &fenster, wahl] {
            gewaehlt = wahl.letter;
            fenster.accept();
        };
        auto* bild = new Sprachknopf(programmordner / "Grafiken" / wahl.grafik, wahl.bild, &fenster);
        auto* schild = new QPushButton(qtext(beschriftung("Sprachwahl", wahl.schild, "d")), &fenster);
        schild->setObjectName(QLatin1String(wahl.schild));
        schild->setFlat(true);
        bild->setAccessibleName(schild->text());
        for (QPushButton* knopf : {static_cast<QPushButton*>(bild), schild})
            QObject::connect(knopf, &QPushButton::clicked, &fenster, waehle);
        tafel->addWidget(bild, 0, spalte);
        tafel->addWidget(schild, 1, spalte++);
    }
    Fenstermassstab massstab(fenster);
    massstab.setze(erster_massstab(fenster));
    fenster.exec();
    return gewaehlt;
}

}  // namespace velmaris
