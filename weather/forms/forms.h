#pragma once

namespace veraqua {

/// Makes the forms of this room known.
void AddWeatherForms();

}  // namespace veraqua
