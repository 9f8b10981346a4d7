#pragma once

#include "toolkit/fehler.h"

#include <exception>
#include <iostream>

namespace velmaris {

/// Does a generator's work; the exit code of its program. A fault goes to the error output, in English.
template <class Arbeit>
int erzeugerlauf(const char* programm, Arbeit&& arbeit) {
    try {
        arbeit();
        return 0;
    } catch (const Laufzeitfehler& fehler) {
        std::cerr << programm << ": " << fehler.text("e") << '\n';
    } catch (const std::exception& fehler) {
        std::cerr << programm << ": " << fehler.what() << '\n';
    }
    return 1;
}

}  // namespace velmaris
