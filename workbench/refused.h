#pragma once

#include <cstddef>
#include <string>
#include <utility>
#include <variant>

#include "core/ask.h"

/// How a deed says that it was not done.
namespace veraqua {

/// Which of the values that a deed was given is at fault.
enum class Given {
    Nothing,  ///< none of them
    Date,
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
};

/// Tells the user, if there is something to be told.
inline void Tell(Ask& ask, const Refused& refused) {
    if (!refused.Text.empty()) ask.Tell(refused.Text, refused.Title);
}

/// There is no row for one field more.
inline Refused DirectoryIsFull() { return {"Veraqua keeps at most 100 fields."}; }

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
