#include "desktop/hauptfenster.h"

#include "desktop/platform/massstab.h"
#include "desktop/platform/qt_text.h"
#include "desktop/platform/stil.h"
#include "desktop/views/ansichten.h"
#include "desktop/widgets/ebenenbalken.h"
#include "desktop/widgets/zugang.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDropEvent>
#include <QMenu>
#include <QMenuBar>
#include <QMimeData>
#include <QScreen>
#include <QShortcut>
#include <array>

namespace velmaris {
namespace {

/// Places in the window below the menu, pixels.
constexpr int leistenhoehe = 25;
constexpr int ausgabe_links = 352;
constexpr int ausgabeleiste_oben = 502;
constexpr QSize flaechengroesse(800, 546);

constexpr QSize kleinstes_fenster(800, 565);

/// Entries with a key of their own.
struct Tastenzeile {
    std::string_view punkt;
    QKeySequence taste;
};

const std::array<Tastenzeile, 6>& tasten() {
    static const std::array<Tastenzeile, 6> zeilen{{
        {"mnuFileNeu", QKeySequence(Qt::CTRL | Qt::Key_N)},
        {"mnuFileOeffnen", QKeySequence(Qt::CTRL | Qt::Key_O)},
        {"mnuFileSpeichern", QKeySequence(Qt::CTRL | Qt::Key_S)},
        {"mnuFileunter", QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_S)},
        {"mnuFileDrucken", QKeySequence(Qt::CTRL | Qt::Key_P)},
        {"mnuFileExit", QKeySequence(Qt::CTRL | Qt::Key_Q)},
    }};
    return zeilen;
}

/// The project file among dropped things, empty without one.
QString projektdatei(const QMimeData& ding) {
    for (const QUrl& adresse : ding.urls()) {
        QString datei = adresse.toLocalFile();
        if (datei.endsWith(QLatin1String(".vel"), Qt::CaseInsensitive)) return datei;
    }
    return {};
}

}  // namespace

Hauptfenster::Hauptfenster(Haupt& haupt, const Ansichtsmittel& mittel)
    : haupt_(haupt),
      mittel_(mittel),
      flaeche_(new QWidget(new QWidget(this))),
      ebenenfokus_(*flaeche_),
      massstab_(*this) {
    zugang_einrichten();
    setObjectName(QStringLiteral("Haupt"));
    setAcceptDrops(true);
    setCentralWidget(flaeche_->parentWidget());
    setMinimumSize(kleinstes_fenster);
    flaeche_->resize(flaechengroesse);
    menue_bauen();
    leiste_bauen(haupt.e_menue, QRect(0, 0, ausgabe_links, leistenhoehe));
    eingabeebenen_bauen();
    ausgabeebenen_bauen();
    leiste_bauen(haupt.a_menue, QRect(ausgabe_links, ausgabeleiste_oben, ausgabegroesse.width(),
                                      flaechengroesse.height() - ausgabeleiste_oben));
    zoom_ansicht(haupt.a_zoom, mittel, this);
    zoom_klima_ansicht(haupt.e_klima.zoom, mittel, this);
    report_ansicht(haupt.a_report, mittel, this);
    druck_ansicht(haupt.drucken, mittel, this);
    klimaimport_ansicht(haupt.e_klimaimport, mittel, this);
    connect(new QShortcut(Qt::Key_F11, this), &QShortcut::activated, this,
            &Hauptfenster::vollbild_umschalten);
}

void Hauptfenster::menue_bauen() {
    for (const Menueknoten& knoten : haupt_.menue.menues()) {
        auto* menue = new QMenu(this);
        menuBar()->addMenu(menue);
        mittel_.binder.binde(*menue->menuAction(), *knoten.punkt);
        menue_fuellen(*menue, knoten.kinder);
    }
}

void Hauptfenster::menue_fuellen(QMenu& menue, const std::vector<Menueknoten>& alle) {
    for (const Menueknoten& knoten : alle) {
        if (!knoten.punkt) {
            menue.addSeparator();
        } else if (!knoten.kinder.empty()) {
            auto* untermenue = new QMenu(&menue);
            menue.addMenu(untermenue);
            mittel_.binder.binde(*untermenue->menuAction(), *knoten.punkt);
            menue_fuellen(*untermenue, knoten.kinder);
        } else {
            auto* eintrag = new QAction(&menue);
            mittel_.binder.binde(*eintrag, *knoten.punkt);
            for (const Tastenzeile& zeile : tasten()) {
                if (zeile.punkt == knoten.punkt->name) eintrag->setShortcut(zeile.taste);
            }
            menue.addAction(eintrag);
        }
    }
}

