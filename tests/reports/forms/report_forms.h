#pragma once

#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "core/state.h"
#include "reports/forms/forms.h"
#include "reports/forms/report_options.h"
#include "screen/forms.h"
#include "tests/support/report_fields.h"
#include "tests/support/script_screen.h"

namespace veraqua {

/// The forms of the reports on 4 May 2003, the day after the last weather.
struct ReportForms : FormTest {
    ReportForms() {
        AddReportForms();
        The<frmReportOptions>() = frmReportOptions{};
        State.TodayJulian = User.Today = MayDay(4);
        State.WeatherLastJulian = MayDay(3);
        State.StationName = "LUNA FLATS";
    }

    /// The field in row `row`, run with the weather through 3 May.
    static StatRecord& Stored(int row, const AField& field, std::int16_t amount, JulianValue irrigation = 0) {
        field.StoreAt(row);
        StatRecord& stat = State.Stat[row];
        stat.LastDay = MayDay(3);
        stat.NextIrrAmount = amount;
        stat.NextIrrDay = irrigation;
        return stat;
    }

    /// As it comes from the printer, each line in its font: "Courier New 9| text".
    static std::string OnPaper(const PrintedDocument& document) {
        std::string text;
        for (const PrintedLine& line : document.Lines)
            text += line.Face.Family + " " + std::to_string(line.Face.Points) + "|" + line.Text + "\n";
        return text;
    }

    /// " (red)", or nothing where there is no colour.
    static std::string ColourName(const std::optional<Colour>& colour) {
        if (!colour) return "";
        return *colour == colours::Red ? " (red)" : *colour == colours::Yellow ? " (yellow)" : " (another colour)";
    }

    /// What the user reads on a form, control by control, with what backs it: "txtKc: 0.84".
    static std::string ShownOn(FormName form) {
        std::string text;
        const auto add = [&](const ControlEntry& entry, const std::string& shown) {
            if (!entry.Shared().Visible || shown.empty()) return;
            text += entry.Name + ": " + shown + ColourName(entry.Shared().Background) + "\n";
        };
        for (const ControlEntry& entry : FormOf(form).Controls) {
            if (TextBox* const* box = std::get_if<TextBox*>(&entry.Where)) add(entry, (*box)->Text);
            if (Label* const* label = std::get_if<Label*>(&entry.Where)) add(entry, (*label)->Caption);
            if (StatusBar* const* bar = std::get_if<StatusBar*>(&entry.Where))
                for (const std::string& panel : (*bar)->Panels) add(entry, panel);
        }
        return text;
    }
};

}  // namespace veraqua
