#include "documents/klimaregionen.h"

#include "documents/print/Ausdrucken.h"
#include "documents/report/report.h"
#include "tests/documents/unterlagen.h"
#include "tests/testdrucker.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace velmaris {
namespace {

TEST(Klimaregionen, StehenInZweiZeilenDeutsch) {
    constexpr std::array<Regionszeilen, 12> texte{{
        {"Nord- und Ostseeküste,", "nördliches Schleswig-Holstein"},
        {"Nord- und", "Westdeutsches Tiefland"},
        {"Ruhrgebiet und weitere Ballungs-", "gebiete des Flachlandes"},
        {"Nördliche und westliche Mittel-", "gebirge ohne Hochlagen"},
        {"Franken und nördliches", "Baden-Würtemberg"},
        {"Nördlicher", "Oberrheingraben"},
        {"Südlicher", "Oberrheingraben"},
        {"Donaubecken und Alpenvorland", "bis ca. 600m Höhe"},
        {"Alpenvorland (ca. 600-1000m Höhe),", "nordwestl. Schwarzwald"},
        {"Schwarzwald, Schwäbische", "und Fränkische Alb"},
        {"Hochlagen der nördlichen", "und westlichen Mittelgebirge"},
        {"Bodensee", "mit Umgebung"},
    }};
    test::Unterlagen u("e");
    for (int region = 1; region <= 12; ++region) {
        const auto& [erste, zweite] = texte.at(static_cast<std::size_t>(region - 1));
        u.p->Klimadatei = u.p->Regionsdatei(region) = "r" + std::to_string(region);
        const std::string report = report_in_sprache(u.quelle, 1);
        const auto ort = report.find(R"(Climatic region: \tab  )" + std::string(erste));
        ASSERT_NE(ort, std::string::npos) << erste;
        EXPECT_EQ(report.find(R"( \tab  )" + std::string(zweite), ort), report.find(R"(\par )", ort) + 5);
        test::Testdrucker drucker;
        Ausdrucken(drucker, u.quelle, {true}, "");
        std::vector<std::string> gedruckt;
        for (const auto& z : drucker.auf_seite(1, test::Druckzeichen::Art::text)) {
            if (z.x1 == 120) gedruckt.push_back(z.text);
        }
        EXPECT_EQ(gedruckt.at(gedruckt.size() - 2), erste);
        EXPECT_EQ(gedruckt.back(), zweite);
    }
}

}  // namespace
}  // namespace velmaris
