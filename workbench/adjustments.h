#pragma once

#include <optional>
#include <string>

#include "workbench/field_change.h"

/// What corrects a running field: its MAD, its irrigation efficiency, its depletion; and the start of the crop over
/// from day 1. Percentages are given as typed, since the messages repeat them. Each takes the field's file anew.
namespace veraqua {

/// The root zone of a field on the day that its present state is that of.
struct RootZoneNow {
    DayView View;
    float Capacity = 0;          ///< mm
    float Water = 0;             ///< mm
    std::int16_t Depletion = 0;  ///< percent
};

/// RunTimeFailure where the root zone has no capacity.
RootZoneNow LookAtRootZone(const FieldFile& file);

/// Water in the root zone in the words of the depletion panel: "1.9 in/ft", "160.0mm/m".
std::string RootZoneWaterText(float water);

/// Sets the MAD, 0 to 100 percent, for the next run. The row in memory has it at once.
///   critical  of hay alone; nothing: it stays
OrRefused<FieldFile> SetMad(Ask& ask, const std::string& mad, const std::optional<std::string>& critical);

/// Sets the irrigation efficiency, 0 to 100 percent, for the next run.
OrRefused<FieldFile> SetEfficiency(Ask& ask, const std::string& efficiency);

/// Sets the depletion, 0 to 100 percent, and runs the field on from there: that day is its depletion date.
OrRefused<FieldChange> SetDepletion(Ask& ask, const std::string& depletion);

/// Starts the crop over from its planting day, after a question: water and cuttings go.
///   losses  stands behind the question
OrRefused<FieldChange> ResetField(Ask& ask, const std::string& losses = {});

/// What goes from the field in a reset, as a line behind the question: "3 rains, 1 irrigation and 2 cuttings go."
std::string LossesOfReset(const FieldFile& file);

}  // namespace veraqua
