#include "language/beschriftungen.h"

#include "toolkit/text.h"

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
    "interne=internal;gewinne= gains;verlust=loss;kühl=cool|overheated h;heiz|wärm|nutzfl|speicherf=heat;"
    "nicht=non;nutzbar=usable|useful;solar=solar;strom=electr;temp=temp;jahr=year;monat|durchschn=month;"
    "stunden=hours;tage=days;daten=data;druck=print;seite=page;bedarf=demand;primär=primary;"
    "energiefl=energy flow;spez=spec;transm=transm;max=max;min=min;mittlere|mittelt|mittelw=mean;"
    "trägheit=inertia;fassade=facade;obere=upper;untere=lower;gesamt|gebäudev=total;brücken=bridges;"
    "0,10=0.10;0,05=0.05;region=region;last=load;grad=degree|itude;breiteng=latitude;°c=°c;1/h=1/h;%=%;"
    "m²=m²;m³=m³;kwh m=kwh m;kw\\b=kw\\b;w/=w/;diagramm=chart|diagram;bilanz=balance;report=report;"
    "anzeigen=show ;datei\\b=file\\b;spalten=columns;zeilen\\b=rows|heading lines;deutschl=germany;"
    "europa=europe;welt=world;import=import;abbrechen=cancel|abort;sprache=language;speichern=save;"
    "unter[.]= as [.];ebene|umfassung=planes";

/// The first word pair that a caption breaks, empty if it keeps all. Names that stay as they are keep them.
std::string gebrochen(const Wort& text) {
    static const auto paare = [] {
        std::vector<std::pair<std::regex, std::regex>> alle;
        std::istringstream zeilen(wortpaare);
        for (std::string paar; std::getline(zeilen, paar, ';');)
            alle.emplace_back(paar.substr(0, paar.find('=')), paar.substr(paar.find('=') + 1));
        return alle;
    }();
    const auto hat = [](std::string_view worte, const std::regex& muster) {
        std::string glatt = kleinschreiben(worte);
        std::erase(glatt, '&');
        return std::regex_search(glatt, muster);
    };
    if (text.de == text.en) return {};
    for (const auto& [deutsch, englisch] : paare) {
        if (hat(text.de, deutsch) != hat(text.en, englisch)) return std::string(text.de).append(text.en);
    }
    return {};
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
            EXPECT_EQ(gebrochen(text), "") << fenster << '.' << feld;
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
