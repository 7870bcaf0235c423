#pragma once

#include <span>
#include <string_view>

namespace veraqua {

/// The files below data/shipped, and the user's manual, whose bytes lie inside the program, so that a copied program
/// needs nothing beside it. Names are as in that folder, with "/" between folders ("crop.dat"), in alphabetical order.
std::span<const std::string_view> EmbeddedNames();

/// The bytes of one of them, valid as long as the program runs; empty where there is none of that name.
std::string_view EmbeddedFile(std::string_view name);

}  // namespace veraqua
