#include "desktop/chart/chart_type.h"

#include <QFontMetricsF>

#include "desktop/text.h"

namespace veraqua {

ChartType TypeOf(const QFont& font) {
    const QFontMetricsF plain(font);
    const QFontMetricsF bold(Bold(font));
    return {[plain](const std::string& text) { return plain.horizontalAdvance(ToQt(text)); }, plain.height(),
            [bold](const std::string& text) { return bold.horizontalAdvance(ToQt(text)); }, bold.height()};
}

QFont Bold(QFont font) {
    font.setBold(true);
    return font;
}

}  // namespace veraqua
