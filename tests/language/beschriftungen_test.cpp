#include "language/beschriftungen.h"

#include "toolkit/text.h"

#include <algorithm>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <map>
#include <regex>
#include <set>
#include <sstream>
#include <stdexcept>
#include <string>

namespace velmaris {
namespace {

/// What stands in a German caption if and only if the other stands in the English one; capitals do not count.
constexpr const char* wortpaare =
    "fenster=window;klima(?!anlage)=climat;geometrie=geometry;dämmung=insulation;süd=south;nord=north;"
    "ost\\b|ost-=east;west=west;dachhöhe=height of roof;dach=roof;volumen=volume;wänd|wand(?!sz)=wall;"
    "u-wert=u-value;g-wert=g-value;rahmen=frame;glas=glazing;lüft=vent;innenw=interior;außenw=exterior;"
    "gewinne= gains;verlust=loss;kühl=cool|overheated h;heiz|wärm|nutzfl|speicherf=heat;nicht=non;temp=temp;"
    "solar=solar;jahr=year;monat|durchschn=month;stunden=hours;daten=data;druck=print;seite=page;spez=spe;"
    "bedarf=demand;primär=primary;max=max;min=min;mittlere|mittelt|mittelw=mean;trägheit=inertia;obere=upper;"
    "0,10=0.10;region=region;last=load;grad=degree|itude;breiteng=latitude;°c=°c;1/h=1/h;%=%;m²=m²;m³=m³;"
    "kw\\b=kw\\b;w/=w/;diagramm=chart|diagram;bilanz=balance;report=report;anzeigen=show ;welt=world;"
    "zeilen\\b=rows|heading lines;import=import;abbrechen=cancel|abort;sprache=language;speichern=save";

/// True if a caption keeps all word pairs. Names that stay as they are keep them.
bool gleichbedeutend(const Wort& text) {
    static const auto paare = [] {
        std::vector<std::pair<std::regex, std::regex>> alle;
        std::istringstream zeilen(wortpaare);
        for (std::string paar; std::getline(zeilen, paar, ';');)
            alle.emplace_back(paar.substr(0, paar.find('=')), paar.substr(paar.find('=') + 1));
        return alle;
    }();
    const std::string de = kleinschreiben(text.de), en = kleinschreiben(text.en);
    return de == en || std::all_of(paare.begin(), paare.end(), [&](const auto& paar) {
               return std::regex_search(de, paar.first) == std::regex_search(en, paar.second);
           });
}

TEST(Beschriftungen, SagenInBeidenSprachenDasselbeUndStehenBeiIhremFeld) {
    const std::regex name("[A-Za-z0-9_äöü]+");
    const std::regex nur_name("[A-Za-z]+[0-9]+|mnu.*|.*_.*");
    std::map<std::string_view, std::set<std::string>> englisch;
    for (const std::string_view fenster : beschriftete_fenster()) {
        for (const auto& [feld, text] : beschriftungen(fenster)) {
            EXPECT_TRUE(std::regex_match(std::string(feld), name)) << feld;
            EXPECT_FALSE(text.de.empty() || text.en.empty()) << fenster << '.' << feld;
            EXPECT_FALSE(std::regex_match(std::string(text.de), nur_name)) << text.de;
            EXPECT_TRUE(gleichbedeutend(text)) << text.de << text.en;
            if (text.de != text.en || text.de.size() < 3) englisch[text.de].insert(kleinschreiben(text.en));
        }
    }
    EXPECT_THAT(beschriftete_fenster(),
                testing::IsSupersetOf({"E_Geometrie", "A_Sankey", "Haupt", "Druckerwahl"}));
    for (const auto& [de, en] : englisch)
        EXPECT_EQ(en.size(), de == "Abbrechen" ? 2U : 1U) << de;
}

TEST(Beschriftungen, NurDerBuchstabeELegtEnglischDarueberUndUnbekanntesWirdGenannt) {
    EXPECT_EQ(beschriftung("E_Geometrie", "Label11", "e"), "tethrahed.");
    EXPECT_EQ(beschriftung("E_Geometrie", "Label11", "E"), "Tetraeder");
    EXPECT_THAT([] { return beschriftung("E_Kilma", "Option1", "d"); },
                testing::ThrowsMessage<std::out_of_range>(testing::EndsWith("E_Kilma.Option1")));
}

}  // namespace
}  // namespace velmaris
