#include "tests/testplattform.h"

#include "toolkit/text.h"

#include <utility>

namespace velmaris::test {
namespace {

/// Takes the first of the prepared answers; nothing if the script is over.
template <class T>
std::optional<T> naechste(std::vector<T>& vorrat) {
    if (vorrat.empty()) return std::nullopt;
    std::optional<T> erste(std::move(vorrat.front()));
    vorrat.erase(vorrat.begin());
    return erste;
}

/// A prepared answer that may be a cancel.
template <class T>
std::optional<T> ohne_leere(std::optional<T> antwort) {
    if (antwort && antwort->empty()) antwort.reset();
    return antwort;
}

}  // namespace

void Testplattform::lasse_ablaufen(const std::string& name) {
    const auto ablauf = zeitgeber.at(name).ablauf;
    zeitgeber.erase(name);
    ablauf();
}

Antwort Testplattform::melde(const Meldung& meldung) {
    meldungen.push_back(meldung);
    return naechste(antworten).value_or(Antwort::ok);
}

std::optional<std::string> Testplattform::eingabe(const std::string&, const std::string&,
                                                  const std::string&) {
    return ohne_leere(naechste(eingaben));
}

std::optional<std::filesystem::path> Testplattform::dateidialog(const Dateidialog& dialog) {
    dialoge.push_back(dialog);
    auto datei = ohne_leere(naechste(dateien));
    if (datei && !datei->has_extension()) *datei += dialog.endung;
    return datei;
}

void Testplattform::zeitgeber_starten(const std::string& name, int millisekunden,
                                      std::function<void()> ablauf) {
    zeitgeber[name] = {millisekunden, std::move(ablauf)};
}

void Testplattform::hilfe(const std::filesystem::path& datei, const std::string& seite) {
    hilfeseiten.push_back(pfadtext(datei.filename()) + "::" + seite);
}

}  // namespace velmaris::test
