#include "desktop/views/date_popup.h"

#include <QAction>
#include <QIcon>
#include <QMenu>
#include <QTextCharFormat>
#include <QWidgetAction>

#include "core/calendar.h"
#include "desktop/days.h"
#include "desktop/text.h"
#include "screen/screen.h"

namespace veraqua {

namespace {

constexpr int LinesOfMonth = 8;  // its name, the days' names and six weeks
constexpr int RoomInLine = 8;

/// The day that stands in the input, or today.
QDate DayShown(const QLineEdit& line) {
    const TypedDate typed = ReadTypedDate(FromQt(line.text().trimmed()));
    return DateOf(typed.Julian != 0 ? typed.Julian : TheScreen().Now());
}

void TypeInto(QLineEdit& line, const QDate& day) {
    line.setFocus();
    line.selectAll();
    line.insert(ToQt(JulianToLongText(DayOf(day))));
    // Only what is typed tells the program; this is as good as typed.
    Q_EMIT line.textEdited(line.text());
}

void ShowPopup(QLineEdit& line) {
    QMenu popup(&line);
    auto* calendar = new QCalendarWidget(&popup);
    MakePlain(*calendar);
    // What it asks for by itself leaves no room for a sixth week.
    calendar->setMinimumHeight(LinesOfMonth * (calendar->fontMetrics().height() + RoomInLine));
    calendar->setSelectedDate(DayShown(line));
    QObject::connect(calendar, &QCalendarWidget::activated, &popup, [&](const QDate& day) {
        popup.close();
        TypeInto(line, day);
    });
    QObject::connect(calendar, &QCalendarWidget::clicked, &popup, [&](const QDate& day) {
        popup.close();
        TypeInto(line, day);
    });
    auto* holder = new QWidgetAction(&popup);
    holder->setDefaultWidget(calendar);
    popup.addAction(holder);
    QObject::connect(&popup, &QMenu::aboutToShow, calendar, [calendar] { calendar->setFocus(); });
    popup.exec(line.mapToGlobal(QPoint(0, line.height())));
}

}  // namespace

void MakePlain(QCalendarWidget& calendar) {
    calendar.setVerticalHeaderFormat(QCalendarWidget::NoVerticalHeader);
    for (const Qt::DayOfWeek day : {Qt::Saturday, Qt::Sunday}) calendar.setWeekdayTextFormat(day, {});
}

void AddDatePopup(QLineEdit& line) {
    QAction* button = line.addAction(QIcon(":/pictures/calendar.svg"), QLineEdit::TrailingPosition);
    button->setText("Calendar");
    button->setToolTip("Pick the day from a calendar (Alt+Down)");
    button->setShortcut(QKeySequence("Alt+Down"));
    button->setShortcutContext(Qt::WidgetShortcut);
    QObject::connect(button, &QAction::triggered, &line, [&line] {
        if (!line.isReadOnly()) ShowPopup(line);
    });
}

}  // namespace veraqua
