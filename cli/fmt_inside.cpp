// libfmt's own code, as part of the program: see CMakeLists.txt. The templates are those that its library instantiates.
#include <fmt/format-inl.h>

namespace fmt::detail {

template auto thousands_sep_impl(locale_ref) -> thousands_sep_result<char>;
template auto decimal_point_impl(locale_ref) -> char;

}  // namespace fmt::detail
