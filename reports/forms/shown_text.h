#pragma once

#include "reports/prediction_text.h"
#include "screen/controls.h"

namespace veraqua {

/// A box that shows and can't be typed into.
struct ShownText : TextBox {
    explicit ShownText(std::string text = {}) : TextBox(std::move(text)) { ReadOnly = true; }
};

/// Puts a prediction into its two boxes, in red where the MAD is exceeded.
inline void ShowPrediction(const PredictionText& prediction, TextBox& date, TextBox& amount) {
    date.Text = prediction.Date;
    amount.Text = prediction.Amount;
    date.Background.reset();
    if (prediction.Colour == PredictionColour::Red) date.Background = colours::Red;
}

}  // namespace veraqua
