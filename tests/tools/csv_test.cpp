#include "tools/csv.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace velmaris {
namespace {

TEST(Csv, NenntDateiZeileUndFeldDesFehlers) {
    const struct {
        const char *text, *meldung;
    } faelle[] = {
        {"", "t.csv: the table is empty"},
        {"ort,zahl\n", "t.csv, line 1: the table is empty"},
        {"ort,zahlen\na,1\n", "t.csv, line 1 (zahl): the column is missing"},
        {"ort,zahl,ort\na,1,b\n", "t.csv, line 1 (ort): the column stands there twice"},
        {"ort,zahl\na,1\nb\n", "t.csv, line 3: 1 columns instead of 2"},
        {"ort,zahl\n,1\n", "t.csv, line 2 (ort): the entry is missing"},
        {"ort,zahl\n a,1\n", "t.csv, line 2 (ort): blank at the edge"},
        {"ort,zahl\n\"a\",1\n", "t.csv, line 2 (ort): quotation mark"},
        {"ort,zahl\na,4x\n", "t.csv, line 2 (zahl): \"4x\" is no number"},
        {"ort,zahl\na,-0.5\n", "t.csv, line 2 (zahl): -0.5 is not within 0.0 .. 12.0"},
        {"ort,zahl\na,12.5\n", "t.csv, line 2 (zahl): 12.5 is not within 0.0 .. 12.0"},
        {"ort,zahl\na,1.5\n", "t.csv, line 2 (zahl): 1.5 is no whole number"},
    };
    for (const auto& [text, meldung] : faelle) {
        try {
            for (const Csvzeile& zeile : csv_lesen(text, "t.csv", {"ort", "zahl"})) {
                (void)zeile.text("ort");
                (void)zeile.ganzzahl("zahl", {0, 12});
            }
            ADD_FAILURE() << "accepted: " << meldung;
        } catch (const Dateifehler& fehler) {
            EXPECT_EQ(fehler.text("e"), meldung);
        }
    }
}

}  // namespace
}  // namespace velmaris
