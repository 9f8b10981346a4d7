#pragma once

#include <string>

namespace velmaris {

/// Texts that several windows share, in the language of the run; empty until they are set.
struct Texte {
    std::string txt_Aenderung;        ///< question whether to save the changes
    std::string txt_Aenderung_Titel;  ///< ... and its title
    std::string txt_Ersetzen;         ///< question whether to overwrite a file
    std::string txt_Klima_fehlt;      ///< message that the station file is missing
    std::string txt_Klima_Titel;      ///< ... and its title
    std::string txt_Sprache;          ///< notice of a change of language, in both languages at once
    std::string txt_Ueberwaermung;
    std::string txt_Monat;
    std::string txt_Jahresbilanz;
    std::string txt_Raumluft;
    std::string txt_Aussenluft;
};

}  // namespace velmaris
