#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace velmaris::hilfe {

/// A page of the help: its file name without ending, and what its head says.
struct Seite {
    std::string name;
    std::string titel;
    std::vector<std::string> stichworte;
    std::string text;  ///< the whole page as it was written, UTF-8
};

/// Pages under a heading; the first chapter has none.
struct Kapitel {
    std::string titel;
    std::vector<Seite> seiten;
};

/// The help in one language, in its order.
using Inhalt = std::vector<Kapitel>;

/// Reads the order of the pages from `ordner`/inhalt.txt (a page per line; "# German | English" begins
/// a chapter) and the pages from `ordner`/d or `ordner`/e. A page without title or keywords, a page that the
/// list does not name and a named one that is missing are a Dateifehler.
[[nodiscard]] Inhalt inhalt_lesen(const std::filesystem::path& ordner, const std::string& sprache);

/// All pages, one after the other.
[[nodiscard]] std::vector<const Seite*> alle_seiten(const Inhalt& inhalt);

}  // namespace velmaris::hilfe
