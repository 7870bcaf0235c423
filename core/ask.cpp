#include "core/ask.h"

namespace veraqua {

JulianValue ValidateDate(Ask& ask, std::string& text) {
    const TypedDate date = ReadTypedDate(text);
    if (date.Julian == 0)
        ask.Tell(date.Reason, "Date input error");
    else
        text = date.LongText;
    return date.Julian;
}

}  // namespace veraqua
