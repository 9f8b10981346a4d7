#include "tests/climate/import/importprobe.h"
#include "tests/verderber.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace velmaris {
namespace {

using test::Importprobe;
using test::Quellbau;
using test::Verderber;

/// Opens a source and goes through all there is to do with it. An import must end either with a whole
/// station or with a message and no file at all.
void durchspielen(Importprobe& probe, const std::string& text, Verderber& zufall) {
    E_Klimaimport& e = *probe.e;
    e.oeffnen();
    probe.oeffne("quelle.txt", text);
    if (e.Land.text().empty()) e.Land.tippe("Land");
    if (e.Kopfzeilen.text().empty()) e.Kopfzeilen.tippe(std::to_string(zufall.los(12)));
    if (zufall.los(3) == 0) e.Datentrennung.setze(static_cast<int>(zufall.los(3)));
    e.vorschau.HScroll1.bewege(static_cast<int>(zufall.los(200)));
    e.vorschau.VScroll1.bewege(static_cast<int>(zufall.los(20000)));
    if (zufall.los(3) == 0) e.vorschau.Datenreihe.at(zufall.los(6)).setze(static_cast<int>(zufall.los(5)));
    const bool bereit = e.Command2.aktiv();
    const Meldung meldung = probe.importiere("neu");
    if (probe.dateien().empty()) {
        EXPECT_EQ(meldung.text.empty(), !bereit);
    } else {
        EXPECT_EQ(test::zeilen(probe.station("neu")).size(), 8766U);
        std::filesystem::remove(probe.ordner / "klima/neu.met");
    }
    EXPECT_THAT(probe.dateien(), testing::IsEmpty());
}

TEST(Importmutation, VeraenderteQuellenSchadenNicht) {
    Importprobe probe;
    Verderber verderber(20240229);
    for (const std::string& quelle : {Quellbau{}.meteonorm(), Quellbau{}.epw(true)}) {
        for (int i = 0; i < 30; ++i)
            durchspielen(probe, verderber.verderbe(quelle), verderber);
    }
}

TEST(Importmutation, RiesigeUndBinaereQuellenSchadenNicht) {
    Importprobe probe;
    Verderber zufall(7);
    std::string binaer(300000, '\0');
    for (char& byte : binaer)
        byte = static_cast<char>(zufall.los(256));
    constexpr std::size_t megabyte = 1U << 20U;
    const std::string tabs(megabyte, '\t');
    const std::string lang = std::string(megabyte, 'x') + "\r\n";
    Quellbau mit_langer_zeile{.ersetzt = {{400, "1\t1\t5\t3\t2\t" + std::string(megabyte, '7')}}};
    for (const std::string& quelle :
         {std::string(), binaer, "LOCATION," + std::string(megabyte, ','), std::string(megabyte, '\n'),
          "a\nb\nc\nTa\tG_Gh\tG_Dh" + tabs + "\n" + lang + lang, std::string(megabyte, ' ') + "1 2 3\n",
          mit_langer_zeile.meteonorm()}) {
        for (int i = 0; i < 3; ++i)
            durchspielen(probe, quelle, zufall);
    }
}

}  // namespace
}  // namespace velmaris
