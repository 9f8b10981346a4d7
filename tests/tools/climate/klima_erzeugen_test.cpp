#include "climate/sonne.h"
#include "tests/hilfen.h"
#include "toolkit/fehler.h"
#include "toolkit/text.h"
#include "tools/climate/klimasatz.h"
#include "tools/climate/zufall.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <map>
#include <numbers>
#include <numeric>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

namespace velmaris::klimasatz {
namespace {

using test::inhalt;
using test::Testordner;

constexpr std::array<int, 12> monatslaengen{31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};

/// The delivered facts as text, by column name, read without the generator.
std::vector<std::map<std::string, std::string>> faktentexte() {
    std::istringstream strom(inhalt(STATIONSLISTE));
    const auto felder = [](const std::string& zeile) {
        std::vector<std::string> ergebnis;
        std::istringstream teile(zeile + ",");
        for (std::string feld; std::getline(teile, feld, ',');)
            ergebnis.push_back(feld);
        return ergebnis;
    };
    std::string zeile;
    std::getline(strom, zeile);
    const auto kopf = felder(zeile);
    std::vector<std::map<std::string, std::string>> stationen;
    while (std::getline(strom, zeile)) {
        const auto werte = felder(zeile);
        auto& station = stationen.emplace_back();
        for (std::size_t i = 0; i < kopf.size(); ++i)
            station[kopf[i]] = werte.at(i);
    }
    return stationen;
}

double monatsfakt(const std::map<std::string, std::string>& fakten, const std::string& gruppe, int m) {
    return std::stod(fakten.at(gruppe + (m < 10 ? "_0" : "_") + std::to_string(m)));
}

/// A file's year cut out of its text: index 0 is hour 1 of day 1.
struct Dateijahr {
    std::vector<std::string> kopf;
    std::vector<std::string> zeilen;
    std::vector<double> ta, global, diffus;
};

Dateijahr zerlegen(const std::string& bytes) {
    Dateijahr jahr;
    std::vector<std::string> zeilen;
    for (std::size_t von = 0; von < bytes.size();) {
        const std::size_t ende = bytes.find("\r\n", von);
        if (ende == std::string::npos) throw std::runtime_error("last line without CR LF");
        zeilen.push_back(bytes.substr(von, ende - von));
        von = ende + 2;
    }
    if (zeilen.size() != 8766) throw std::runtime_error("not 8766 lines");
    jahr.kopf.assign(zeilen.begin(), zeilen.begin() + 6);
    jahr.zeilen.assign(zeilen.begin() + 7, zeilen.end());
    jahr.zeilen.push_back(zeilen[6]);
    for (const std::string& zeile : jahr.zeilen) {
        jahr.ta.push_back(std::stod(zeile.substr(5, 5)));
        jahr.global.push_back(std::stod(zeile.substr(10, 5)));
        jahr.diffus.push_back(std::stod(zeile.substr(15, 5)));
    }
    return jahr;
}

std::vector<double> tagesmittel_von(const std::vector<double>& stundenwerte) {
    std::vector<double> mittel;
    for (std::size_t i = 0; i < stundenwerte.size(); i += 24)
        mittel.push_back(std::accumulate(&stundenwerte[i], &stundenwerte[i] + 24, 0.0) / 24);
    return mittel;
}

double korrelation_eins(const std::vector<double>& abweichung) {
    double produkte = 0;
    double quadrate = 0;
    for (std::size_t i = 1; i < abweichung.size(); ++i) {
        produkte += abweichung[i] * abweichung[i - 1];
        quadrate += abweichung[i] * abweichung[i];
    }
    return produkte / quadrate;
}

/// The values less each month's own mean.
std::vector<double> ohne_monatsmittel(std::vector<double> tage) {
    auto anfang = tage.begin();
    for (const int laenge : monatslaengen) {
        const double mittel = std::accumulate(anfang, anfang + laenge, 0.0) / laenge;
        std::transform(anfang, anfang + laenge, anfang, [mittel](double wert) { return wert - mittel; });
        anfang += laenge;
    }
    return tage;
}

/// The values less mean and the first four harmonics of the year.
std::vector<double> ohne_jahresgang(std::vector<double> tage) {
    const auto zahl = static_cast<double>(tage.size());
    const std::vector<double> werte = tage;
    for (int k = 0; k <= 4; ++k) {
        const auto winkel = [&](std::size_t i) {
            return 2 * std::numbers::pi * k * static_cast<double>(i) / zahl;
        };
        double a = 0;
        double b = 0;
        for (std::size_t i = 0; i < werte.size(); ++i) {
            a += werte[i] * std::cos(winkel(i)) * (k > 0 ? 2 : 1) / zahl;
            b += werte[i] * std::sin(winkel(i)) * 2 / zahl;
        }
        for (std::size_t i = 0; i < tage.size(); ++i)
            tage[i] -= a * std::cos(winkel(i)) + b * std::sin(winkel(i));
    }
    return tage;
}

/// The sun by the series of J. W. Spencer (1971), which share nothing with the program's formulas.
struct SpencerSonne {
    explicit SpencerSonne(std::size_t tag) : g(2 * std::numbers::pi * static_cast<double>(tag) / 365) {}

