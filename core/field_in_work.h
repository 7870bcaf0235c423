#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "core/ask.h"
#include "core/field_file.h"

/// Taking a field in work: what the state says of it.
namespace veraqua {

/// Sets the header, `IsHay`, `VariableSoil`, `RainTotal` and `IrrigationTotal` of the field in work to those of `file`.
void TakeInWork(const FieldFile& file);

/// Loads the file of `CurrentField` and takes it in work. Nothing if it is missing, after the user has been told.
/// RunTimeFailure if it is damaged.
std::optional<FieldFile> ReadField(Ask& ask);

/// Makes `row` the field in work: its kind, its header, its station. As above.
std::optional<FieldFile> SelectField(Ask& ask, int row);

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

/// After a failure: takes the row and the header of the field in work from disk again, so that memory says what the
/// files say. The field stays selected. The row of a field that is still being entered is not in use again.
void RereadFieldInWork();

}  // namespace veraqua
