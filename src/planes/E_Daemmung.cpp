#include "planes/E_Daemmung.h"

#include "toolkit/wort.h"
#include "toolkit/zahlen.h"

#include <algorithm>
#include <string>
#include <vector>

namespace velmaris {
namespace {

/// The surcharges of the heat bridge options 1 to 3, W/(m2 K).
constexpr std::array<double, 3> waermebruecken{0, 0.10, 0.05};

/// The row of the roof space table that no entry of the list stands for.
constexpr int dachraum_leer = 3;

std::vector<std::string> in_sprache(const std::vector<Zweisprachig>& texte, const std::string& sprache) {
    std::vector<std::string> zeilen(texte.size());
    std::transform(texte.begin(), texte.end(), zeilen.begin(),
                   [&](const Zweisprachig& text) { return text.in(sprache); });
    return zeilen;
}

}  // namespace

E_Daemmung::E_Daemmung(Sitzung& sitzung) : s_(sitzung) {
    for (const auto& [feld, anzeige] : schieber()) {
        feld->geaendert = [this, feld = feld, anzeige = anzeige] {
            feld->uebernehmen(s_.p);
            anzeige->schreibe(feld->anzeigetext(s_.p));
            geaendert(s_);
        };
    }
    fuellen();
    ugd.gewaehlt = [this] {
        s_.p.ugd_typ = i16(ugd.index(), "ugd_typ");
        s_.alles_berechnen();
    };
    ogd.gewaehlt = [this] {
        s_.p.Dachraum_typ = i16(ogd.index(), "Dachraum_typ");
        s_.alles_berechnen();
    };
    cbk_hDach.geklickt = [this] {
        s_.p.cbk_hDach = i16(1 - cbk_hDach.wert(), "cbk_hDach");
        geaendert(s_);
    };
    Waermebruecken_opt.geklickt = [this](int index) {
        s_.p.Waermebruecken = f32(waermebruecken[static_cast<std::size_t>(index - 1)]);
        geaendert(s_);
    };
    dachgeschoss_zeigen(false);
    ebene.zeige(false);
}

std::array<std::pair<Eingabefeld*, Anzeige*>, 9> E_Daemmung::schieber() {
    return {{{&kwn_sb, &kwn_anz},
             {&kws_sb, &kws_anz},
             {&kwo_sb, &kwo_anz},
             {&kww_sb, &kww_anz},
             {&kd_sb, &kd_anz},
             {&kk_sb, &kk_anz},
             {&ft_sb, &ft_anz},
             {&kt_sb, &kt_anz},
             {&absfaktor_sb, &absfaktor_anz}}};
}

void E_Daemmung::fuellen() {
    const std::string& sprache = s_.p.Sprache;
    ugd.fuelle(
        in_sprache({{"Unbeheizter Keller (mit Perimeterdämmung)", "non-heated cellar (with insulation)"},
                    {"Unbeheizter Keller (ohne Perimeterdämmung)", "non-heated cellar (without insulation)"},
                    {"Erdreich (mit Randdämmung)", "soil (with border insulation)"},
                    {"Erdreich (ohne Randdämmung)", "soil (without border insulation)"},
                    {"Außenluft (aufgeständerter Fußboden)", "outside air"}},
                   sprache));
    ogd.fuelle(in_sprache({{"Außen oder nicht gedämmtes Dach", "outside or non-insulated roof"},
                           {"Teilgedämmtes Dach", "partly insulated roof"},
                           {"Vollgedämmtes Dach", "totally insulated roof"}},
                          sprache));
    ogd_Dach.fuelle(in_sprache({{"Außenluft", "outside air"}}, sprache));
    ogd_Dach.markiere(0);
}

void E_Daemmung::dachgeschoss_zeigen(bool beheizt) {
    const Zweisprachig name =
        beheizt ? Zweisprachig{"Dach", "roof"} : Zweisprachig{"Obere Geschoßdecke", "upper floor"};
    liste2.schreibe(name.in(s_.p.Sprache));
    ogd.zeige(!beheizt);
    ogd_Dach.zeige(beheizt);
}

void E_Daemmung::eingaben_anzeigen() {
    Projekt& p = s_.p;
    for (Eingabefeld* feld : {&kwn_sb, &kws_sb, &kwo_sb, &kww_sb, &kd_sb, &kk_sb, &ft_sb, &kt_sb})
        feld->stellen(p);
    ft_anz.schreibe(ft_sb.anzeigetext(p));
    kt_anz.schreibe(kt_sb.anzeigetext(p));
    ugd.setze(p.ugd_typ);
    if (p.Dachraum_typ == dachraum_leer) {
        ogd.markiere(-1);
    } else {
        ogd.setze(p.Dachraum_typ);
    }
    cbk_hDach.setze_verneint(p.cbk_hDach);
    absfaktor_sb.stellen(p);
    Waermebruecken_opt.markiere(std::nullopt);
    for (int option = 1; option <= 3; ++option) {
        if (p.Waermebruecken == f32(waermebruecken[static_cast<std::size_t>(option - 1)])) {
            Waermebruecken_opt.setze(option);
        }
    }
}

}  // namespace velmaris
