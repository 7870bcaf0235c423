#pragma once

#include <cstddef>
#include <cstdint>
#include <limits>
#include <string>
#include <utility>
#include <variant>

#include "core/ask.h"
#include "core/directory.h"

/// How a deed says that it was not done.
namespace veraqua {

/// Which of the values that a deed was given is at fault.
enum class Given {
    Nothing,  ///< none of them
    Date,
    Entry,   ///< the day may be changed, but has none
    Amount,  ///< of water
    CutNumber,
    Mad,
    CriticalMad,
    Efficiency,
    Depletion,
    FieldId,
    Station,
    RootDepth,
    DryDays,
    Interval,   ///< of zones
    Thickness,  ///< of the layer `Index`
    Capacity,   ///< of the layer or zone `Index`
    Content,    ///< likewise
};

/// Why a deed was not done, and what the user has to set right. Nothing has changed.
struct Refused {
    std::string Text;  ///< empty: the user has answered a question with No, or has been told already
    std::string Title{ProgramTitle};
    Given Where = Given::Nothing;
    std::size_t Index = 0;
    bool IsOverflow = false;  ///< more than a field's file can hold; for a script a failure
};

/// The most that a file holds of an amount, in its own unit.
constexpr std::int16_t MostStored = std::numeric_limits<std::int16_t>::max();

/// Tells the user, if there is something to be told.
inline void Tell(Ask& ask, const Refused& refused) {
    if (!refused.Text.empty()) ask.Tell(refused.Text, refused.Title);
}

/// There is no row for one field more.
inline Refused DirectoryIsFull() { return {std::string(NoFreeRowText)}; }

/// What a deed has done, or why it was not done.
template <class Done>
class OrRefused {
  public:
    OrRefused(Done done) : outcome_(std::move(done)) {}           // NOLINT(google-explicit-constructor): returned
    OrRefused(Refused refused) : outcome_(std::move(refused)) {}  // NOLINT(google-explicit-constructor): likewise

    bool IsDone() const { return std::holds_alternative<Done>(outcome_); }
    const Done& operator*() const { return std::get<Done>(outcome_); }
    const Done* operator->() const { return &std::get<Done>(outcome_); }
    const Refused& Why() const { return std::get<Refused>(outcome_); }

  private:
    std::variant<Done, Refused> outcome_;
};

}  // namespace veraqua
