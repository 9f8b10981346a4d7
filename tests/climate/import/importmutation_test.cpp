#include "tests/climate/import/importprobe.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <random>

namespace velmaris {
namespace {

using test::Importprobe;
using test::Quellbau;

using Zufall = std::minstd_rand;

std::size_t los(Zufall& zufall, std::size_t unter) {
    return unter == 0 ? 0 : zufall() % unter;
}

/// Changes a text at random places: single bytes, cuts, doubled and dropped stretches, long runs of one byte.
std::string veraendert(std::string text, Zufall& zufall) {
    const std::string bytes(
        "\0\t\n\r ,.-\"\x80\xFF"
        "9eE",
        14);
    const std::size_t male = 1 + los(zufall, 6);
    for (std::size_t i = 0; i < male; ++i) {
        // Half of the changes hit the head.
        const std::size_t ort =
            los(zufall, los(zufall, 2) == 0 ? std::min<std::size_t>(text.size(), 400) : text.size());
        const std::size_t laenge = std::min(text.size() - ort, los(zufall, 300));
        switch (los(zufall, 5)) {
            case 0:
                if (ort < text.size()) text[ort] = bytes[los(zufall, bytes.size())];
                break;
            case 1:
                text.erase(ort, laenge);
                break;
            case 2:
                text.insert(ort, text.substr(ort, laenge));
                break;
            case 3:
                text.insert(ort, los(zufall, 100000), bytes[los(zufall, bytes.size())]);
                break;
            default:
                if (los(zufall, 4) == 0) text.resize(ort);
                break;
        }
    }
    return text;
}

/// Opens a source and goes through all there is to do with it. An import must end either with a whole
/// station or with a message and no file at all.
void durchspielen(Importprobe& probe, const std::string& text, Zufall& zufall) {
    E_Klimaimport& e = *probe.e;
    e.oeffnen();
    probe.plattform.meldungen.clear();
    probe.oeffne("quelle.txt", text);
    if (e.Land.text().empty()) e.Land.tippe("Land");
    if (e.Kopfzeilen.text().empty()) e.Kopfzeilen.tippe(std::to_string(los(zufall, 12)));
    if (los(zufall, 3) == 0) e.Datentrennung.setze(static_cast<int>(los(zufall, 3)));
    e.vorschau.HScroll1.bewege(static_cast<int>(los(zufall, 200)));
    e.vorschau.VScroll1.bewege(static_cast<int>(los(zufall, 20000)));
    if (los(zufall, 3) == 0) e.vorschau.Datenreihe.at(los(zufall, 6)).setze(static_cast<int>(los(zufall, 5)));
    const bool bereit = e.Command2.aktiv();
    const Meldung meldung = probe.importiere("neu");
    const std::string station = probe.station("neu");
    if (!station.empty()) {
        EXPECT_EQ(test::zeilen(station).size(), 8766U);
        EXPECT_FALSE(e.ebene.sichtbar());
    } else if (bereit) {
        EXPECT_NE(meldung.text, "");
    }
    std::filesystem::remove(probe.ordner / "klima/neu.met");
    EXPECT_THAT(probe.dateien(), testing::IsEmpty());
}

TEST(Importmutation, VeraenderteQuellenSchadenNicht) {
    Importprobe probe;
    Zufall zufall(20240229);
    for (const std::string& quelle : {Quellbau{}.meteonorm(), Quellbau{}.epw(), Quellbau{}.epw(true)}) {
        for (int i = 0; i < 60; ++i)
            durchspielen(probe, veraendert(quelle, zufall), zufall);
    }
}

TEST(Importmutation, RiesigeUndBinaereQuellenSchadenNicht) {
    Importprobe probe;
    Zufall zufall(7);
    std::string binaer(300000, '\0');
    for (char& byte : binaer)
        byte = static_cast<char>(zufall() & 0xFFU);
    constexpr std::size_t megabyte = 1U << 20U;
    const std::string tabs(megabyte, '\t');
    const std::string lang = std::string(megabyte, 'x') + "\r\n";
    for (const std::string& quelle :
         {std::string(), std::string(1, '\n'), binaer, "LOCATION," + binaer, tabs,
          "LOCATION," + std::string(megabyte, ','), "a\nb\nc\nTa\tG_Gh\tG_Dh" + tabs + "\n" + lang + lang,
          lang + lang + lang, std::string(megabyte, '\n'), std::string(megabyte, ' ') + "1 2 3\n"}) {
        for (int i = 0; i < 4; ++i)
            durchspielen(probe, quelle, zufall);
    }
    Quellbau mit_langer_zeile;
    mit_langer_zeile.ersetzt[400] = "1\t1\t5\t3\t2\t" + std::string(megabyte, '7');
    durchspielen(probe, mit_langer_zeile.meteonorm(), zufall);
}

}  // namespace
}  // namespace velmaris
