#include "planes/neues_projekt.h"

#include "climate/regionen.h"
#include "project/klimabereich.h"
#include "toolkit/zahlen.h"

namespace velmaris {
namespace {

void neue_geometrie(Projekt& p) {
    p.l = 10;
    p.b = 10;
    p.h = f32(5.2);
    p.hd = 2;
    p.ag = 2;
    p.orient = 0;
}

void neue_daemmung(Projekt& p) {
    p.kwn = p.kws = p.kwo = p.kww = f32(0.2);
    p.kd = f32(0.2);
    p.kk = f32(0.2);
    p.ft = 0;
    p.kt = f32(1.5);
    p.Waermebruecken = f32(0.1);
    p.ugd_typ = 0;
    p.Dachraum_typ = 0;
    p.absfaktor = f32(0.5);
    p.cbk_hDach = 1;
}

void neue_fenster(Projekt& p) {
    p.fn = p.fo = p.fw = 5;
    p.fs = 40;
    p.verschn = p.verschs = p.verscho = p.verschw = f32(0.2);
    p.ran = p.ras = p.rao = p.raw = f32(0.2);
    p.fenstern_typ = p.fensters_typ = p.fenstero_typ = p.fensterw_typ = 3;
    p.gfn = p.gfs = p.gfo = p.gfw = f32(0.58);
    p.kfgn = p.kfgs = p.kfgo = p.kfgw = f32(1.4);
    p.kfrn = p.kfrs = p.kfro = p.kfrw = f32(1.5);
    p.kfn = p.kfs = p.kfo = p.kfw = f32(1.42);
}

void neue_nutzung(Projekt& p) {
    p.awn = p.aws = p.awo = p.aww = 1;
    p.lw = 0;
    p.infiltration = f32(0.6);
    p.WRG = 0;
    p.intg = 25;
    p.Troom = 20;
    p.Tueber = 27;
    p.Klimaeffizienz = f32(2.5);
}

}  // namespace

std::string vorgabestation() {
    return std::string(klimaregion(4).datei);
}

void neue_eingaben(Projekt& p) {
    neue_geometrie(p);
    neue_daemmung(p);
    neue_fenster(p);
    neue_nutzung(p);
    regionsdateien_setzen(p);
    p.Klimadatei = vorgabestation();
    p.Klimaauswahl = nummer(Klimabereich::europa);
    p.Heizsystem = p.Uebergabe = p.Energietraeger = 1;
    p.Datei = unbenannt;
}

}  // namespace velmaris
