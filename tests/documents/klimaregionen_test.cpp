#include "documents/print/Ausdrucken.h"
#include "documents/report/report.h"
#include "tests/documents/unterlagen.h"
#include "tests/testdrucker.h"

#include <gtest/gtest.h>

namespace velmaris {

TEST(Klimaregionen, StehenInZweiZeilen) {
    test::Unterlagen u("d");
    int region = 0;
    for (const std::string& zeilen : test::seite(u, "regionen", 1)) {
        u.p->Klimadatei = std::to_string(++region);
        u.p->Regionsdatei(region) = u.p->Klimadatei;
        const std::string report = report_schreiben(u.quelle, 1);
        const auto trenner = zeilen.find('|');
        const auto erste = report.find(R"(Klimaregion: \tab  )" + zeilen.substr(0, trenner));
        EXPECT_NE(erste, std::string::npos) << zeilen;
        EXPECT_NE(report.find(R"(\par  \tab  )" + zeilen.substr(trenner + 1), erste), std::string::npos);
        test::Testdrucker drucker;
        Ausdrucken(drucker, u.quelle, {true}, "");
        std::string gedruckt;
        for (const auto& z : drucker.auf_seite(1, test::Druckzeichen::Art::text)) {
            if (z.x1 == 120) gedruckt += "|" + z.text;
        }
        EXPECT_TRUE(gedruckt.ends_with("|" + zeilen)) << gedruckt;
    }
    EXPECT_EQ(region, 12);
}

}  // namespace velmaris
