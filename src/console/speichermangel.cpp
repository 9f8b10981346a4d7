#include <cstdio>
#include <cstdlib>
#include <exception>

namespace {

constexpr int gescheitert = 1;

std::terminate_handler ende = nullptr;

/// Where the memory is too short even for the fault that says so, there is no fault to catch.
[[noreturn]] void ohne_speicher_enden() {
    if (std::current_exception() && ende != nullptr) ende();
    std::fputs("nicht genug Speicher / not enough memory\n", stderr);
    std::_Exit(gescheitert);
}

/// Set while the program's constants are built, which takes memory too: this file is linked first.
[[maybe_unused]] const bool gesetzt = [] {
    ende = std::set_terminate(ohne_speicher_enden);
    return true;
}();

}  // namespace
