#include "desktop/platform/qt_text.h"
#include "desktop/widgets/bildflaeche.h"
#include "tests/desktop/programmprobe.h"

#include <QGroupBox>
#include <QRegularExpression>
#include <algorithm>
#include <map>
#include <sstream>

namespace velmaris {
namespace {

/// A part of a window with the place that it has on the frame, picture or window that carries it.
struct Teil {
    QWidget* fenster;
    QRect ort;
};
using Reihe = std::vector<Teil>;

QWidget* traeger(const QWidget& teil) {
    QWidget* ort = teil.parentWidget();
    while (ort->objectName().isEmpty())
        ort = ort->parentWidget();
    return ort;
}

/// What can be seen of a window, by what carries it.
std::map<QWidget*, Reihe> tafeln(const QWidget& fenster) {
    std::map<QWidget*, Reihe> alle;
    for (QWidget* teil : fenster.findChildren<QWidget*>(QRegularExpression("^(?!qt_).+"))) {
        if (!teil->isVisible() || teil->window() != fenster.window()) continue;
        QWidget* grund = traeger(*teil);
        alle[grund].push_back({teil, {teil->mapTo(grund, QPoint()), teil->size()}});
    }
    return alle;
}

/// The parts of a panel as they are read: rows from above, each from the left.
std::vector<Reihe> reihen(Reihe teile) {
    constexpr int naechste = 6;
    const auto mitte = [](const Teil& t) { return t.ort.center().y(); };
    std::ranges::stable_sort(teile, {}, mitte);
    std::vector<Reihe> neue;
    for (const Teil& teil : teile) {
        if (neue.empty() || mitte(teil) >= mitte(neue.back().front()) + naechste) neue.emplace_back();
        neue.back().push_back(teil);
    }
    for (Reihe& reihe : neue)
        std::ranges::stable_sort(reihe, {}, [](const Teil& t) { return t.ort.left(); });
    return neue;
}

/// The quantity that a caption, a scroll field, a display or a unit belongs to.
QString groesse(const Teil& teil) {
    static const QRegularExpression rest("^(label|anz|einheit)_|_(sb|anz)$");
    return teil.fenster->objectName().toLower().remove(rest);
}

/// The names of what a panel shows, " / " between its rows, "=" for what goes on with the same quantity.
std::string gelesen(const Reihe& teile) {
    std::string text;
    for (const Reihe& reihe : reihen(teile)) {
        if (!text.empty()) text += " /";
        QString zuletzt;
        for (const Teil& teil : reihe) {
            text += (text.empty() ? "" : " ") +
                    (groesse(teil) == zuletzt ? "=" : utf8(teil.fenster->objectName()));
            zuletzt = groesse(teil);
        }
    }
    return text;
}

/// The windows of a house with a heated roof and windows of its own at each facade.
class AnordnungTest : public test::Programmprobe {
  protected:
    /// Shows each window of the program, the climate plane for each scope, and looks at it.
    void fuer_jedes_fenster(const std::function<void(const std::string&, QWidget&)>& tu) {
        fuer_jede_ebene([&](QWidget& ebene) { tu(utf8(ebene.objectName()), ebene); });
        Haupt& h = haupt();
        h.e_menue.klicke("Klima");
        using Weg = std::tuple<std::string, const Feld*, std::function<void()>>;
        for (const auto& [titel, feld, zeige] :
             {Weg{"Germany", &h.e_klima.ebene,
                  [&] { h.e_klima.Option.setze(nummer(Klimabereich::deutschland)); }},
              {"World", &h.e_klima.ebene, [&] { h.e_klima.Option.setze(nummer(Klimabereich::welt)); }},
              {"E_Zoom_Klima", &h.e_klima.zoom.ebene, [&] { h.e_klima.zoom.ebene.zeige(true); }},
              {"A_Zoom", &h.a_zoom.ebene, [&] { h.a_zoom.oeffnen(); }},
              {"A_Report", &h.a_report.fenster, [&] { h.a_report.report_zeigen(); }},
              {"Temperatures", &h.a_report.fenster, [&] { h.a_report.temperaturverlauf_zeigen(); }},
              {"Drucken", &h.drucken.fenster, [&] { h.drucken.oeffnen(); }},
              {"Druckerwahl", &h.drucken.wahl.fenster, [&] { h.drucken.wahl.oeffnen(); }}}) {
            zeige();
            QApplication::processEvents();
            QWidget& fenster = such("Haupt", feld->name.c_str());
            tu(titel, fenster);
            if (fenster.isWindow()) fenster.close();
        }
    }
};

/// What each panel with more than one row shows, row by row; a line that is indented goes on with the one
/// before.
constexpr std::string_view anordnung =
    R"(A_Heizen: Label8 Label7 Label9 / Label25 Label21 / Heizbilanz JahrBilanz / Label13 Label11 / Label12 Label10
  / NutzungsgradMonat NutzungsgradJahr / Label15 Label16 Label17 / Label1 / Label18 / Label6 qtrs_anz
  qtr_anz / Label5 qinfs_anz qinf_anz / Label4 qis_anz qi_anz / Gewinne_N Verluste_N Gewinne_S Verluste_S
  Gewinne_O Verluste_O Gewinne_W Verluste_W / Label3 qsols_anz qsol_anz / Label2 qh_s_anz qh_anz Label19
A_Klima: Frame1 / Frame2
A_Klima.Frame1: anz_klimaregion / Label_MaxJahrTemp = = / Label_MaxMonatTemp = = / Label_MaxMonatName = /
  Label_MittelJahrTemp = = / Label_MinMonatTemp = = / Label_MinMonatName = / Label_MinJahrTemp = = /
  Label_Heizgradtage = =
A_Klima.Frame2: Label_Umittel = = / Label_Tspez = = / Label_Vspez = = / Label_TVspez = = / Label_tau = = /
  Label_Heizlast = = / Label_heizlast_spez = = / Label_kuehllast = = / Label_kuehllast_spez = = /
  Label_Heizgrenztemp = = / Label_Heiztage = =
A_Kuehlen: Label1 / StundenProTagMonat StundenProTagJahr / Label10 / KuehlbedarfMonat KuehlbedarfJahr /
  Label2 / KuehlGradStundenMonat KuehlGradStundenJahr
A_Uebersicht: Temperaturen / Monatsbutton1 Monatsbutton2 Monatsbutton3 Monatsbutton4 Monatsbutton5
  Monatsbutton6 Monatsbutton7 AktiverMonat Monatsbutton8 Monatsbutton9 Monatsbutton10 Monatsbutton11
  Monatsbutton12 / Label9 Label1 / Monatsbilanz JahrBilanz / Label32 Label01 Label02 / UeberGrafik UeberJahr
Drucken: Frame1 / Frame2 / DruckerNameUnten Command1 Command2
Drucken.Frame2: Druckausgabe1 / Druckausgabe2 / Druckausgabe3 / Druckausgabe4 / Druckausgabe5 /
  Druckausgabe6 / Druckausgabe7
Druckerwahl: Frame1 / Hinweis OK_Button Abbrechen
E_Daemmung: Frame3 / Frame1 / liste2 / Frame2 / Frame4 / Frame5
E_Daemmung.Frame1: Label1 ft_sb = = / Label2 kt_sb = =
E_Daemmung.Frame2: Label15 ugd / Label16 kk_sb = =
E_Daemmung.Frame3: Label3 kwn_sb = = / Label14 kws_sb = = / Label29 kwo_sb = = / Label32 kww_sb = =
E_Daemmung.Frame5: Waermebruecken_opt1 / Waermebruecken_opt2 / Label4 / Waermebruecken_opt3 / Label5
E_Daemmung.liste2: Label18 ogd_Dach / Label19 kd_sb = = / cbk_hDach
E_Energie: Label1 / Label_System Command1 / Label3 / Label_Übergabe Command2 / Label2 / Label_Energieträger
  Command3 / Frame1 / Frame8 Picture2 Picture3 / Monatsverbrauch / Monatsübersicht_Energieträger
E_Energie.Frame1: Label11 anz_qhs_sum = / Label30 anz_q_verlust = / Label16 anz_e_g / Label8
  anz_q_HE_Energieträger = / Label33 anz_q_HE_Strom = / Label21 anz_q_PE_Energieträger = / Label14
  anz_q_PE_Strom Label6
E_Energie.Frame8: Label27 anz_Primärenergiefaktor_Energieträger / Label34 anz_Primärenergiefaktor_Strom
E_Fenster: Frame10 / Option10 / Option11 / Command_HR0 Command_HR1 Command_HR2 Command_HR3 / Frame_Sued /
  Frame6 Frame7 / Frame5 Frame8
E_Fenster.Frame10: Label16 / Label64 fn_sb = = f_nf_anz = / Label58 fs_sb = = f_sf_anz = / Label49 fo_sb = =
  f_of_anz = / Label41 fw_sb = = f_wf_anz =
E_Fenster.Frame_Sued: fensters_typ / Label_kfgs = = Einheit_kfg / Label_kfrs = = Einheit_kfr / Label_gfs = =
  / Label_ras = = Einheit_ra / Label_verschs = = Einheit_versch
E_Gebaeude: Frame3 / Frame4 / Frame2 / Frame7 / Frame5 Frame6 / Frame1 Frame_Traegheit / Frame9
E_Gebaeude.Frame1: awn_cb / aww_cb awo_cb / aws_cb
E_Gebaeude.Frame2: intg_sb = Bezeichnung19 intg_anz2 Label12
E_Gebaeude.Frame4: Label1 lw_sb = = / Label5 infiltration_sb = = / Label4 WRG_Sb = =
E_Gebaeude.Frame7: Label19 / Tueber_sb = =
E_Gebaeude.Frame9: Label9 / Klimaeffizienz_sb = Label8 / Label10
E_Gebaeude.Frame_Traegheit: Frame8 / Label7 / Traegheit cges_anz = / Cwirk_anz =
E_Geometrie: Label4 / Label1 / hd_anz = / Picture3 / ag_sb = / Label22 / h_sb / h_anz / b_anz l_anz / b_sb
  l_sb / Check_Dachgeschoss / Frame4 / Frame3 / Frame2 Frame5
E_Geometrie.Frame2: Label29 / Label24 Picture1 Label27 / Label28 / Label31 orient_anz Label30 / orient_sb /
  Label23
E_Geometrie.Frame4: label37 f_gd_anz = / Label13 f_nutz_anz = / Label5 v_geb_anz = / Label18 v_luft_anz =
E_Geometrie.Frame5: Label36 / Label11 AV_Tetraeder / AV_Picture / Label34 AV_Wuerfel / Label35 AV_Kugel
E_Geometrie.Picture3: Label9 / dachfläche_anz Label6 / Giebel_anz / Label12 / Label15 / f_wfa_anz = /
  Label14 Label_Ost / f_nfa_anz =
E_Klima: Option1 Option2 Option3 / Frame_Station / Frame_Karte / Frame_Klimadaten
E_Klima.Frame_Karte: Picture2 / MausRegion
E_Klima.Frame_Klimadaten: anz_MittelJahrText anz_MittelJahrTemp = / anz_MinMonatText anz_MinMonatTemp = /
  anz_MaxMonatText anz_MaxMonatTemp =
E_Zoom_Klima: Picture1 / Klimaregionwahl2 MausRegion Command1 Command2
Germany: Option1 Option2 Option3 / Frame_Region / Frame_Karte / Frame_Klimadaten
Germany.Frame_Karte: Frame_plz / Picture1
World.Frame_Karte: picture3f / HScroll1 / MausRegion Image1)";

/// The panels of that text.
std::map<std::string, std::string> beschrieben() {
    std::map<std::string, std::string> tafeln;
    std::istringstream zeilen{std::string(anordnung)};
    std::string tafel;
    for (std::string zeile; std::getline(zeilen, zeile);) {
        const std::size_t ende = zeile.find(": ");
        if (!zeile.starts_with(' ')) tafel = zeile.substr(0, ende);
        tafeln[tafel] += zeile.substr(zeile.starts_with(' ') ? 1 : ende + 2);
    }
    return tafeln;
}

/// Each text lies on the ground that its colours count with, and stands out from it.
void pruefe_farben(QWidget& fenster) {
    const QImage bild = fenster.grab().toImage();
    for (const QLabel* schild : fenster.findChildren<QLabel*>(QRegularExpression(".+"))) {
        if (!schild->isVisible() || schild->text().trimmed().isEmpty() ||
            qobject_cast<Bildflaeche*>(schild->parentWidget()) != nullptr)
            continue;
        const QColor grund = schild->palette().color(schild->backgroundRole());
        const QColor schrift = schild->palette().color(schild->foregroundRole());
        const QPoint ecke = schild->mapTo(&fenster, QPoint(1, 1));
        EXPECT_EQ(QColor(bild.pixel(ecke * bild.devicePixelRatio())), grund) << utf8(schild->text());
        EXPECT_GT(std::abs(schrift.lightness() - grund.lightness()), 100) << utf8(schild->text());
    }
}

TEST_F(AnordnungTest, JedesFeldStehtAnSeinemPlatzUndIstZuLesen) {
    for (const char* sprache : {"d", "e"}) {
        starte(sprache);
        haupt().e_geometrie.Check_Dachgeschoss.setze(1);
        haupt().e_fenster.Option1.setze(1);
        std::map<std::string, std::string> gefunden;
        fuer_jedes_fenster([&](const std::string& titel, QWidget& fenster) {
            for (const auto& [tafel, teile] : tafeln(fenster))
                gefunden[titel + (tafel == &fenster ? "" : "." + utf8(tafel->objectName()))] = gelesen(teile);
            test::pruefe_platz(fenster, titel);
            QRect rahmen;
            for (const auto* einer : fenster.findChildren<QGroupBox*>(Qt::FindDirectChildrenOnly))
                if (einer->isVisible()) rahmen |= einer->geometry();
            EXPECT_TRUE(rahmen.isNull() || rahmen.left() + rahmen.right() + 1 == fenster.width()) << titel;
            pruefe_farben(fenster);
        });
        for (const auto& [ort, teile] : beschrieben())
            EXPECT_EQ(gefunden[ort], teile) << sprache << ' ' << ort;
    }
}

}  // namespace
}  // namespace velmaris
