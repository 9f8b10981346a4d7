#pragma once

#include "toolkit/textdatei.h"

#include <sys/resource.h>

namespace velmaris::test {

/// As on a full disk: no file grows beyond a size as long as the object lives.
class VolleFestplatte {
  public:
    explicit VolleFestplatte(rlim_t bytes) {
        getrlimit(RLIMIT_FSIZE, &vorher_);
        rlimit eng = vorher_;
        eng.rlim_cur = bytes;
        dateigrenze_melden();
        setrlimit(RLIMIT_FSIZE, &eng);
    }
    VolleFestplatte(const VolleFestplatte&) = delete;
    VolleFestplatte& operator=(const VolleFestplatte&) = delete;
    ~VolleFestplatte() { setrlimit(RLIMIT_FSIZE, &vorher_); }

  private:
    rlimit vorher_{};
};

}  // namespace velmaris::test
