#include "desktop/chart/chart_widget.h"

#include <QTest>
#include <QWheelEvent>

#include <gtest/gtest.h>

#include "desktop/chart/chart_canvas.h"

namespace veraqua {

/// 200 days from 1 April 2026.
static ChartContent Season() {
    constexpr JulianValue planted = JulianFromDate(4, 1, 2026);
    ChartContent chart;
    chart.DayAxis = "Day";
    chart.Series = {{"Water, \"all\"", "mm", ChartSeries::Look::Line, {}},
                    {"Rain", "mm", ChartSeries::Look::Bars, {{planted + 199, 25.5}}}};
    for (int day = 0; day < 200; ++day) chart.Series[0].Points.push_back({planted + day, 180 - day / 4.0});
    return chart;
}

TEST(ChartWidget, ZoomsAboutThePointerWithinTheSeasonAndReadsADayByKeys) {
    ChartWidget view;
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

}  // namespace veraqua
