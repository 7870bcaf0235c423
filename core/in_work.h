#pragma once

#include <cstdint>
#include <string>

#include "core/ask.h"

namespace veraqua {

/// The field and the station that were in work when it was made, for work that takes up others meanwhile.
class InWork {
  public:
    InWork();

    /// Whether the station still is the one in work.
    bool HasStation() const;

    /// Makes the station the one in work again. Its default weather and its coverage are for the caller to load.
    void ReturnStation() const;

    /// Takes up both again, the field as its file holds it now.
    void Return(Ask& ask) const;

  private:
    std::int16_t field_;
    std::string stationCode_;
    std::string stationName_;
};

}  // namespace veraqua
