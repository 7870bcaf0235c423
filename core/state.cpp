#include "core/state.h"

namespace veraqua {

ApplicationState State;

}  // namespace veraqua
