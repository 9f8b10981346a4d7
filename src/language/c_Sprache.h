#pragma once

#include "project/c_glob.h"
#include "toolkit/plattform.h"

#include <array>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace velmaris {

/// Shows the language window and returns the letter chosen, nothing if it was closed without a choice.
using Sprachfenster = std::function<std::optional<std::string>()>;

/// Sets the shared texts and the month names of the record by `Sprache`. A letter other than "d" and "e"
/// leaves all of them as they are but `txt_Sprache`, which speaks both languages.
void sprachtexte_setzen(Projekt& p);

/// The short names of the twelve months.
[[nodiscard]] std::array<std::string, monate> monatskuerzel(const Projekt& p);

/// True if there is a file (not a folder) of that path.
[[nodiscard]] bool datei_da(const std::filesystem::path& datei);

/// Takes `Sprache` from the first item of the language file, which keeps the letter beside the stations, as
/// it stands; without the file asks by the window. A choice is stored by `schreibe_sprache`; without one
/// `Sprache` stays as it is.
void sprache_lesen(Projekt& p, const Sprachfenster& sprachfenster);

/// Writes the letter to the language file and sets `Sprache`. A failed write is a Dateifehler.
void schreibe_sprache(Projekt& p, const std::string& buchstabe);

/// Says that the language will change at the next start, then writes the letter to the language file;
/// `Sprache` and all texts stay. A failed write is a Dateifehler.
void sprache_merken(const Projekt& p, Plattform& plattform, std::string_view buchstabe);

}  // namespace velmaris
