#include "toolkit/plattform.h"

#include "toolkit/text.h"

#include <algorithm>

namespace velmaris {

std::filesystem::path mit_endung(const Dateidialog& dialog, std::filesystem::path datei, int filterindex) {
    if (dialog.endungen.empty()) return datei.has_extension() ? datei : datei += dialog.endung;
    const std::string endung = kleinschreiben(pfadtext(datei.extension()));
    if (std::ranges::find(dialog.endungen, endung) != dialog.endungen.end()) return datei;
    const auto letzter = static_cast<int>(dialog.endungen.size());
    return datei += dialog.endungen[static_cast<std::size_t>(std::clamp(filterindex, 1, letzter) - 1)];
}

}  // namespace velmaris
