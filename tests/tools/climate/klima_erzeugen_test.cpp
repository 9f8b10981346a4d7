#include "tests/hilfen.h"
#include "toolkit/fehler.h"
#include "tools/climate/klimasatz.h"
#include "tools/climate/zufall.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <numbers>
#include <numeric>
#include <sstream>
#include <string>
#include <vector>

namespace velmaris::klimasatz {
namespace {

using test::inhalt;
using test::Testordner;
using Zahlen = std::vector<double>;

constexpr std::array<std::ptrdiff_t, 12> monatslaengen{31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
constexpr double pi = std::numbers::pi;

/// A file's year cut out of its text: index 0 is hour 1 of day 1.
struct Dateijahr {
    explicit Dateijahr(const std::string& bytes) {
        std::istringstream strom(bytes.substr(bytes.find("G_Dh\r\n") + 6));
        for (double tag = 0, a = 0, b = 0, c = 0; strom >> tag >> a >> b >> c;) {
            ta.push_back(a);
            global.push_back(b);
        }
        for (Zahlen* werte : {&ta, &global})  // the year's last hour stands first
            std::rotate(werte->begin(), werte->begin() + 1, werte->end());
    }

    Zahlen ta, global;
};

double mittel(const Zahlen& werte) {
    return std::accumulate(werte.begin(), werte.end(), 0.0) / static_cast<double>(werte.size());
}

/// What `tu` says of the hours of each day.
Zahlen je_tag(const Zahlen& stundenwerte, double (*tu)(const Zahlen&)) {
    Zahlen tage;
    for (auto tag = stundenwerte.begin(); tag != stundenwerte.end(); tag += 24)
        tage.push_back(tu(Zahlen(tag, tag + 24)));
    return tage;
}

/// The values of month m (0 on) out of those of the days.
Zahlen monat(const Zahlen& tage, std::size_t m) {
    const auto anfang =
        tage.begin() + std::accumulate(&monatslaengen[0], &monatslaengen[m], std::ptrdiff_t{0});
    return {anfang, anfang + monatslaengen[m]};
}

/// The days of these months (0 on) less each month's own mean.
Zahlen abweichungen(const Zahlen& tage, const std::vector<std::size_t>& in) {
    Zahlen werte;
    for (const std::size_t m : in) {
        const Zahlen einer = monat(tage, m);
        for (const double wert : einer)
            werte.push_back(wert - mittel(einer));
    }
    return werte;
}

const std::vector<std::size_t> jahr{0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11};
const std::vector<std::size_t> juni_bis_august{5, 6, 7};
const std::vector<std::size_t> dezember_bis_februar{11, 0, 1};

double mittelquadrat(const Zahlen& werte) {
    return std::inner_product(werte.begin(), werte.end(), werte.begin(), 0.0) /
           static_cast<double>(werte.size());
}

/// Correlation of two series of deviations, the second one `spaeter` places on.
double korrelation(const Zahlen& a, const Zahlen& b, std::ptrdiff_t spaeter = 0) {
    return std::inner_product(a.begin(), a.end() - spaeter, b.begin() + spaeter, 0.0) /
           static_cast<double>(a.size()) / std::sqrt(mittelquadrat(a) * mittelquadrat(b));
}

/// Every fifth of the delivered stations, made once per run of the test program.
class Klimasatz : public testing::Test {
  protected:
    static void SetUpTestSuite() {
        const auto alle = stationsliste_lesen(STATIONSLISTE);
        std::vector<Stationsfakten> auswahl;
        for (std::size_t i = 0; i < alle.size(); i += 5)
            auswahl.push_back(alle[i]);
        const auto dateien = klimasatz_erzeugen(auswahl, 2);
        for (std::size_t i = 0; i < auswahl.size(); ++i)
            stationen_.emplace_back(auswahl[i], Dateijahr(dateien[i].bytes));
    }

    /// Calls `tu(facts, year)` for each station and tells which one is at work.
    template <class Tu>
    static void fuer_jede_station(Tu&& tu) {
        ASSERT_GT(stationen_.size(), 40U);
        for (const auto& [fakten, werte] : stationen_) {
            SCOPED_TRACE(fakten.datei);
            ASSERT_EQ(werte.global.size(), 8760U);
            tu(fakten, werte);
        }
    }

    static inline std::vector<std::pair<Stationsfakten, Dateijahr>> stationen_;
};

TEST_F(Klimasatz, DieTageHabenEinGedaechtnisUndKeineBrueche) {
    Zahlen an_monatsenden;
    fuer_jede_station([&](const Stationsfakten&, const Dateijahr& werte) {
        const Zahlen tage = je_tag(werte.ta, mittel);
        const double r = korrelation(abweichungen(tage, jahr), abweichungen(tage, jahr), 1);
        EXPECT_GE(r, 0.5);
        EXPECT_LE(r, 0.9);
        const auto spruenge = [](const Zahlen& zahlen) {
            Zahlen ergebnis{std::fabs(zahlen.front() - zahlen.back())};
            for (std::size_t i = 1; i < zahlen.size(); ++i)
                ergebnis.push_back(std::fabs(zahlen[i] - zahlen[i - 1]));
            return ergebnis;
        };
        EXPECT_LE(std::ranges::max(spruenge(werte.ta)), 5.5);
        for (const std::size_t m : jahr)
            an_monatsenden.push_back(monat(spruenge(tage), m).front() / mittel(spruenge(tage)));
    });
    // Over all ends of months the days differ by as much as anywhere else.
    EXPECT_NEAR(mittel(an_monatsenden), 1, 0.12);
}

/// The lowest of a month's mean day lies at sunrise, the highest about two hours after noon, both by the mean
/// sun of the textbooks. Beyond 55 degrees weather hides the small waves of winter.
TEST_F(Klimasatz, DerTagFolgtDerSonne) {
    fuer_jede_station([](const Stationsfakten& fakten, const Dateijahr& werte) {
        if (std::fabs(fakten.breite_n) > 55) return;
        std::size_t erster = 0;
        for (const std::ptrdiff_t laenge : monatslaengen) {
            std::array<double, 24> gang{};
            const auto tage = static_cast<std::size_t>(laenge);
            for (std::size_t i = 0; i < tage * 24; ++i)
                gang[i % 24] += werte.ta[erster * 24 + i];
            const auto mitte = [&](auto stelle) { return static_cast<double>(stelle - gang.begin()) + 0.5; };
            const double delta =
                -23.45 * pi / 180 * std::cos(2 * pi * (static_cast<double>(erster) + 25) / 365);
            const double mittag = 12 + fakten.utc_h - fakten.laenge_o / 15;
            const double aufgang =
                mittag - std::acos(-std::tan(fakten.breite_n * pi / 180) * std::tan(delta)) * 12 / pi;
            EXPECT_NEAR(mitte(std::ranges::max_element(gang)), mittag + 1.8, 1.25) << erster;
            EXPECT_NEAR(mitte(std::ranges::min_element(gang)), aufgang - 0.6, 1.25) << erster;
            erster += tage;
        }
    });
}

/// What warmth and sun have in common: figures of typical reference years. With ten or so free days in
/// a season a correlation of a single year is good to 0.15.
TEST_F(Klimasatz, SonneUndWaermeGehoerenZusammen) {
    Zahlen im_sommer, im_winter;
    fuer_jede_station([&](const Stationsfakten& fakten, const Dateijahr& werte) {
        const Zahlen waerme = je_tag(werte.ta, mittel), sonne = je_tag(werte.global, mittel);
        const auto in = [](const Zahlen& a, const Zahlen& b, const std::vector<std::size_t>& zeit) {
            return korrelation(abweichungen(a, zeit), abweichungen(b, zeit));
        };
        const bool im_norden = fakten.breite_n > 0;
        const double sommer = in(waerme, sonne, im_norden ? juni_bis_august : dezember_bis_februar);
        EXPECT_GT(sommer, 0);
        EXPECT_LT(sommer, 0.75);
        if (std::fabs(fakten.breite_n) < 35 || std::fabs(fakten.breite_n) > 60) return;
        im_sommer.push_back(sommer);
        im_winter.push_back(in(waerme, sonne, im_norden ? dezember_bis_februar : juni_bis_august));
    });
    // Mannheim 0.53, Zürich 0.52, Amsterdam 0.40, Tokyo 0.66, Chicago 0.22.
    EXPECT_NEAR(mittel(im_sommer), 0.5, 0.06);
    EXPECT_NEAR(mittel(im_winter), -0.3, 0.08);
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
    EXPECT_THAT(in_einem[0].bytes,
                testing::StartsWith(
                    "Bremen (Deutschland)\r\nBreitengrad:  53.045\r\n"
                    "L\xE4ngengrad:   -8.798\r\nZeitzone:     -1\r\n\r\n   dy   Ta G_Gh G_Dh\r\n  365 "));
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
            EXPECT_THAT(fehler.text("e"), testing::HasSubstr(meldung));
        }
    }
}

TEST(KlimasatzSchreiben, SchreibtAlleOderKeine) {
    const Testordner ordner;
    ordner.schreibe("klima/a.met", "alt");
    const std::vector<Klimadatei> dateien{
        {"a.met", "neu", {}}, {"münchen.met", "neu", {}}, {"z.met", "neu", {}}};
    std::filesystem::create_directories(ordner / "klima/z.met");
    EXPECT_THROW(klimasatz_schreiben(ordner / "klima", dateien), Dateifehler);
    EXPECT_EQ(inhalt(ordner / "klima/a.met"), "alt");
    EXPECT_FALSE(std::filesystem::exists(ordner / "klima/münchen.met"));

    std::filesystem::remove(ordner / "klima/z.met");
    ordner.schreibe("klima/plz.txt", "bleibt");
    klimasatz_schreiben(ordner / "klima", dateien);
    for (const Klimadatei& datei : dateien)
        EXPECT_EQ(inhalt(ordner / ("klima/" + datei.name)), "neu");
    const auto eintraege = std::filesystem::directory_iterator(ordner / "klima");
    EXPECT_EQ(std::distance(begin(eintraege), end(eintraege)), 4) << "nothing else is left";
    EXPECT_THROW(klimasatz_schreiben(ordner / "klima/plz.txt", dateien), Dateifehler);
}

}  // namespace
}  // namespace velmaris::klimasatz
