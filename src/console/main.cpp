#include "console/aufruf.h"
#include "console/auftrag.h"
#include "toolkit/textdatei.h"
#include "toolkit/zahlen.h"

#include <cstdio>
#include <exception>
#include <iostream>
#include <new>

int main(int argc, char** argv) {
    try {
        velmaris::dateigrenze_melden();
        velmaris::dezimalzeichen_setzen(velmaris::dezimalzeichen_der_umgebung());
        return velmaris::aufrufen(argc, argv, std::cout, std::cerr);
    } catch (const std::bad_alloc&) {
        std::fputs("nicht genug Speicher / not enough memory\n", stderr);
    } catch (const std::exception& fehler) {
        std::fputs(fehler.what(), stderr);
        std::fputc('\n', stderr);
    }
    return velmaris::projekt_fehlerhaft;
}