    [[nodiscard]] double deklination() const {
        return 0.006918 - 0.399912 * std::cos(g) + 0.070257 * std::sin(g) - 0.006758 * std::cos(2 * g) +
               0.000907 * std::sin(2 * g) - 0.002697 * std::cos(3 * g) + 0.00148 * std::sin(3 * g);
    }
    [[nodiscard]] double zeitgleichung_h() const {
        return 229.18 / 60 *
               (0.000075 + 0.001868 * std::cos(g) - 0.032077 * std::sin(g) - 0.014615 * std::cos(2 * g) -
                0.040849 * std::sin(2 * g));
    }
    /// W/m² on a plane that faces the sun outside the air.
    [[nodiscard]] double draussen() const {
        return 1367 * (1.000110 + 0.034221 * std::cos(g) + 0.001280 * std::sin(g) +
                       0.000719 * std::cos(2 * g) + 0.000077 * std::sin(2 * g));
    }

    double g;  ///< the day's angle in the year
};

/// A place by its facts.
struct Ort {
    explicit Ort(const std::map<std::string, std::string>& fakten)
        : breite(std::stod(fakten.at("breite_n"))),
          nachgang_h(std::stod(fakten.at("utc_h")) - std::stod(fakten.at("laenge_o")) / 15) {}

    /// Clock time of noon and half the length of day `tag` (0 on), hours.
    [[nodiscard]] double mittag(std::size_t tag) const {
        return 12 + nachgang_h - SpencerSonne(tag).zeitgleichung_h();
    }
    [[nodiscard]] double halber_tag(std::size_t tag) const {
        const double x =
            -std::tan(breite * std::numbers::pi / 180) * std::tan(SpencerSonne(tag).deklination());
        return std::acos(std::clamp(x, -1.0, 1.0)) * 12 / std::numbers::pi;
    }
    /// Mean of the extraterrestrial radiation on the horizontal in the hour that ends at h, from 20 moments.
    [[nodiscard]] double draussen(std::size_t tag, int h) const {
        const SpencerSonne sonne(tag);
        const double phi = breite * std::numbers::pi / 180;
        const double delta = sonne.deklination();
        double mittel = 0;
        for (int i = 0; i < 20; ++i) {
            const double omega = (h - 1 + (i + 0.5) / 20 - mittag(tag)) * std::numbers::pi / 12;
            mittel += std::max(0.0, std::sin(phi) * std::sin(delta) +
                                        std::cos(phi) * std::cos(delta) * std::cos(omega)) /
                      20;
        }
        return mittel * sonne.draussen();
    }

