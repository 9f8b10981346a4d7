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
        std::string report = report_schreiben(u.quelle, 1);
        report.erase(0, report.find("Klimaregion"));
        const std::string erste = zeilen.substr(0, zeilen.find('|'));
        const std::string zweite = zeilen.substr(erste.size() + 1);
        const std::string anfang = R"(Klimaregion: \tab  )" + erste;
        EXPECT_TRUE(report.starts_with(anfang)) << report.substr(0, 80);
        EXPECT_LT(report.find(R"(\par  \tab  )" + zweite), anfang.size() + 2);
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
