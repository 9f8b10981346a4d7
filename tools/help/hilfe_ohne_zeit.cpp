#include "toolkit/textdatei.h"
#include "tools/help/zeitstempel.h"
#include "tools/lauf.h"

#include <iostream>

/// Takes the times of its making out of the compiled help file of the first argument.
int main(int anzahl, char** argumente) {
    using namespace velmaris;
    if (anzahl != 2) {
        std::cerr << "usage: hilfe_ohne_zeit FILE.chm\n";
        return 2;
    }
    return erzeugerlauf("hilfe_ohne_zeit", [&] {
        const std::filesystem::path datei = argumente[1];
        datei_ersetzen(datei, hilfe::ohne_zeitstempel(bytes_lesen(datei, hoechste_quellgroesse)));
    });
}