    double breite;      ///< degrees north
    double nachgang_h;  ///< by how much noon comes after 12 o'clock in the year's mean
};

/// Correlation of the deviations from the months' means over the months of a season.
double korrelation(const std::vector<double>& a, const std::vector<double>& b, const std::vector<int>& in) {
    double ab = 0;
    double aa = 0;
    double bb = 0;
    std::size_t tag = 0;
    for (int m = 1; m <= 12; ++m) {
        for (int d = 0; d < monatslaengen[static_cast<std::size_t>(m - 1)]; ++d, ++tag) {
            if (std::ranges::find(in, m) == in.end()) continue;
            ab += a[tag] * b[tag];
            aa += a[tag] * a[tag];
            bb += b[tag] * b[tag];
        }
    }
    return ab / std::sqrt(aa * bb);
}

double wurzel_des_mittels(const std::vector<double>& werte) {
    return std::sqrt(std::inner_product(werte.begin(), werte.end(), werte.begin(), 0.0) /
                     static_cast<double>(werte.size()));
}

std::vector<double> tageshoechste(const std::vector<double>& stundenwerte) {
    std::vector<double> hoechste;
    for (std::size_t i = 0; i < stundenwerte.size(); i += 24)
        hoechste.push_back(*std::max_element(&stundenwerte[i], &stundenwerte[i] + 24));
    return hoechste;
}

std::vector<double> tagesspannen_von(const std::vector<double>& stundenwerte) {
    std::vector<double> spannen = tageshoechste(stundenwerte);
    for (std::size_t i = 0; i < spannen.size(); ++i)
        spannen[i] -= *std::min_element(&stundenwerte[24 * i], &stundenwerte[24 * i] + 24);
    return spannen;
}

/// The delivered set, made once per run of the test program.
class Klimasatz : public testing::Test {
  protected:
    static void SetUpTestSuite() {
        for (const Klimadatei& datei : klimasatz_erzeugen(stationsliste_lesen(STATIONSLISTE), 2))
            bytes_[datei.name] = datei.bytes;
        fakten_ = faktentexte();
    }

    /// Calls `tu(facts, year)` for each station and tells which one is at work.
    template <class Tu>
    static void fuer_jede_station(Tu&& tu) {
        ASSERT_EQ(fakten_.size(), 229U);
        ASSERT_EQ(bytes_.size(), 229U);
        for (const auto& fakten : fakten_) {
            SCOPED_TRACE(fakten.at("datei"));
            tu(fakten, zerlegen(bytes_.at(fakten.at("datei"))));
        }
    }

