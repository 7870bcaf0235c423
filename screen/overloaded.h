#pragma once

namespace veraqua {

/// Lambdas, one for each kind of control, as the one function that std::visit takes for AnyControl.
template <class... Kinds>
struct Overloaded : Kinds... {
    using Kinds::operator()...;
};
template <class... Kinds>
Overloaded(Kinds...) -> Overloaded<Kinds...>;

}  // namespace veraqua
