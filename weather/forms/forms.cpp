#include "weather/forms/forms.h"

#include "screen/forms.h"

namespace veraqua {

void AddWeatherForms() {}

}  // namespace veraqua
