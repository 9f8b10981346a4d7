#include "calc/fassaden.h"

namespace velmaris {

JeWandseite<Fassade> fassaden(const Projekt& p) {
    const double wd = p.Waermebruecken;
    return {{{{p.kwn + wd, p.f_nw, p.f_giebel_n, p.kfn, p.f_nf, p.ran, p.gfn, p.verschn},
              {p.kws + wd, p.f_sw, p.f_giebel_s, p.kfs, p.f_sf, p.ras, p.gfs, p.verschs},
              {p.kwo + wd, p.f_ow, p.f_giebel_o, p.kfo, p.f_of, p.rao, p.gfo, p.verscho},
              {p.kww + wd, p.f_ww, p.f_giebel_w, p.kfw, p.f_wf, p.raw, p.gfw, p.verschw}}}};
}

}  // namespace velmaris