/// A plane that is chosen gets the focus, unless the button was worked by key.
void Hauptfenster::leiste_bauen(Ebenenleiste& leiste, const QRect& platz) {
    auto* balken = new Ebenenbalken(leiste, mittel_.binder, flaeche_);
    lege(*balken, platz);
    leiste.zugewandt = [this, balken](const Feld& ebene) {
        const QString name = qtext(ebene.name);
        if (balken->behaelt_fokus()) {
            ebenenfokus_.merke(name);
        } else {
            ebenenfokus_.gehe_zu(name);
        }
    };
}

void Hauptfenster::eingabeebenen_bauen() {
    for (QWidget* ebene : {geometrie_ansicht(haupt_.e_geometrie, mittel_, flaeche_),
                           fenster_ansicht(haupt_.e_fenster, mittel_, flaeche_),
                           daemmung_ansicht(haupt_.e_daemmung, mittel_, flaeche_),
                           gebaeude_ansicht(haupt_.e_gebaeude, mittel_, flaeche_),
                           klima_ansicht(haupt_.e_klima, mittel_, flaeche_),
                           energie_ansicht(haupt_.e_energie, mittel_, flaeche_)})
        lege(*ebene, QRect(QPoint(0, leistenhoehe), eingabegroesse));
}

void Hauptfenster::ausgabeebenen_bauen() {
    for (QWidget* ebene : {uebersicht_ansicht(haupt_.a_uebersicht, mittel_, flaeche_),
                           klima_gebaeude_ansicht(haupt_.a_klima, mittel_, flaeche_),
                           heizen_ansicht(haupt_.a_heizen, mittel_, flaeche_),
                           kuehlen_ansicht(haupt_.a_kuehlen, mittel_, flaeche_),
                           sankey_ansicht(haupt_.a_sankey, mittel_, flaeche_)})
        lege(*ebene, QRect(QPoint(ausgabe_links, 0), ausgabegroesse));
}

void Hauptfenster::zeigen() {
    constexpr int hoeher = 13;  // the window stands a little above the middle
    const QRect schirm = screen()->availableGeometry();
    resize(hauptfenstergroesse * erster_massstab(*this));
    move(schirm.center() - QPoint(width() / 2, height() / 2 + hoeher));
    mittel_.wache.fuehre_aus([this] { haupt_.laden(); });
    show();
}

/// The planes take the largest scale at which they fit under the menu, and the middle of the window.
void Hauptfenster::einpassen() {
    massstab_.setze(passender_massstab(size(), hauptfenstergroesse));
    tippschrift_setzen(massstab(*this));
    const QSize groesse = in_pixeln(massstab(*this), flaechengroesse);
    const QSize rest = (centralWidget()->size() - groesse).expandedTo(QSize(0, 0)) / 2;
    flaeche_->setGeometry(QRect(QPoint(rest.width(), rest.height()), groesse));
}

void Hauptfenster::vollbild_umschalten() {
    setWindowState(windowState() ^ Qt::WindowFullScreen);
}

void Hauptfenster::resizeEvent(QResizeEvent* ereignis) {
    QMainWindow::resizeEvent(ereignis);
    einpassen();
}

void Hauptfenster::closeEvent(QCloseEvent* ereignis) {
    ereignis->ignore();
    mittel_.wache.fuehre_aus([this] { haupt_.datei.fenster_schliessen(); });
}

/// A window over this one keeps dropped files out, as it keeps out keys and clicks.
void Hauptfenster::dragEnterEvent(QDragEnterEvent* ereignis) {
    if (QApplication::activeModalWidget() == nullptr && !projektdatei(*ereignis->mimeData()).isEmpty())
        ereignis->acceptProposedAction();
}

/// The source of the drag waits until this returns, and a question may follow; so the file is opened after
/// it. The source keeps its file, whatever it proposes.
void Hauptfenster::dropEvent(QDropEvent* ereignis) {
    ereignis->setDropAction(Qt::CopyAction);
    ereignis->accept();
    activateWindow();
    const auto oeffnen = [this, datei = utf8(projektdatei(*ereignis->mimeData()))] {
        mittel_.wache.fuehre_aus([&] { haupt_.datei.datei_oeffnen(datei); });
    };
    QMetaObject::invokeMethod(this, oeffnen, Qt::QueuedConnection);
}

}  // namespace velmaris
