#include "desktop/drucklauf.h"

#include "desktop/platform/qt_drucker.h"
#include "desktop/platform/qt_text.h"
#include "documents/print/Ausdrucken.h"
#include "planes/Start.h"
#include "planes/dokumentquelle.h"
#include "planes/projekt_rechnen.h"
#include "toolkit/fehler.h"
#include "toolkit/konsolenplattform.h"
#include "toolkit/text.h"
#include "toolkit/wort.h"

#include <QCommandLineParser>
#include <algorithm>
#include <ostream>
#include <string_view>

namespace velmaris {
namespace {

constexpr int gelungen = 0;
constexpr int gescheitert = 1;
constexpr int falscher_aufruf = 2;

constexpr const char* aufruf = "Aufruf / usage: velmaris --drucken DATEI.pdf [--sprache d|e] PROJEKT.vel";

/// What is asked for.
struct Druckauftrag {
    std::string projekt;
    std::string pdf;
    std::string sprache;
};

/// Reads the command line; nothing if it is wrong.
std::optional<Druckauftrag> druckauftrag(const QStringList& angaben,
                                         const std::filesystem::path& programmordner) {
    const QString drucken = QLatin1String(druckangabe);
    const QString sprache = QStringLiteral("sprache");
    QCommandLineParser leser;
    leser.addOption({drucken, QString(), QStringLiteral("DATEI")});
    leser.addOption({sprache, QString(), QStringLiteral("d|e")});
    if (!leser.parse(angaben) || leser.positionalArguments().size() != 1) return std::nullopt;
    Druckauftrag auftrag{.projekt = utf8(leser.positionalArguments().constFirst()),
                         .pdf = utf8(leser.value(drucken)),
                         .sprache = utf8(leser.value(sprache))};
    if (leser.isSet(sprache) && !bekannte_sprache(auftrag.sprache)) return std::nullopt;
    if (auftrag.pdf.empty() || auftrag.pdf.starts_with("--")) return std::nullopt;
    if (auftrag.sprache.empty())
        auftrag.sprache = sprache_bestimmen(Befehlszeile(""), programmordner,
                                            Konsolenplattform().datenordner(), [] { return std::nullopt; });
    if (!bekannte_sprache(auftrag.sprache)) auftrag.sprache = "d";
    return auftrag;
}

void drucken(const Druckauftrag& auftrag, const std::filesystem::path& programmordner) {
    Konsolenplattform plattform;
    const auto haupt = projekt_rechnen(plattform, programmordner, auftrag.sprache, auftrag.projekt);
    const auto drucker = qt_drucker(
        {.titel = pfadtext(pfad(auftrag.projekt).filename()), .drucker = {}, .pdf = pfad(auftrag.pdf)});
    Ausdrucken(*drucker, dokumentquelle(*haupt), alles_drucken, heutiges_datum());
}

}  // namespace

bool ist_drucklauf(int argc, const char* const* argv) {
    const std::string angabe = std::string("--") + druckangabe;
    return std::any_of(argv + 1, argv + argc, [&angabe](std::string_view wort) {
        return wort == angabe || wort.starts_with(angabe + "=");
    });
}

int drucklauf(const QStringList& angaben, const std::filesystem::path& programmordner, std::ostream& fehler) {
    const auto auftrag = druckauftrag(angaben, programmordner);
    if (!auftrag) {
        fehler << aufruf << '\n';
        return falscher_aufruf;
    }
    const bool gut =
        versuchen(fehler, auftrag->sprache, auftrag->projekt, [&] { drucken(*auftrag, programmordner); });
    return gut ? gelungen : gescheitert;
}

}  // namespace velmaris
