#include "desktop/programm.h"

#include "desktop/platform/massstab.h"
#include "desktop/platform/qt_text.h"
#include "desktop/startfenster.h"
#include "toolkit/text.h"
#include "toolkit/wort.h"

#include <QCoreApplication>
#include <QDesktopServices>
#include <QLibraryInfo>

namespace velmaris {
namespace {

/// That the program ends, and where the rescued project is, if there is one and it could be rescued.
std::string abschiedstext(const Rettung& rettung, const std::string& sprache) {
    const Zweisprachig ende{"Das Programm wird beendet.", "The program ends."};
    if (!rettung.hat_stand()) return ende.in(sprache);
    const std::optional<std::filesystem::path> datei = rettung.letzten_stand_retten();
    const Zweisprachig verloren{" Das Projekt konnte nicht gerettet werden.",
                                " The project could not be rescued."};
    const Zweisprachig gerettet{
        " Der letzte Stand Ihres Projekts, der ohne Fehler berechnet wurde, liegt in:\n",
        " The last state of your project that was calculated without a fault is kept in:\n"};
    if (!datei) return ende.in(sprache) + verloren.in(sprache);
    return ende.in(sprache) + gerettet.in(sprache) + pfadtext(*datei);
}

/// German for what the toolkit's own dialogs and menus say, where its translations are installed.
void qt_deutsch(QTranslator& texte) {
    if (texte.load(QStringLiteral("qtbase_de"), QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QCoreApplication::installTranslator(&texte);
}

}  // namespace

Programm::Programm(const std::filesystem::path& programmordner, const std::string& sprache,
                   const Befehlszeile& befehlszeile)
    : binder_(wache_),
      plattform_(wache_, [sprache] { return sprache; }),
      haupt_(std::make_unique<Haupt>(plattform_, programmordner, sprache)),
      mittel_{wache_, binder_, sprache, haupt_->sitzung},
      start_(std::make_unique<Start>(*haupt_, befehlszeile, [this] { fenster_->zeigen(); })),
      fenster_(std::make_unique<Hauptfenster>(*haupt_, mittel_)),
      startfenster_(startfenster(*start_, mittel_, programmordner)),
      hilfefenster_(wache_, sprache),
      hilfetaste_(
          [this](const std::string& seite) { wache_.fuehre_aus([&] { haupt_->datei.hilfe_zeigen(seite); }); },
          [this] { return fenster_->ebene_in_gebrauch(); }) {
    if (!englisch(sprache)) qt_deutsch(qt_texte_);
    wache_.fehler_behandeln = [this](const Laufzeitfehler& f) { fehler(f); };
    plattform_.hauptfenster(fenster_.get());
    plattform_.hilfe_zeigen = [this](const std::filesystem::path& datei, const std::string& seite) {
        hilfefenster_.massstab_vorschlagen(massstab(*fenster_));
        hilfefenster_.zeige(datei, seite);
    };
    hilfefenster_.fremder_verweis = [this](const QUrl& verweis) { verweis_nach_aussen(verweis); };
    haupt_->info_zeigen = [this] { start_->laden(); };
}

Programm::~Programm() = default;

void Programm::starten() {
    wache_.fuehre_aus([this] { start_->laden(); });
}

void Programm::fehler(const Laufzeitfehler& fehler) {
    if (am_ende_) return;
    plattform_.sanduhr(false);
    const std::string& sprache = haupt_->p.Sprache;
    Meldung meldung{.text = fehler.text(sprache), .titel = "Velmaris", .symbol = Symbol::ausrufezeichen};
    if (dynamic_cast<const Dateifehler*>(&fehler) != nullptr) {
        plattform_.melde(meldung);
        return;
    }
    am_ende_ = true;
    meldung.hinweis = abschiedstext(haupt_->rettung, sprache);
    plattform_.melde(meldung);
    QMetaObject::invokeMethod(
        qApp, [] { QCoreApplication::exit(1); }, Qt::QueuedConnection);
}

/// A link of the help that leads to the network is followed only if the user wants it.
void Programm::verweis_nach_aussen(const QUrl& verweis) {
    if (!verweis.scheme().startsWith(QLatin1String("http"))) return;
    const Zweisprachig frage{"Dieser Verweis führt ins Netz. Im Browser öffnen?",
                             "This link leads to the network. Open it in the browser?"};
    if (plattform_.melde({.text = frage.in(haupt_->p.Sprache),
                          .titel = "Velmaris",
                          .knoepfe = Knoepfe::ja_nein,
                          .vorgabe = Antwort::nein,
                          .hinweis = utf8(verweis.toDisplayString())}) == Antwort::ja)
        QDesktopServices::openUrl(verweis);
}

}  // namespace velmaris
