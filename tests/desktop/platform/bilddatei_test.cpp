#include "desktop/platform/bilddatei.h"

#include "climate/karten.h"
#include "desktop/platform/qt_flaeche.h"
#include "toolkit/feinbild.h"
#include "toolkit/text.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <gtest/gtest.h>
#include <string>

namespace velmaris {
namespace {

const std::filesystem::path grafiken = VELMARIS_GRAFIKEN;

int unterschied(QRgb a, QRgb b) {
    return std::max(
        {std::abs(qRed(a) - qRed(b)), std::abs(qGreen(a) - qGreen(b)), std::abs(qBlue(a) - qBlue(b))});
}

bool einfarbig(const QImage& bild, int x, int y) {
    const QImage umgebung = bild.copy(x - 1, y - 1, 3, 3);
    QImage schlicht = umgebung.copy();
    schlicht.fill(bild.pixel(x, y));
    return umgebung == schlicht;
}

/// A smaller picture shows what another one does: in the mean nearly, and where that one is plain throughout.
void gleicht(const QImage& verkleinert, const QImage& bild, const std::string& name) {
    ASSERT_EQ(verkleinert.size(), bild.size()) << name;
    double summe = 0;
    int schlicht = 0;
    for (int y = 1; y < bild.height() - 1; ++y) {
        for (int x = 1; x < bild.width() - 1; ++x) {
            const int abweichung = unterschied(verkleinert.pixel(x, y), bild.pixel(x, y));
            summe += abweichung;
            if (!einfarbig(bild, x, y)) continue;
            ++schlicht;
            ASSERT_LE(abweichung, 10) << name << ", " << x << ", " << y;
        }
    }
    EXPECT_GT(schlicht, bild.width() * bild.height() / 3) << name;
    EXPECT_LT(summe / (bild.width() * bild.height()), 4) << name;
}

QImage geschrumpft(const QImage& bild, const QSize& groesse) {
    return bild.scaled(groesse, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

TEST(Bilddatei, DieFeineAusgabeZeigtDasselbeVierfach) {
    int bilder = 0;
    std::uintmax_t bytes = 0;
    for (const auto& eintrag : std::filesystem::directory_iterator(grafiken)) {
        if (pfadtext(eintrag.path()).find('@') != std::string::npos) continue;
        const QImage bild = bild_lesen(eintrag), fein = feines_bild_lesen(eintrag);
        ASSERT_EQ(fein.size(), 4 * bild.size()) << eintrag;
        gleicht(geschrumpft(fein, bild.size()), bild, pfadtext(eintrag));
        bytes += std::filesystem::file_size(feines_bild(eintrag));
        ++bilder;
    }
    EXPECT_EQ(bilder, 22);
    EXPECT_LT(bytes, 3'000'000U);
}

TEST(Bilddatei, KommtInJederHoeheUndFehltOhneDatei) {
    for (const double verhaeltnis : {1.0, 2.5}) {
        const QImage bild = bild_in_hoehe(grafiken / "velmaris.bmp", 160, verhaeltnis);
        EXPECT_EQ(bild.size(), QSize(160, 160) * verhaeltnis);
        EXPECT_EQ(bild.deviceIndependentSize(), QSizeF(160, 160));
        gleicht(geschrumpft(bild, {128, 128}), geschrumpft(bild_lesen(grafiken / "velmaris.bmp"), {128, 128}),
                "icon");
    }
    EXPECT_TRUE(bild_in_hoehe(grafiken / "missing.bmp", 64, 2).isNull());
}

Farbe farbe(QRgb wert) {
    return {static_cast<std::uint8_t>(qRed(wert)), static_cast<std::uint8_t>(qGreen(wert)),
            static_cast<std::uint8_t>(qBlue(wert))};
}

/// What is seen is drawn anew for each size; what is read is the picture's own pixel, or a dot's.
TEST(Bilddatei, EineKarteLiestSichInJederGroesseGleich) {
    for (const char* name : {"klima0.bmp", "klima7.bmp", "europa.bmp"}) {
        const QImage karte = bild_lesen(grafiken / name), fein = feines_bild_lesen(grafiken / name);
        for (const double verhaeltnis : {1.0, 1.25, 1.5, 2.0, 3.75}) {
            QtFlaeche flaeche(karte.size(), verhaeltnis, farben::weiss);
            flaeche.hintergrundbild(karte, fein);
            flaeche.Cls();
            QImage gezeigt = flaeche.bild();
            gezeigt.setDevicePixelRatio(1);
            EXPECT_EQ(gezeigt == karte.scaled(gezeigt.size()), verhaeltnis == 1) << "stretched pixels";
            gleicht(geschrumpft(gezeigt, karte.size()), karte, name);
            for (const Kartenpunkt& ort : bezugspunkte)
                flaeche.kreis(ort.x, std::floor(ort.y / 2), 2, farben::gelb, farben::gelb);
            int fehler = 0;
            for (int y = 0; y < karte.height(); ++y) {
                for (int x = 0; x < karte.width(); ++x) {
                    double abstand = 99;
                    for (const Kartenpunkt& ort : bezugspunkte)
                        abstand = std::min(abstand, std::hypot(x - ort.x, y - std::floor(ort.y / 2)));
                    if (abstand > 2 && abstand < 3) continue;  // the rim of a dot
                    const Farbe gewollt = abstand <= 2 ? farben::gelb : farbe(karte.pixel(x, y));
                    fehler += flaeche.lies_punkt(x, y) != gewollt;
                }
            }
            EXPECT_EQ(fehler, 0) << name << " at " << verhaeltnis;
        }
    }
}

}  // namespace
}  // namespace velmaris
