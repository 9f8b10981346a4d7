#include "tests/documents/unterlagen.h"

#include "project/feldtabelle.h"
#include "tests/hilfen.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <regex>
#include <sstream>
#include <type_traits>

namespace velmaris::test {
namespace {

/// Gives the numbers of a record values that rise by the step.
template <class Satz, class Felder>
void fuellen(Satz& satz, const Felder& felder, double wert, double schritt) {
    for (const auto& feld : felder) {
        wert += schritt;
        std::visit(
            [&](auto zeiger) {
                using Zahl = std::remove_reference_t<decltype(satz.*zeiger)>;
                if constexpr (std::is_arithmetic_v<Zahl>) satz.*zeiger = static_cast<Zahl>(wert);
            },
            feld.zeiger);
    }
}

std::unique_ptr<Projekt> datensatz(const std::string& sprache) {
    auto p = std::make_unique<Projekt>();
    fuellen(*p, felder(), 3.4567, 7.13);
    for (int m = 1; m <= monate; ++m) {
        fuellen(p->Monat(m), monatsfelder(), 1000 * m + 0.4567, 41.3);
        p->Monat(m).Tage = static_cast<std::int16_t>(tage_im_monat.at(static_cast<std::size_t>(m)));
        p->Monat(m).Name = "M" + std::to_string(m);
    }
    fuer_jede_stunde([&p](int m, int d, int h, int) {
        p->Wetter(m, d, h).Ta = static_cast<float>(2.5 * m - d + 0.31 * h);
    });
    p->f_nutz = 90.4F;
    p->Klimaeffizienz = 1.7F;
    p->Check_Dachgeschoss = p->Option_Dachfirst = 1;
    p->awn = p->aww = 0;
    p->Heizsystem = p->Energietraeger = 1;
    p->Klimadatei = "fern.met";
    p->Stationsname = "<Station>";
    p->Sprache = sprache;
    p->texte.txt_Monat = "<Monat>";
    p->texte.txt_Jahresbilanz = "<Jahr>";
    return p;
}

constexpr Kurzname traeger{"Träger", "carrier"};

/// The value of a field in the record or in a month, in month 0 of the year.
template <class Satz, class Zeiger>
double zahl(const Satz& satz, const Zeiger& zeiger) {
    return std::visit(
        [&](auto z) {
            if constexpr (std::is_arithmetic_v<std::remove_cvref_t<decltype(satz.*z)>>)
                return 1.0 * (satz.*z);
            return 0.0;
        },
        zeiger);
}

double feldwert(const Projekt& p, int m, const std::string& name) {
    if (name.front() <= '9') return std::stod(name);
    if (const auto* feld = feld_suchen(name)) return zahl(p, feld->zeiger);
    const auto felder = monatsfelder();
    const auto feld =
        std::find_if(felder.begin(), felder.end(), [&](const auto& f) { return f.name == name; });
    if (m > 0) return zahl(p.Monat(m), feld->zeiger);
    double summe = 0;
    for (const Monatswerte& monat : p.Monat)
        summe += zahl(monat, feld->zeiger);
    return summe;
}

/// The numbers in braces worked out.
std::string ausgerechnet(const Projekt& p, int m, std::string text) {
    static const std::regex klammer(R"(\{([^:}]*):(\d)\})");
    for (std::smatch treffer; std::regex_search(text, treffer, klammer);) {
        std::array<char, 64> ziffern{};
        std::snprintf(ziffern.data(), ziffern.size(), "%.*f", std::stoi(treffer.str(2)),
                      wert(p, m, treffer.str(1)));
        text = treffer.prefix().str() + ziffern.data() + treffer.suffix().str();
    }
    return text;
}

/// A row with the cells of six months written out.
std::string mit_haelfte(const Projekt& p, const std::string& text) {
    static const std::regex haelfte(R"(([17])@(\{[^}]*\}))");
    std::smatch treffer;
    if (!std::regex_search(text, treffer, haelfte)) return text;
    std::string zellen;
    const int erster = std::stoi(treffer.str(1));
    for (int m = erster; m < erster + 6; ++m)
        zellen += (m > erster ? "|" : "") + ausgerechnet(p, m, treffer.str(2));
    return treffer.prefix().str() + zellen + treffer.suffix().str();
}

}  // namespace

Unterlagen::Unterlagen(const std::string& sprache)
    : p(datensatz(sprache)),
      quelle{
          .p = *p,
          .auswahl = {"<Dachraum>",
                      "<Keller>",
                      "<Brücken>",
                      "<außen>",
                      "<innen>",
                      {{{"<Fenster N>", "<Fenster S>", "<Fenster O>", "<Fenster W>"}}}},
          .gebaeude = {"<Umittel>", "<Tspez>", "<Vspez>", "<TVspez>", "<tau>", "<Heizlast>",
                       "<heizlast_spez>", "<kuehllast>", "<kuehllast_spez>", "<Heizgrenztemp>", "<Heiztage>"},
          .energie = {traeger, "", "<Übergabe>", "<Energieträger>", "<qhs_sum>", "<q_s>", "<q_d>", "<q_ce>",
                      "<e_g>", "<q_s_he>", "<q_d_he>", "<q_g_he>", "<q_HE>", "<q_HE_Strom>", "<f_p>",
                      "<f_p_Strom>", "<q_PE>", "<q_PE_Strom>"}} {
    quelle.energie.System = "<Heizung mit einem sehr langen Namen, der nicht auf eine Zeile passt>";
}

double wert(const Projekt& p, int m, const std::string& formel) {
    static const std::regex glied(R"(([-+*/]?)([\w.]+))");
    double ergebnis = 0;
    for (std::sregex_iterator i(formel.begin(), formel.end(), glied), ende; i != ende; ++i) {
        const double rechts = feldwert(p, m, i->str(2));
        const char zeichen = i->length(1) == 0 ? '+' : i->str(1).front();
        if (zeichen == '*') ergebnis *= rechts;
        if (zeichen == '/') ergebnis /= rechts;
        if (zeichen == '+') ergebnis += rechts;
        if (zeichen == '-') ergebnis -= rechts;
    }
    return ergebnis;
}

std::string zeile(const Zeilen& zellen) {
    std::string text;
    for (const std::string& zelle : zellen) {
        const auto anfang = zelle.find_first_not_of(' ');
        if (&zelle != &zellen.front()) text += '|';
        if (anfang != std::string::npos)
            text += zelle.substr(anfang, zelle.find_last_not_of(' ') + 1 - anfang);
    }
    return text;
}

std::string in_sprache(const Projekt& p, const std::string& zeile) {
    static const std::regex paar(R"(([^|\]@]*) = ([^|]*))");
    return std::regex_replace(zeile, paar, p.Sprache == "e" ? "$2" : "$1");
}

Zeilen seite(const Unterlagen& u, const std::string& datei, int nummer) {
    std::istringstream text(inhalt(VELMARIS_SEITEN "/" + datei + ".txt"));
    Zeilen zeilen;
    bool gefunden = false;
    for (std::string eine; std::getline(text, eine);) {
        if (eine.starts_with("# ")) gefunden = eine == "# " + std::to_string(nummer);
        if (!gefunden || eine.starts_with("# ") || eine.starts_with(u.p->Sprache == "e" ? "de>" : "en>"))
            continue;
        eine = in_sprache(*u.p, eine.find('>') == 2 ? eine.substr(3) : eine);
        if (!eine.starts_with("@")) {
            zeilen.push_back(ausgerechnet(*u.p, 0, mit_haelfte(*u.p, eine)));
            continue;
        }
        std::istringstream namen(eine.substr(1, eine.find('|') - 1));
        int m = 0;
        for (std::string name; namen >> name;)
            zeilen.push_back(name + ausgerechnet(*u.p, ++m, eine.substr(eine.find('|'))));
    }
    return zeilen;
}

}  // namespace velmaris::test
