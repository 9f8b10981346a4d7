#include "desktop/platform/massstab.h"
#include "desktop/platform/qt_text.h"
#include "desktop/platform/stil.h"
#include "desktop/views/ansichten.h"
#include "desktop/widgets/nebenfenster.h"
#include "desktop/widgets/rtf_anzeige.h"
#include "desktop/widgets/textskala.h"
#include "language/beschriftungen.h"

#include <QLabel>
#include <QMenu>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QShortcut>
#include <QTextEdit>
#include <utility>

namespace velmaris {
namespace {

constexpr double punkte_je_zoll = 72;

/// Width of a page between its margins, points: A4 with one inch on both sides.
constexpr double seitenbreite = 451;
constexpr int seitenrand = 20;

/// The view of the report with the scale of its text.
class Reportfeld : public QTextEdit {
  public:
    using QTextEdit::QTextEdit;

    Textskala skala{*this};
};

/// The text's own menu in the letters of the window.
template <class Textansicht>
void textmenue(Textansicht& feld) {
    feld.setContextMenuPolicy(Qt::CustomContextMenu);
    QObject::connect(&feld, &QWidget::customContextMenuRequested, &feld, [&feld](QPoint ort) {
        QMenu* menue = feld.createStandardContextMenu();
        menue->setAttribute(Qt::WA_DeleteOnClose);
        schrift_anpassen(*menue);
        menue->popup(feld.viewport()->mapToGlobal(ort));
    });
}

/// The text of the report: a new one is shown from its top, while the same text keeps its place.
QWidget* reportfeld(Anzeige& anzeige, const Ansichtsmittel& mittel, Nebenfenster* fenster) {
    auto* feld = new Reportfeld(fenster);
    const double pixel_je_punkt = feld->logicalDpiX() / punkte_je_zoll;
    feld->setAccessibleName(fenster->windowTitle());
    feld->setReadOnly(true);
    feld->setUndoRedoEnabled(false);
    feld->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    feld->setLineWrapMode(QTextEdit::FixedPixelWidth);
    const auto umbrechen = [feld, pixel_je_punkt](double massstab) {
        feld->skala.setze(massstab);
        feld->setLineWrapColumnOrWidth(qRound((seitenbreite * pixel_je_punkt + 2 * seitenrand) * massstab));
    };
    umbrechen(1);
    QObject::connect(&fenster->skala(), &Fenstermassstab::geaendert, feld, umbrechen);
    feld->document()->setDocumentMargin(seitenrand);
    mittel.binder.binde(static_cast<QWidget&>(*feld), anzeige);
    anzeige.ansicht = [feld, &anzeige, pixel_je_punkt, gezeigt = std::string()]() mutable {
        if (gezeigt != anzeige.text()) {
            gezeigt = anzeige.text();
            setze_absaetze(*feld->document(), rtf_lesen(gezeigt), pixel_je_punkt);
            feld->moveCursor(QTextCursor::Start);
            feld->horizontalScrollBar()->setValue(0);
            feld->verticalScrollBar()->setValue(0);
        }
        grundzustand(*feld, anzeige);
    };
    anzeige.ansicht();
    textmenue(*feld);
    return feld;
}

QWidget* temperaturfeld(Anzeige& anzeige, const Ebenenbau& bau, const QWidget& fenster) {
    QPlainTextEdit* feld = bau.textansicht(anzeige, mass::schrift, utf8(fenster.windowTitle()));
    feld->document()->setDocumentMargin(seitenrand);
    textmenue(*feld);
    return feld;
}

/// What went wrong at the last save: a path of any length wraps in it and can be copied.
void hinweisfeld(Anzeige& anzeige, const Ebenenbau& bau, const QWidget& fenster) {
    QPlainTextEdit* feld = bau.textansicht(anzeige, mass::schrift, utf8(fenster.windowTitle()));
    feld->setFont(fenster.font());
    feld->setLineWrapMode(QPlainTextEdit::WidgetWidth);
    feld->setWordWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
}

/// The keys that copy and select are those of the text shown, wherever the focus is in the window; a text
/// that has it takes them itself.
void kopiertasten(const A_Report& a, Nebenfenster* fenster, QWidget* report, QWidget* temperaturen) {
    for (const auto& [tasten, tat] :
         {std::pair{QKeySequence::Copy, "copy"}, {QKeySequence::SelectAll, "selectAll"}}) {
        auto* kuerzel = new QShortcut(tasten, fenster);
        QObject::connect(kuerzel, &QShortcut::activated, fenster, [&a, report, temperaturen, tat = tat] {
            QMetaObject::invokeMethod(a.Report1.sichtbar() ? report : temperaturen, tat);
        });
    }
}

/// The number of the page shown, over the button of the page.
void marke(Anzeige& anzeige, const Ebenenbau& bau) {
    constexpr QSize groesse(24, 25);
    QLabel* schild = bau.anzeige(anzeige);
    schild->setAttribute(Qt::WA_TransparentForMouseEvents);
    schild->setAutoFillBackground(true);
    schild->setAlignment(Qt::AlignCenter);
    schild->setFixedSize(groesse);
    QPalette farben = schild->palette();
    farben.setColor(QPalette::Window, farben.color(QPalette::Highlight));
    farben.setColor(QPalette::WindowText, farben.color(QPalette::HighlightedText));
    schild->setPalette(farben);
}

}  // namespace

QWidget* report_ansicht(A_Report& a, const Ansichtsmittel& mittel, QWidget* eltern) {
    constexpr QSize bevorzugt(724, 760);
    constexpr QSize mindestens(724, 500);
    auto* fenster = new Nebenfenster(
        mittel.wache, [&a] { a.Command_Schliessen.druecke(); }, eltern);
    fenster->setWindowModality(Qt::ApplicationModal);
    fenster->setWindowTitle(qtext(beschriftung("A_Report", fenstertitel, mittel.sprache)));
    fenster->setMinimumSize(static_cast<int>(A_Report::mindestbreite()), 300);
    fenster->einheitsgroesse(bevorzugt, mindestens);
    fenster->anordnen = [&a](QSizeF innen) { a.anordnen(innen.width(), innen.height()); };
    const Ebenenbau bau(*fenster, "A_Report", mittel);
    QWidget* report = reportfeld(a.Report1, mittel, fenster);
    QWidget* temperaturen = temperaturfeld(a.Temperaturverlauf1, bau, *fenster);
    hinweisfeld(a.Hinweis, bau, *fenster);
    kopiertasten(a, fenster, report, temperaturen);
    for (int i = 1; i <= A_Report::knoepfe; ++i)
        bau.knopf(a.Seite(i));
    bau.knopf(a.Command_Speichern);
    bau.knopf(a.Command_Schliessen);
    marke(a.AktSeite, bau);
    mittel.binder.binde(static_cast<QWidget&>(*fenster), a.fenster);
    a.fenster.ansicht = [&a, fenster, report, temperaturen] {
        const bool kommt = fenster->isHidden();
        grundzustand(*fenster, a.fenster);
        // The keys scroll the text that is shown.
        if (kommt) (a.Report1.sichtbar() ? report : temperaturen)->setFocus();
    };
    return fenster;
}

}  // namespace velmaris
