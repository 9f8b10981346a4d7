#include "desktop/platform/fehlerwache.h"

#include <exception>
#include <iostream>
#include <new>
#include <string>

namespace velmaris {

bool Fehlerwache::fuehre_aus(const std::function<void()>& handler) const noexcept {
    try {
        if (handler) handler();
        return true;
    } catch (const Laufzeitfehler& fehler) {
        behandle(fehler);
    } catch (const std::bad_alloc&) {
        behandle(Laufzeitfehler(kein_speicher()));
    } catch (const std::exception& fehler) {
        const std::string grund = fehler.what();
        behandle(Laufzeitfehler({grund, grund}));
    }
    return false;
}

void Fehlerwache::behandle(const Laufzeitfehler& fehler) const {
    if (fehler_behandeln) {
        fehler_behandeln(fehler);
    } else {
        std::cerr << fehler.what() << '\n';
    }
}

}  // namespace velmaris
