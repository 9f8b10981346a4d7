#include "documents/print/drucktabelle.h"

#include <algorithm>

namespace velmaris {
namespace {

constexpr int monate_je_haelfte = 6;
constexpr double namensspalte = 26;
constexpr double jahresanker = 174;
constexpr double haelftenabstand = 4;
constexpr double doppelregelhoehe = 1;

/// Right edge of the column of month i (0..5) of a half year.
constexpr double monatsanker(int i) {
    return 82 + 13.4 * i;
}

/// The head of a half year between its rules. Returns the y below it.
double kopf_drucken(Blatt& blatt, double y, const Tabellenform& form, int haelfte) {
    const bool mit_jahr = haelfte == 1;
    const bool zweizeilig = mit_jahr && !form.jahr[1].de.empty();
    const double luft = (form.zeilenhoehe - blatt.drucker().texthoehe("J")) / 2;
    blatt.regel(y);
    const double erste = y + luft;
    const double letzte = zweizeilig ? erste + form.zeilenhoehe : erste;
    blatt.text(namensspalte, letzte, form.einheit);
    const auto namen = worte(monate_der_tabellen.at(static_cast<std::size_t>(haelfte)).in(blatt.sprache()));
    for (int i = 0; i < monate_je_haelfte; ++i)
        blatt.DruckeText(namen.at(static_cast<std::size_t>(i)), monatsanker(i), letzte);
    if (mit_jahr) blatt.DruckeText(form.jahr[0].in(blatt.sprache()), jahresanker, erste);
    if (zweizeilig) blatt.DruckeText(form.jahr[1].in(blatt.sprache()), jahresanker, letzte);
    const double unten = letzte - luft + form.zeilenhoehe;
    blatt.doppelregel(unten);
    return unten + doppelregelhoehe;
}

/// One half year with its rules. Returns the y of the last one.
double haelfte_drucken(Blatt& blatt, double y, const Tabellenform& form,
                       std::span<const Tabellenzeile> zeilen, int haelfte) {
    const bool mit_jahr = haelfte == 1;
    y = kopf_drucken(blatt, y, form, haelfte);
    const double luft = (form.zeilenhoehe - blatt.drucker().texthoehe("J")) / 2;
    for (const Tabellenzeile& zeile : zeilen) {
        blatt.text(namensspalte, y + luft, zeile.name);
        for (int i = 0; i < monate_je_haelfte; ++i)
            blatt.DruckeWert(zeile.monat(haelfte * monate_je_haelfte + i + 1), monatsanker(i), zeile.stellen,
                             y + luft);
        if (mit_jahr && zeile.jahr) blatt.DruckeWert(*zeile.jahr, jahresanker, zeile.stellen, y + luft);
        y += form.zeilenhoehe;
    }
    blatt.regel(y);
    return y;
}

}  // namespace

std::vector<std::string_view> worte(std::string_view zeile) {
    std::vector<std::string_view> alle;
    for (auto anfang = zeile.find_first_not_of(' '); anfang != std::string_view::npos;
         anfang = zeile.find_first_not_of(' ', anfang)) {
        const auto ende = std::min(zeile.find(' ', anfang), zeile.size());
        alle.push_back(zeile.substr(anfang, ende - anfang));
        anfang = ende;
    }
    return alle;
}

double monatstabelle_drucken(Blatt& blatt, double y, const Tabellenform& form,
                             std::span<const Tabellenzeile> zeilen) {
    blatt.schrift({.groesse = form.schrift});
    y = haelfte_drucken(blatt, y, form, zeilen, 0);
    return haelfte_drucken(blatt, y + haelftenabstand, form, zeilen, 1);
}

}  // namespace velmaris
