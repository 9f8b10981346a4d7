#include "tests/testplattform.h"

#include "toolkit/text.h"

#include <utility>

namespace velmaris::test {
namespace {

/// Takes the first of the prepared answers, or the one for an empty script.
template <class T>
T naechste(std::vector<T>& vorrat, T sonst) {
    if (vorrat.empty()) return sonst;
    T erste = std::move(vorrat.front());
    vorrat.erase(vorrat.begin());
    return erste;
}

}  // namespace

void Testplattform::lasse_ablaufen(const std::string& name) {
    const auto ablauf = zeitgeber.at(name).ablauf;
    zeitgeber.erase(name);
    ablauf();
}

Antwort Testplattform::melde(const Meldung& meldung) {
    meldungen.push_back(meldung);
    return naechste(antworten, Antwort::ok);
}

std::optional<std::string> Testplattform::eingabe(const std::string&, const std::string&,
                                                  const std::string&) {
    return naechste(eingaben, std::optional<std::string>());
}

std::optional<std::filesystem::path> Testplattform::dateidialog(const Dateidialog& dialog) {
    dialoge.push_back(dialog);
    return naechste(dateien, std::optional<std::filesystem::path>());
}

void Testplattform::zeitgeber_starten(const std::string& name, int millisekunden,
                                      std::function<void()> ablauf) {
    zeitgeber[name] = {millisekunden, std::move(ablauf)};
}

void Testplattform::hilfe(const std::filesystem::path& datei, const std::string& seite) {
    hilfeseiten.push_back(pfadtext(datei.filename()) + "::" + seite);
}

}  // namespace velmaris::test
