#pragma once

#include "toolkit/plattform.h"

namespace velmaris {

/// Shows the wait cursor while it lives.
class Sanduhr {
  public:
    explicit Sanduhr(Plattform& plattform) : plattform_(plattform) { plattform_.sanduhr(true); }
    Sanduhr(const Sanduhr&) = delete;
    Sanduhr& operator=(const Sanduhr&) = delete;
    ~Sanduhr() { plattform_.sanduhr(false); }

  private:
    Plattform& plattform_;
};

}  // namespace velmaris
