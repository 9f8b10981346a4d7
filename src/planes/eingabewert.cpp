#include "planes/eingabewert.h"

#include "toolkit/text.h"
#include "toolkit/zahlen.h"

#include <algorithm>
#include <string>

namespace velmaris {
namespace {

std::string ersetzt(std::string_view text, std::string_view alt, std::string_view neu) {
    std::string ergebnis(text);
    for (std::size_t i = ergebnis.find(alt); i != std::string::npos; i = ergebnis.find(alt, i + neu.size()))
        ergebnis.replace(i, alt.size(), neu);
    return ergebnis;
}

constexpr std::string_view ziffern = "0123456789";

/// Without the caption of a display and with the minus sign and the blanks of ASCII alone.
std::string gesaeubert(std::string_view text) {
    const std::size_t doppelpunkt = text.find(':');
    if (doppelpunkt < text.find_first_of(ziffern)) text.remove_prefix(doppelpunkt + 1);
    std::string sauber = ersetzt(text, "\u2212", "-");
    for (const char* blank : {"\u00A0", "\u2009", "\u202F", "\t"})
        sauber = ersetzt(sauber, blank, " ");
    return sauber.erase(0, std::min(sauber.find_first_not_of(' '), sauber.size()));
}

/// What is left of a unit in all ways of writing it. "1/h" is read as "/h": a digit before the stroke belongs
/// to the number.
std::string kern(std::string_view einheit) {
    std::string text = kleinschreiben(einheit);
    for (const auto& [alt, neu] : {std::pair{"²", "2"}, {"°", ""}, {"·", ""}, {"*", ""}, {"^", ""}})
        text = ersetzt(text, alt, neu);
    std::erase_if(text, [](char c) { return c == ' ' || c == '(' || c == ')'; });
    if (text.starts_with("1/")) text.erase(0, 1);
    std::erase(text, '/');
    return text;
}

Zweisprachig einwand(const Zweisprachig& grund, const Scrollzeile& zeile) {
    return {grund.de + zeile.bereich_mit_einheit("d"), grund.en + zeile.bereich_mit_einheit("e")};
}

}  // namespace

std::variant<int, Zweisprachig> eingabewert(const Scrollzeile& zeile, std::string_view text) {
    const std::string sauber = gesaeubert(text);
    const std::size_t ende = std::min(sauber.find_first_not_of("0123456789+-.,"), sauber.size());
    const auto zahl = zahl_pruefen(ersetzt(sauber.substr(0, ende), ",", "."));
    const std::string einheit = kern(std::string_view(sauber).substr(ende));
    if (!zahl || (!einheit.empty() && einheit != kern(zeile.einheit)))
        return einwand({"Bitte eine Zahl eingeben: ", "Please type a number: "}, zeile);

    const double stellung = runden(*zahl / zeile.anzeigefaktor * zeile.teiler);
    if (stellung < zeile.minimum || stellung > zeile.maximum)
        return einwand({"Außerhalb des Bereichs: ", "Out of range: "}, zeile);
    return static_cast<int>(stellung);
}

}  // namespace velmaris
