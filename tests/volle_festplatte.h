#pragma once

#include "toolkit/textdatei.h"

#ifdef _WIN32
#include <stdexcept>
#else
#include <sys/resource.h>
#endif

namespace velmaris::test {

/// As on a full disk: no file grows beyond a size as long as the object lives. A system that sets no such
/// limits cannot run the test.
class VolleFestplatte {
  public:
#ifdef _WIN32
    explicit VolleFestplatte(std::size_t /*bytes*/) {
        throw std::logic_error("this system limits no file's size");
    }
#else
    explicit VolleFestplatte(rlim_t bytes) {
        getrlimit(RLIMIT_FSIZE, &vorher_);
        rlimit eng = vorher_;
        eng.rlim_cur = bytes;
        dateigrenze_melden();
        setrlimit(RLIMIT_FSIZE, &eng);
    }
    VolleFestplatte(const VolleFestplatte&) = delete;
    VolleFestplatte& operator=(const VolleFestplatte&) = delete;
    ~VolleFestplatte() {
        setrlimit(RLIMIT_FSIZE, &vorher_);
    }

  private:
    rlimit vorher_{};
#endif
};

}  // namespace velmaris::test