    static inline std::map<std::string, std::string> bytes_;
    static inline std::vector<std::map<std::string, std::string>> fakten_;
};

TEST_F(Klimasatz, DerKopfNenntOrtUndLage) {
    fuer_jede_station([](const auto& fakten, const Dateijahr& jahr) {
        EXPECT_EQ(aus_windows1252(jahr.kopf[0]), fakten.at("name") + " (" + fakten.at("land") + ")");
        const std::array<std::pair<std::string, double>, 3> zahlen{
            {{"Breitengrad:  ", std::stod(fakten.at("breite_n"))},
             {"Längengrad:   ", -std::stod(fakten.at("laenge_o"))},
             {"Zeitzone:     ", -std::stod(fakten.at("utc_h"))}}};
        for (std::size_t i = 0; i < zahlen.size(); ++i) {
            const std::string& zeile = jahr.kopf[i + 1];
            EXPECT_EQ(aus_windows1252(zeile.substr(0, 14)), zahlen[i].first);
            EXPECT_LE(zeile.size(), 24U);
            EXPECT_NEAR(std::stod(zeile.substr(14)), zahlen[i].second, 0.0005) << zeile;
        }
        EXPECT_EQ(jahr.kopf[4], "");
        EXPECT_EQ(jahr.kopf[5], "   dy   Ta G_Gh G_Dh");
    });
    EXPECT_THAT(bytes_.at("bremen.met"),
                testing::StartsWith("Bremen (Deutschland)\r\nBreitengrad:  53.045\r\n"
                                    "L\xE4ngengrad:   -8.798\r\nZeitzone:     -1\r\n\r\n"));
    EXPECT_THAT(bytes_.at("kathmandu.met"), testing::HasSubstr("\r\nZeitzone:     -5.75\r\n"));
    EXPECT_THAT(bytes_.at("london.met"), testing::HasSubstr("\r\nZeitzone:     0\r\n"));
}

/// Blanks, then digits up to the field's end.
bool ganze_zahl(std::string_view feld) {
    const std::size_t anfang = feld.find_first_not_of(' ');
    return anfang != std::string_view::npos &&
           feld.find_first_not_of("0123456789", anfang) == std::string_view::npos;
}

/// Blanks, a minus sign if need be, digits, a point and one digit.
bool zehntel(std::string_view feld) {
    std::string vorn(feld.substr(0, 3));
    if (const std::size_t minus = vorn.find('-'); minus != std::string::npos) vorn[minus] = ' ';
    return ganze_zahl(vorn) && feld[3] == '.' && ganze_zahl(feld.substr(4));
}

TEST_F(Klimasatz, DieZeilenHabenIhreSpalten) {
    fuer_jede_station([](const auto&, const Dateijahr& jahr) {
        for (std::size_t i = 0; i < jahr.zeilen.size(); ++i) {
            const std::string& zeile = jahr.zeilen[i];
            ASSERT_EQ(zeile.size(), 20U) << zeile;
            const std::string_view felder = zeile;
            ASSERT_TRUE(ganze_zahl(felder.substr(0, 5)) && zehntel(felder.substr(5, 5)) &&
                        ganze_zahl(felder.substr(10, 5)) && ganze_zahl(felder.substr(15, 5)))
                << zeile;
            ASSERT_EQ(std::stoul(zeile), i / 24 + 1) << zeile;
        }
    });
}

TEST_F(Klimasatz, DieMonateHaltenDieFakten) {
    fuer_jede_station([](const auto& fakten, const Dateijahr& jahr) {
        std::size_t i = 0;
        for (int m = 1; m <= 12; ++m) {
            const int tage = monatslaengen[static_cast<std::size_t>(m - 1)];
            double ta = 0;
            double kwh = 0;
            double spanne = 0;
            for (int d = 0; d < tage; ++d, i += 24) {
                const auto [kleinster, groesster] = std::minmax_element(&jahr.ta[i], &jahr.ta[i] + 24);
                spanne += (*groesster - *kleinster) / tage;
                ta += std::accumulate(&jahr.ta[i], &jahr.ta[i] + 24, 0.0) / tage / 24;
                kwh += std::accumulate(&jahr.global[i], &jahr.global[i] + 24, 0.0) / 1000;
            }
            const double ghi = monatsfakt(fakten, "ghi", m);
            EXPECT_NEAR(ta, monatsfakt(fakten, "ta", m), 0.1) << m;
            EXPECT_NEAR(kwh, ghi, std::max(0.01 * ghi, 0.05)) << m;
            EXPECT_NEAR(spanne, monatsfakt(fakten, "dtr", m), 0.15 * monatsfakt(fakten, "dtr", m)) << m;
        }
    });
}

TEST_F(Klimasatz, DieStrahlungKommtVonDerSonne) {
    fuer_jede_station([](const auto& fakten, const Dateijahr& jahr) {
        const Ort ort(fakten);
        const double laenge = -std::stod(fakten.at("laenge_o"));
        const double zone = -std::stod(fakten.at("utc_h"));
        const Standort gelesen{static_cast<float>(ort.breite * 0.01745),
                               static_cast<float>(laenge - 15 * zone)};
        double klarste = 0;
        double staerkster = 0;
        for (std::size_t i = 0; i < 8760; ++i) {
            const std::size_t tag = i / 24;
            const int h = static_cast<int>(i % 24) + 1;
            if (jahr.diffus[i] > jahr.global[i]) FAIL() << "diffuse above global: " << jahr.zeilen[i];
            const int n = static_cast<int>(tag) + 1;
            const double faktor = direktfaktor_horizontal(gelesen, n, probezeit(sonnentag(gelesen, n), h));
            const double strahl = (jahr.global[i] - jahr.diffus[i]) * faktor;
            if (faktor == 0 && jahr.global[i] > jahr.diffus[i])
                FAIL() << "lost: hour " << h << jahr.zeilen[i];
            if (faktor > 10 && strahl > 450) FAIL() << "low sun: hour " << h << jahr.zeilen[i];
            staerkster = std::max(staerkster, strahl);
            if (tag % 5 != 0 || jahr.global[i] <= 0) continue;
            const double draussen = ort.draussen(tag, h);
            if (jahr.global[i] > draussen) FAIL() << "above the sun: hour " << h << jahr.zeilen[i];
            if (draussen > 100) klarste = std::max(klarste, jahr.global[i] / draussen);
        }
        // The ways of telling the sun's place and distance differ by up to 1.5 %.
        EXPECT_LE(klarste, 0.85 * 1.015);
        EXPECT_GT(klarste, 0.7);
        EXPECT_LE(staerkster, 1100);
        EXPECT_GT(staerkster, 700);
    });
}

TEST_F(Klimasatz, DieTageHabenEinGedaechtnisUndKeineBrueche) {
    std::vector<double> an_monatsenden;
    fuer_jede_station([&](const auto&, const Dateijahr& jahr) {
        const std::vector<double> tage = tagesmittel_von(jahr.ta);
        for (const double r :
             {korrelation_eins(ohne_monatsmittel(tage)), korrelation_eins(ohne_jahresgang(tage))}) {
            EXPECT_GE(r, 0.5);
            EXPECT_LE(r, 0.9);
        }
        const auto sprung = [](const std::vector<double>& werte, std::size_t i) {
            return std::fabs(werte[i] - werte[(i + werte.size() - 1) % werte.size()]);
        };
        double alle = 0;
        for (std::size_t i = 0; i < 8760; ++i)
            EXPECT_LE(sprung(jahr.ta, i), 5.5) << i;
        for (std::size_t i = 0; i < 365; ++i)
            alle += sprung(tage, i) / 365;
        std::size_t erster = 0;
        for (const int laenge : monatslaengen) {
            an_monatsenden.push_back(sprung(tage, erster) / alle);
            erster += static_cast<std::size_t>(laenge);
        }
    });
    // Over all 12 x 229 ends of months the days differ by as much as anywhere else.
    const double mittel = std::accumulate(an_monatsenden.begin(), an_monatsenden.end(), 0.0) /
                          static_cast<double>(an_monatsenden.size());
    EXPECT_NEAR(mittel, 1, 0.08);
}

/// The lowest of a month's mean day lies at sunrise, the highest about two hours after noon. Beyond 55
/// degrees weather hides the small waves of winter.
TEST_F(Klimasatz, DerTagFolgtDerSonne) {
    fuer_jede_station([](const auto& fakten, const Dateijahr& jahr) {
        const Ort ort(fakten);
        std::size_t erster = 0;
        for (const int laenge : monatslaengen) {
            std::array<double, 24> gang{};
            for (std::size_t i = 0; i < static_cast<std::size_t>(laenge) * 24; ++i)
                gang[i % 24] += jahr.ta[erster * 24 + i];
            const auto mitte_der_stunde = [&](auto stelle) {
                return static_cast<double>(stelle - gang.begin()) + 0.5;
            };
            const std::size_t tag = erster + 15;
            erster += static_cast<std::size_t>(laenge);
            if (std::fabs(ort.breite) > 55) continue;
            EXPECT_NEAR(mitte_der_stunde(std::ranges::max_element(gang)), ort.mittag(tag) + 1.8, 1) << tag;
            EXPECT_NEAR(mitte_der_stunde(std::ranges::min_element(gang)),
                        ort.mittag(tag) - ort.halber_tag(tag) - 0.6, 1)
                << tag;
        }
    });
}

/// Scatter of the daily means, and what warmth and sun have in common: figures of typical reference years.
/// With ten or so free days in a season a correlation of a single year is good to 0.15.
TEST_F(Klimasatz, SonneUndWaermeGehoerenZusammen) {
    std::vector<double> im_sommer;
    std::vector<double> im_winter;
    std::map<std::string, double> streuung;
    fuer_jede_station([&](const auto& fakten, const Dateijahr& jahr) {
        const std::vector<double> waerme = ohne_monatsmittel(tagesmittel_von(jahr.ta));
        const std::vector<double> sonne = ohne_monatsmittel(tagesmittel_von(jahr.global));
        streuung[fakten.at("datei")] = wurzel_des_mittels(ohne_jahresgang(tagesmittel_von(jahr.ta)));
        const double breite = Ort(fakten).breite;
        const std::vector<int> juni{6, 7, 8};
        const std::vector<int> dezember{12, 1, 2};
        const double sommer = korrelation(waerme, sonne, breite > 0 ? juni : dezember);
        EXPECT_GT(sommer, 0);
        EXPECT_LT(sommer, 0.75);
        EXPECT_GT(korrelation(ohne_monatsmittel(tagesspannen_von(jahr.ta)), sonne, {3, 4, 5, 9, 10, 11}), 0.4)
            << "clear days have the wider range";
        if (std::fabs(breite) < 35 || std::fabs(breite) > 60) return;
        im_sommer.push_back(sommer);
        im_winter.push_back(korrelation(waerme, sonne, breite > 0 ? dezember : juni));
        EXPECT_GT(im_sommer.back(), 0.3);
        EXPECT_LT(im_winter.back(), 0.05);
    });
    const auto mittel = [](const std::vector<double>& zahlen) {
        return std::accumulate(zahlen.begin(), zahlen.end(), 0.0) / static_cast<double>(zahlen.size());
    };
    // Mannheim 0.53, Zürich 0.52, Amsterdam 0.40, Tokyo 0.66, Chicago 0.22.
    EXPECT_NEAR(mittel(im_sommer), 0.5, 0.06);
    EXPECT_NEAR(mittel(im_winter), -0.3, 0.08);
    EXPECT_NEAR(streuung.at("bogota.met"), 0.74, 0.1);
    EXPECT_NEAR(streuung.at("antananarivo.met"), 1.23, 0.12);
    EXPECT_NEAR(streuung.at("frankfurt_main.met"), 3.5, 0.4);
}

/// Days above 30 °C and the longest run of them, and no year beyond what its part of the world has measured.
TEST_F(Klimasatz, DerSommerHatHeisseTage) {
    struct Fall {
        const char* datei;
        int wenigstens, hoechstens, am_stueck;
    };
    for (const Fall& fall : {Fall{"zürich.met", 5, 14, 2},
                             {"frankfurt_main.met", 10, 20, 3},
                             {"freiburg.met", 12, 25, 3},
                             {"genf.met", 12, 22, 3},
                             {"wien.met", 15, 27, 3},
                             {"hamburg.met", 3, 9, 2},
                             {"reykjavik.met", 0, 0, 0}}) {
        int heiss = 0;
        int lauf = 0;
        int laengster = 0;
        for (const double wert : tageshoechste(zerlegen(bytes_.at(fall.datei)).ta)) {
            lauf = wert > 30 ? lauf + 1 : 0;
            heiss += wert > 30 ? 1 : 0;
            laengster = std::max(laengster, lauf);
        }
        EXPECT_GE(heiss, fall.wenigstens) << fall.datei;
        EXPECT_LE(heiss, fall.hoechstens) << fall.datei;
        EXPECT_GE(laengster, fall.am_stueck) << fall.datei;
    }
    fuer_jede_station([](const auto& fakten, const Dateijahr& jahr) {
        const auto [kaelteste, waermste] = std::ranges::minmax(jahr.ta);
        EXPECT_LT(waermste, fakten.at("gruppe") == "D" ? 39 : 51);
        EXPECT_GT(kaelteste, fakten.at("gruppe") == "D" ? -22 : -60);
    });
}

TEST(KlimaErzeugen, GibtImmerDieselbenBytes) {
    auto stationen = stationsliste_lesen(STATIONSLISTE);
    stationen.resize(4);
    const auto in_einem = klimasatz_erzeugen(stationen, 1);
    const auto in_dreien = klimasatz_erzeugen(stationen, 3);
    for (std::size_t i = 0; i < stationen.size(); ++i) {
        EXPECT_EQ(in_einem[i].name, stationen[i].datei);
        EXPECT_EQ(in_einem[i].bytes, in_dreien[i].bytes);
    }
    EXPECT_NE(in_einem[0].bytes, in_einem[1].bytes);
    EXPECT_EQ(fnv1a(in_einem[3].bytes), 13777168356615980189U) << "trier.met changed";
}

TEST(KlimaErzeugen, NenntDenFaktDenDieSonneNichtHergibt) {
    auto stationen = stationsliste_lesen(STATIONSLISTE);
    stationen.resize(3);
    stationen[1].ghi(12) = 100;
    try {
        (void)klimasatz_erzeugen(stationen, 2);
        FAIL();
    } catch (const Dateifehler& fehler) {
        EXPECT_EQ(fehler.zeile(), 3);
        EXPECT_THAT(fehler.text("e"),
                    testing::HasSubstr("stationen.csv, line 3 (ghi_12): more than the sun"));
    }
}

/// What the measuring of a finished file must not overlook.
TEST(Untersuchen, BemerktJedenSchaden) {
    auto stationen = stationsliste_lesen(STATIONSLISTE);
    const Stationsfakten& trier = stationen[3];
    const std::string gut = klimasatz_erzeugen({trier}, 1).front().bytes;
    const std::size_t zeile7 = gut.find("G_Dh\r\n") + 6;
    const auto stelle = [&](int n, int h, std::size_t spalte) {
        return zeile7 + static_cast<std::size_t>((n - 1) * 24 + h) * 22 + spalte - 1;
    };
    const auto ersetzt = [&](std::size_t ort, const std::string& neu) {
        return std::string(gut).replace(ort, neu.size(), neu);
    };
    std::string heiss = gut;
    for (int h = 1; h <= 24; ++h)
        heiss.replace(stelle(200, h, 6), 5, " 35.0");
    std::string hell = gut;
    for (int n = 1; n <= 31; ++n)
        hell.replace(stelle(n, 12, 11), 10, "   20   20");
    // May to July with each month's days of temperature in turned order: means, ranges and memory stay.
    std::string verdreht = gut;
    for (const auto& [erster, letzter] : {std::pair{121, 151}, {152, 181}, {182, 212}}) {
        for (int n = erster; n <= letzter; ++n) {
            for (int h = 1; h <= 24; ++h)
                verdreht.replace(stelle(n, h, 6), 5, gut, stelle(erster + letzter - n, h, 6), 5);
        }
    }
    const std::vector<std::pair<std::string, std::string>> faelle{
        {gut.substr(0, gut.size() - 22), "line 8765: the file ends too early"},
        {gut + gut.substr(zeile7, 22), "line 8767: the file goes on"},
        {"x" + gut, "line 1: not the line of the head"},
        {ersetzt(zeile7, "    1"), "line 7 (dy): wrong day"},
        {ersetzt(stelle(1, 1, 6), "-01.0"), "line 8 (Ta): not the form"},
        {ersetzt(stelle(1, 1, 6), "1.0  "), "line 8 (Ta): not the form"},
        {ersetzt(stelle(1, 1, 11), "  1.0"), "line 8 (G_Gh): not the form"},
        {std::string(gut).insert(stelle(1, 1, 20), " "), "line 8: not 20 columns"},
        {ersetzt(stelle(1, 12, 16), "  900"), "line 19 (G_Dh): not between 0 and G_Gh"},
        {ersetzt(stelle(5, 2, 11), "    1"), "radiation without a sun on day 5"},
        {ersetzt(stelle(200, 13, 11), " 1200"), "clearest hour"},
        {heiss, "monthly mean temperature"},
        {hell, "monthly sum of radiation"},
        {verdreht, "correlation of the days' temperature and radiation"},
    };
    EXPECT_NO_THROW(befund_pruefen(untersuchen(gut, trier), trier));
    for (const auto& [bytes, meldung] : faelle) {
        try {
            befund_pruefen(untersuchen(bytes, trier), trier);
            ADD_FAILURE() << "not noticed: " << meldung;
        } catch (const Dateifehler& fehler) {
            EXPECT_THAT(fehler.text("e"), testing::HasSubstr("trier.met"));
            EXPECT_THAT(fehler.text("e"), testing::HasSubstr(meldung));
        }
    }
}

TEST(KlimasatzSchreiben, SchreibtAlleOderKeine) {
    const Testordner ordner;
    ordner.schreibe("klima/a.met", "alt");
    ordner.schreibe("klima/plz.txt", "bleibt");
    const std::vector<Klimadatei> dateien{
        {"a.met", "neu a", {}}, {"münchen.met", "neu m", {}}, {"z.met", "z", {}}};
    std::filesystem::create_directories(ordner / "klima/z.met");
    EXPECT_THROW(klimasatz_schreiben(ordner / "klima", dateien), Dateifehler);
    const auto namen = [&] {
        std::vector<std::string> alle;
        for (const auto& eintrag : std::filesystem::directory_iterator(ordner / "klima"))
            alle.push_back(pfadtext(eintrag.path().filename()));
        return alle;
    };
    EXPECT_THAT(namen(), testing::UnorderedElementsAre("a.met", "plz.txt", "z.met"));
    EXPECT_EQ(inhalt(ordner / "klima/a.met"), "alt");

    std::filesystem::remove(ordner / "klima/z.met");
    klimasatz_schreiben(ordner / "klima", dateien);
    EXPECT_THAT(namen(), testing::UnorderedElementsAre("a.met", "münchen.met", "plz.txt", "z.met"));
    EXPECT_EQ(inhalt(ordner / "klima/a.met"), "neu a");
    EXPECT_EQ(inhalt(ordner / "klima/plz.txt"), "bleibt");
    EXPECT_THROW(klimasatz_schreiben(ordner / "klima/plz.txt", dateien), Dateifehler);
}

TEST(Programm, EndetMitFehlerOhneEtwasZuSchreiben) {
    const Testordner ordner;
    const std::string fakten = inhalt(STATIONSLISTE);
    const std::size_t zweite = fakten.find('\n', fakten.find('\n') + 1) + 1;
    ordner.schreibe("eine.csv", fakten.substr(0, zweite));
    ordner.schreibe("kurz.csv", fakten.substr(0, zweite - 20) + "\n");
    const auto lauf = [&](const std::string& liste, const std::string& rest) {
        const std::string ruf = std::string(KLIMA_ERZEUGEN) + " " + pfadtext(ordner / liste) + " " +
                                pfadtext(ordner / "klima") + rest + " > " + pfadtext(ordner / "meldung.txt") +
                                " 2>&1";
        return std::system(ruf.c_str()) == 0;
    };
    const std::vector<std::array<std::string, 3>> fehler{
        {"fehlt.csv", "", "file not found"},
        {"kurz.csv", "", "kurz.csv, line 2: "},
        {"eine.csv", " --jobs 0", "usage:"},
        {"eine.csv", " zuviel", "usage:"},
    };
    for (const auto& [liste, rest, meldung] : fehler) {
        EXPECT_FALSE(lauf(liste, rest)) << liste;
        EXPECT_THAT(inhalt(ordner / "meldung.txt"), testing::HasSubstr(meldung));
        EXPECT_FALSE(std::filesystem::exists(ordner / "klima"));
    }
    EXPECT_TRUE(lauf("eine.csv", " --jobs 2"));
    EXPECT_EQ(inhalt(ordner / "klima/bremen.met").substr(0, 6), "Bremen");
}

}  // namespace
}  // namespace velmaris::klimasatz
