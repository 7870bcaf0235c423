#include "desktop/chart/chart_view.h"

#include <QTest>
#include <QWheelEvent>

#include <gtest/gtest.h>

#include "desktop/chart/chart_canvas.h"
#include "desktop/chart/chart_reading.h"

namespace veraqua {

/// 200 days from 1 April 2026, with marks that crowd at the end.
static Chart Season() {
    constexpr JulianValue planted = JulianFromDate(4, 1, 2026);
    Chart chart;
    chart.DayAxis = "Day";
    chart.Series = {{"Water, \"all\"", "mm", ChartSeries::Look::Line, {}},
                    {"Rain", "mm", ChartSeries::Look::Bars, {{planted + 199, 25.5}}}};
    for (int day = 0; day < 200; ++day) chart.Series[0].Points.push_back({planted + day, 180 - day / 4.0});
    for (const int day : {0, 0, 30, 60, 185, 196, 197, 199, 400})
        chart.Marks.push_back({"Next cutting", planted + day});
    return chart;
}

TEST(ChartLayout, TextsKeepApartAndInsideAtEverySize) {
    const DayRange season = SeasonOf(Season());
    for (const QSizeF size : {QSizeF(420, 300), QSizeF(900, 500), QSizeF(1400, 700)})
        for (const double length : {7, 20, 90, 200}) {
            const auto texts = LayOut(Season(), {season.Last - length, season.Last}, size, QFont()).Texts;
            for (const ChartLayout::Words& words : texts) {
                EXPECT_TRUE(QRectF(QPointF(), size).contains(words.Box)) << words.Text.toStdString();
                for (const ChartLayout::Words& other : texts)
                    EXPECT_TRUE(&words == &other || !words.Box.intersects(other.Box)) << words.Text.toStdString();
            }
        }
}

TEST(ChartView, ZoomsAboutThePointerWithinTheSeasonAndReadsADayByKeys) {
    ChartView view;
    view.ShowChart(Season());
    view.show();
    auto& canvas = dynamic_cast<ChartCanvas&>(*view.findChild<QChartView*>());
    const ChartPlot& plot = *canvas.Plot();
    const auto turn = [&](int notches) {
        QWheelEvent turned({300, 200}, QPointF(), {}, {0, 120 * notches}, {}, {}, {}, false);
        QCoreApplication::sendEvent(canvas.viewport(), &turned);
    };
    const double pointed = plot.DayAt(300);
    turn(4);
    EXPECT_NEAR(plot.DayAt(300), pointed, 0.01);
    EXPECT_NEAR(plot.Days().Length(), 81.92, 0.01) << "200 / 1.25^4";
    turn(40);
    EXPECT_NEAR(plot.Days().Length(), 7, 0.001);
    canvas.Move(-1000);
    for (const Qt::Key key : {Qt::Key_Right, Qt::Key_Left}) QTest::keyClick(&view, key);
    EXPECT_EQ(view.accessibleDescription(), "10-16-26; Water, \"all\" 130.5 mm") << "one before the last";
    EXPECT_EQ(plot.Days().Last, plot.Season().Last) << "the day moves into sight";
    QTest::keyClick(&view, Qt::Key_Home);
    EXPECT_EQ(plot.Days(), plot.Season());
}

TEST(ChartCsv, HasALineADayAndNothingWhereASeriesHasNoValue) {
    const std::string csv = ChartCsv(Season());
    EXPECT_TRUE(csv.starts_with("Day,\"Water, \"\"all\"\" (mm)\",Rain (mm)\n04-01-2026,180,\n"));
    EXPECT_TRUE(csv.ends_with("10-16-2026,130.5,\n10-17-2026,130.25,25.5\n"));
}

}  // namespace veraqua
