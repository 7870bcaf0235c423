#include <QApplication>
#include <QCalendarWidget>
#include <QCheckBox>
#include <QClipboard>
#include <QHeaderView>
#include <QLabel>
#include <QListWidget>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QRadioButton>
#include <QSettings>
#include <QStatusBar>
#include <QTableView>
#include <QTcpServer>
#include <QWheelEvent>
#include <algorithm>
#include <map>
#include <utility>

#include <gmock/gmock.h>

#include "core/directory.h"
#include "desktop/manual/manual_page.h"
#include "desktop/window_place.h"
#include "tests/desktop/window_test.h"

namespace veraqua {
namespace {

using testing::HasSubstr;

struct StoriesTest : WindowTest {
    std::string TextOf(FormName form, const char* label) { return FromQt(The<QLabel>(form, label).text()); }

    /// The bars that are shown, in the order of the page: crop and ID of each.
    std::vector<std::pair<std::string, std::string>> Bars() {
        std::map<std::pair<int, int>, std::pair<std::string, std::string>> bars;
        for (const QMdiSubWindow* frame : Window(FormName::frmGraphs).findChild<QMdiArea*>()->subWindowList()) {
            const QStringList title = frame->windowTitle().split(" -- ID: ");
            if (frame->isVisible()) bars[{frame->y(), frame->x()}] = {FromQt(title[0]), FromQt(title[1])};
        }
        std::vector<std::pair<std::string, std::string>> inOrder;
        inOrder.reserve(bars.size());
        for (const auto& [place, bar] : bars) inOrder.push_back(bar);
        return inOrder;
    }

    /// The main menu of the sample season, the worst field of its list first.
    QTableView& Today() {
        StartWithSample();
        Settle();
        return The<QTableView>(FormName::frmVeraqua, "Today");
    }

    /// Turns the wheel over `widget` by one notch.
    static void Turn(QWidget& widget) {
        const QPointF at = widget.rect().center();
        QWheelEvent event(at, widget.mapToGlobal(at), {}, {0, -120}, Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase,
                          false);
        QApplication::sendEvent(&widget, &event);
    }

    /// The workbench with the field in `row` of the directory.
    void OpenField(int row) {
        StartWithSample();
        Click(FormName::frmVeraqua, "cmdfields");
        Choose(FormName::frmField, "mnuSelect");
        Pick(FormName::frmField, "ComboField", row - 1);
        if (IsUp(FormName::frmFieldData)) Click(FormName::frmFieldData, "cmdExit");
    }
};

TEST_F(StoriesTest, ANewUserStartsWithTheSampleAndOpensTheFieldThatNeedsWaterMost) {
    QTableView& today = Today();
    ASSERT_GE(today.model()->rowCount(), 10);
    EXPECT_FALSE(IsUp(FormName::frmPath));
    const std::string worst = FromQt(today.model()->index(0, 0).data().toString());
    today.setCurrentIndex(today.model()->index(0, 0));
    Press(FormName::frmVeraqua, "Today", Qt::Key_Return);
    EXPECT_TRUE(IsUp(FormName::frmField) && !IsUp(FormName::frmVeraqua));
    EXPECT_THAT(TextOf(FormName::frmField, "lbl_ID"), HasSubstr(worst));
    Window(FormName::frmField).close();  // by its frame
    Settle();
    EXPECT_TRUE(IsUp(FormName::frmVeraqua) && !IsUp(FormName::frmField));
}

TEST_F(StoriesTest, TheListIsSortedByItsNumbersAndTheRowThatIsSeenIsCopiedAndOpened) {
    QTableView& today = Today();
    const int last = today.model()->rowCount() - 1;
    int depletion = -1;
    for (int column = 0; column < today.model()->columnCount(); ++column)
        if (today.model()->headerData(column, Qt::Horizontal).toString().startsWith("Depletion")) depletion = column;
    ASSERT_GE(depletion, 0);
    const auto text = [&](int row, int column) { return today.model()->index(row, column).data().toString(); };
    const QString worst = text(0, 0);
    today.sortByColumn(depletion, Qt::AscendingOrder);
    EXPECT_NE(text(0, 0), worst);
    today.sortByColumn(depletion, Qt::DescendingOrder);
    for (int row = 1; row <= last; ++row) EXPECT_GE(text(row - 1, depletion).toInt(), text(row, depletion).toInt());
    today.clearSelection();
    today.scrollTo(today.model()->index(0, depletion));
    EXPECT_EQ(ColourIn(*today.viewport(), today.visualRect(today.model()->index(0, depletion))), QColor(255, 150, 140))
        << "an alarm is red";
    const QString second = text(1, 0);
    today.setCurrentIndex(today.model()->index(1, 0));
    Press(FormName::frmVeraqua, "Today", Qt::Key_Return);
    EXPECT_THAT(TextOf(FormName::frmField, "lbl_ID"), HasSubstr(FromQt(second)));
    Press(FormName::frmField, "cmd_return", Qt::Key_Escape);
    ASSERT_TRUE(IsUp(FormName::frmVeraqua));
    for (const bool hides : {true, false}) {
        QTimer::singleShot(0, [] {
            auto* columns = qobject_cast<QMenu*>(QApplication::activePopupWidget());
            columns->actions().at(1)->trigger();
            columns->close();
        });
        today.customContextMenuRequested({});
        EXPECT_EQ(today.isColumnHidden(1), hides);
    }
    const QString shownLast = text(last, 0);
    today.selectRow(last);
    QTest::keySequence(&today, QKeySequence::Copy);
    const QString copied = QApplication::clipboard()->text();
    EXPECT_TRUE(copied.contains(shownLast + "\t")) << FromQt(copied);
    EXPECT_TRUE(copied.startsWith("Field\t")) << FromQt(copied);
    Click(FormName::frmVeraqua, "cmdOpenToday");
    EXPECT_THAT(TextOf(FormName::frmField, "lbl_ID"), HasSubstr(FromQt(shownLast)));
}

TEST_F(StoriesTest, EveryWindowIsLeftByEscAndTellsOfItselfByF1) {
    Today();
    const std::pair<const char*, FormName> tiles[] = {
        {"cmdConfig", FormName::frmConfig}, {"cmdWeather", FormName::frmWeather}, {"cmdfields", FormName::frmField}};
    for (const auto& [tile, form] : tiles) {
        Press(FormName::frmVeraqua, tile, Qt::Key_Return);
        EXPECT_TRUE(IsUp(form) && !IsUp(FormName::frmVeraqua)) << tile;
        ASSERT_NE(Window(form).focusWidget(), nullptr) << tile;
        QTest::keyClick(Window(form).focusWidget(), Qt::Key_F1);
        const ManualPage* manual = nullptr;
        for (QWidget* window : QApplication::topLevelWidgets())
            if (window->isVisible() && manual == nullptr) manual = window->findChild<ManualPage*>();
        ASSERT_NE(manual, nullptr) << tile;
        EXPECT_EQ(manual->Sections()[manual->SectionInView()].Id, Window(form).property("help").toString());
        manual->window()->close();
        QTest::keyClick(Window(form).focusWidget(), Qt::Key_Escape);
        Settle();
        EXPECT_TRUE(!IsUp(form) && IsUp(FormName::frmVeraqua)) << tile;
    }
}

TEST_F(StoriesTest, WhatIsDisabledIsNotClickedByItsNameEither) {
    Today();
    auto& tile = *std::get<Button*>(FormOf(FormName::frmVeraqua).Find("cmdConfig")->Where);
    QLabel* name = nullptr;
    for (auto* label : Window(FormName::frmVeraqua).findChildren<QLabel*>())
        if (label->buddy() == &The(FormName::frmVeraqua, "cmdConfig")) name = label;
    ASSERT_NE(name, nullptr);
    for (const bool enabled : {false, true}) {
        tile.Enabled = enabled;
        Screen.BringAll();
        Click(FormName::frmVeraqua, "cmdConfig");
        QTest::mouseClick(name, Qt::LeftButton);
        Settle();
        EXPECT_EQ(IsUp(FormName::frmConfig), enabled);
    }
}

TEST_F(StoriesTest, EnterAloneConfirmsNoDeletionOfAField) {
    OpenField(1);
    const auto fields = State.FieldCount;
    Choose(FormName::frmField, "mnuDelete");
    EXPECT_THAT(LastSaid(), HasSubstr("Delete Confirmation: Please confirm"));
    ASSERT_EQ(State.FieldCount, fields);
    Answers = {QMessageBox::Yes};
    Choose(FormName::frmField, "mnuDelete");
    EXPECT_EQ(State.FieldCount, fields - 1);
}

TEST_F(StoriesTest, KeysAndTheWheelMoveInAListAndEnterPicks) {
    Today();
    Click(FormName::frmVeraqua, "cmdfields");
    Choose(FormName::frmField, "mnuSelect");
    auto& fields = The<QComboBox>(FormName::frmField, "ComboField");
    for (int i = 0; i < 2; ++i) QTest::keyClick(&fields, Qt::Key_Down);
    Turn(fields);
    Settle();
    EXPECT_EQ(fields.currentIndex(), 2);
    EXPECT_EQ(State.CurrentField, 0);
    QTest::keyClick(&fields, Qt::Key_Return);
    Settle();
    EXPECT_EQ(State.CurrentField, RowsInUse().at(2));
    EXPECT_FALSE(The(FormName::frmField, "cmd_return").hasFocus()) << "Enter would leave the field";
    Press(FormName::frmField, "cmd_return", Qt::Key_Escape);
    Click(FormName::frmVeraqua, "cmdWeather");
    Choose(FormName::frmWeather, "mnu_KESTAloc");
    The(FormName::frmWeather, "Cmd_Exit").setFocus();
    Settle();
    auto& stations = The<QComboBox>(FormName::frmWeather, "ComboKESTA");
    const int before = stations.currentIndex();
    Turn(stations);
    Settle();
    EXPECT_TRUE(stations.currentIndex() == before && !stations.hasFocus());
    Press(FormName::frmWeather, "Cmd_Exit", Qt::Key_Escape);
    Press(FormName::frmVeraqua, "cmdfields", Qt::Key_Escape);
    EXPECT_EQ(LastSaid(), "Veraqua: Do you want to leave Veraqua?");
    EXPECT_TRUE(IsUp(FormName::frmVeraqua));
}

TEST_F(StoriesTest, EachFormBeginsAtItsFirstBoxHoweverItWasLeft) {
    OpenField(1);
    for (int opened = 0; opened < 2; ++opened) {
        Choose(FormName::frmField, "mnuAdd");
        EXPECT_EQ(QApplication::focusWidget(), &The(FormName::frmAddWater, "txtRainDate")) << opened;
        Click(FormName::frmAddWater, "cmdReturn");
        EXPECT_EQ(QApplication::focusWidget(), &The(FormName::frmFieldData, "cmdExit")) << opened;
        The(FormName::frmFieldData, "cmdPrint").setFocus();
        Settle();
    }
    Click(FormName::frmFieldData, "cmdExit");
    Choose(FormName::frmField, "mnu_MAD");
    Press(FormName::frmField, "cmdMADOK", Qt::Key_Escape);
    EXPECT_FALSE(The(FormName::frmField, "txtNewMAD").isVisible());
    EXPECT_TRUE(IsUp(FormName::frmField));
    EXPECT_FALSE(The(FormName::frmField, "cmd_return").hasFocus());
    Choose(FormName::frmField, "m_displays");
    QTest::keyClick(Window(FormName::frmGraphs).findChild<QWidget*>("cmd_Select"), Qt::Key_Escape);
    Settle();
    EXPECT_TRUE(IsUp(FormName::frmField) && !IsUp(FormName::frmGraphs));
}

TEST_F(StoriesTest, WaterIsTypedAndWhatIsRefusedIsSaidAtTheBox) {
    OpenField(1);
    Choose(FormName::frmField, "mnuAdd");
    auto& list = The<QListWidget>(FormName::frmAddWater, "ListIrr");
    auto& rains = The<QListWidget>(FormName::frmAddWater, "ListRain");
    EXPECT_TRUE(rains.viewport()->rect().contains(rains.visualItemRect(rains.item(rains.count() - 1)))) << "the newest";
    EXPECT_FALSE(rains.viewport()->rect().contains(rains.visualItemRect(rains.item(0))));
    const int before = list.count();
    auto panels = Window(FormName::frmAddWater).findChild<QStatusBar*>()->findChildren<QLabel*>();
    std::ranges::sort(panels, {}, [](const QLabel* panel) { return panel->x(); });
    const char* said[] = {"Field=", "Planted: ", "Kesta: "};
    ASSERT_EQ(panels.size(), std::ssize(said));
    for (int i = 0; i < panels.size(); ++i) EXPECT_TRUE(panels[i]->text().startsWith(said[i])) << said[i];
    // The day before today, by the date's calendar.
    auto& date = The<QLineEdit>(FormName::frmAddWater, "txtIrrAdd");
    Type(FormName::frmAddWater, "txtIrrAdd", "");
    QTimer::singleShot(0, &date, [] {
        const QWidget* popup = QApplication::activePopupWidget();
        ASSERT_NE(popup, nullptr);
        auto* days = popup->findChild<QAbstractItemView*>("qt_calendar_calendarview");
        for (const Qt::Key key : {Qt::Key_Left, Qt::Key_Return}) QTest::keyClick(days, key);
    });
    QTest::keyClick(&date, Qt::Key_Down, Qt::AltModifier);
    EXPECT_EQ(date.text(), "07-14-2025");
    Window(FormName::frmAddWater).activateWindow();
    Settle();
    QTest::keyClick(&date, Qt::Key_Return);
    Settle();
    auto& amount = The<QLineEdit>(FormName::frmAddWater, "txtIrrigation");
    EXPECT_EQ(QApplication::focusWidget(), &amount);
    Click(FormName::frmAddWater, "cmdOKIrrigation");
    EXPECT_EQ(LastSaid(), "Missing Data!: Please enter a value for your irrigation amount");
    EXPECT_EQ(QApplication::focusWidget(), &amount);
    EXPECT_TRUE(amount.property("refused").toBool());
    EXPECT_EQ(amount.accessibleDescription(), "Please enter a value for your irrigation amount");
    QTest::keyClicks(&amount, "1.5");
    EXPECT_FALSE(amount.property("refused").toBool());
    QTest::keyClick(&amount, Qt::Key_Return);
    Settle();
    ASSERT_EQ(list.count(), before + 1);
    EXPECT_EQ(list.item(before)->text(), "07-14-25   ...   1.5 inches");
    list.setCurrentRow(before);
    Answers = {QMessageBox::Yes};
    Click(FormName::frmAddWater, "cmdDeleteI");
    EXPECT_EQ(list.count(), before);
    Press(FormName::frmAddWater, "txtIrrAdd", Qt::Key_Escape);
    EXPECT_FALSE(IsUp(FormName::frmAddWater));
}

TEST_F(StoriesTest, ABoxIsNotLeftWithAWrongNumberButForTheExit) {
    OpenField(1);
    Choose(FormName::frmField, "mnuNew");
    for (const char* choice : {"comboCrops", "Combo_Soils"}) Pick(FormName::frmField, choice, 0);
    Click(FormName::frmField, "cmd_OK");
    ASSERT_TRUE(IsUp(FormName::frmLoadField));
    Type(FormName::frmLoadField, "txtFieldID", "EAST");
    QTest::sendKeyEvent(QTest::Click, &The(FormName::frmLoadField, "txtFieldID"), Qt::Key_unknown, u"\u0416"_qs,
                        Qt::NoModifier);  // no letter of the data files
    EXPECT_EQ(The<QLineEdit>(FormName::frmLoadField, "txtFieldID").text(), "EAST");
    Type(FormName::frmLoadField, "txtMAD", "x");
    const std::size_t said = Said.size();
    auto& mad = The<QLineEdit>(FormName::frmLoadField, "txtMAD");
    QTest::keyClick(&mad, Qt::Key_Tab);
    ASSERT_TRUE(QTest::qWaitFor([&] { return Said.size() == said + 1; }));
    Settle();
    EXPECT_EQ(QApplication::focusWidget(), &mad);
    QTest::mouseClick(&The(FormName::frmLoadField, "txtIrrEff"), Qt::LeftButton);
    ASSERT_TRUE(QTest::qWaitFor([&] { return Said.size() == said + 2; }));
    Settle();
    EXPECT_EQ(QApplication::focusWidget(), &mad);
    EXPECT_TRUE(mad.property("refused").toBool());
    Click(FormName::frmLoadField, "cmd_Cancel");
    EXPECT_EQ(Said.size(), said + 2);
    EXPECT_FALSE(IsUp(FormName::frmLoadField));
    EXPECT_TRUE(IsUp(FormName::frmField));
}

TEST_F(StoriesTest, UnitsAndTheDayAreChosenAndHoldInEveryWindow) {
    Today();
    Click(FormName::frmVeraqua, "cmdConfig");
    Choose(FormName::frmConfig, "mnuUnits");
    The<QRadioButton>(FormName::frmConfig, "optMetric").click();
    Settle();
    EXPECT_FALSE(State.EnglishUnits);
    EXPECT_FALSE(The<QRadioButton>(FormName::frmConfig, "optEnglish").isChecked());
    Choose(FormName::frmConfig, "mnuDate");
    Click(FormName::frmConfig, "cmd_Calendar");
    auto& calendar = The<QCalendarWidget>(FormName::frmConfig, "Cal1");
    Q_EMIT calendar.clicked(QDate(2025, 7, 12));
    Settle();
    EXPECT_EQ(FromQt(The<QLineEdit>(FormName::frmConfig, "txtDate").text()), "07-12-2025");
    Click(FormName::frmConfig, "cmd_Calendar");
    auto* days = calendar.findChild<QAbstractItemView*>("qt_calendar_calendarview");
    for (int day = 15; day > 10; --day) QTest::keyClick(days, Qt::Key_Left);
    QTest::keyClick(days, Qt::Key_Return);
    Settle();
    EXPECT_EQ(FromQt(The<QLineEdit>(FormName::frmConfig, "txtDate").text()), "07-10-2025");
    Click(FormName::frmConfig, "cmdOK");
    EXPECT_EQ(Screen.Now(), JulianFromDate(7, 10, 2025));
    Press(FormName::frmConfig, "txtDate", Qt::Key_Escape);
    EXPECT_TRUE(!calendar.isVisible() && IsUp(FormName::frmConfig));
    Press(FormName::frmConfig, "Cmd_Exit", Qt::Key_Escape);
    EXPECT_TRUE(IsUp(FormName::frmVeraqua));
    const auto* model = The<QTableView>(FormName::frmVeraqua, "Today").model();
    QString headings;
    for (int column = 0; column < model->columnCount(); ++column)
        headings += model->headerData(column, Qt::Horizontal).toString() + " ";
    EXPECT_TRUE(headings.contains("(mm)")) << FromQt(headings);
}

TEST_F(StoriesTest, WhatIsKeptForTheNextStartIsOutOfTheData) {
    Today();
    const std::vector<std::string> before = files::Names();
    Click(FormName::frmVeraqua, "cmdConfig");
    Choose(FormName::frmConfig, "mnuUnits");
    The<QCheckBox>(FormName::frmConfig, "chkKeep").click();
    EXPECT_EQ(Screen.Kept("options"), (std::vector<std::string>{"english", "12"}));
    The<QCheckBox>(FormName::frmConfig, "chkKeep").click();
    EXPECT_TRUE(Screen.Kept("options").empty());
    EXPECT_EQ(files::Names(), before);
}

TEST_F(StoriesTest, AYearOfWeatherIsATable) {
    Today();
    Click(FormName::frmVeraqua, "cmdWeather");
    WhenShown[FormName::frmViewWeather] = [this] {
        auto& table = The<QTableView>(FormName::frmViewWeather, "txtData");
        EXPECT_EQ(table.model()->rowCount(), 0);
        Type(FormName::frmViewWeather, "txtYear", "2025");
        Click(FormName::frmViewWeather, "cmdOK");
        ASSERT_GT(table.model()->rowCount(), 190);
        table.sortByColumn(2, Qt::DescendingOrder);
        EXPECT_GE(table.model()->index(0, 2).data().toString().toDouble(),
                  table.model()->index(150, 2).data().toString().toDouble());
        Window(FormName::frmViewWeather).close();
    };
    Choose(FormName::frmWeather, "mnu_KESTAloc");
    Pick(FormName::frmWeather, "ComboKESTA", 5);
    Choose(FormName::frmWeather, "mnu_view");
    EXPECT_TRUE(WhenShown.empty());
    Click(FormName::frmWeather, "Cmd_Exit");
    EXPECT_TRUE(IsUp(FormName::frmVeraqua));
}

TEST_F(StoriesTest, ADownloadThatTheNetworkLeavesHangingIsCancelledAtOnce) {
    Today();
    QTcpServer silent;
    silent.listen(QHostAddress::LocalHost);
    files::Write("network.txt", "http://127.0.0.1:" + std::to_string(silent.serverPort()));
    Click(FormName::frmVeraqua, "cmdWeather");
    WhenShown[FormName::frmDownload] = [this] {
        EXPECT_FALSE(The(FormName::frmDownload, "cmd_OK").isEnabled());
        Click(FormName::frmDownload, "Cmd_Exit");
    };
    Choose(FormName::frmWeather, "mnu_KESTAloc");
    Pick(FormName::frmWeather, "ComboKESTA", 5);
    Answers = {QMessageBox::Yes};  // what is there is to be overwritten
    Choose(FormName::frmWeather, "mnu_AppendWeather");
    EXPECT_TRUE(WhenShown.empty());
    EXPECT_THAT(Said, testing::Contains("DOWNLOAD ENDED: Your download has been cancelled"));
    EXPECT_TRUE(IsUp(FormName::frmWeather) && !IsUp(FormName::frmDownload));
}

TEST_F(StoriesTest, TheSoilOfANewFieldIsEnteredInNamedBoxes) {
    OpenField(1);
    const std::pair<int, FormName> soils[] = {{0, FormName::frmCap}, {1, FormName::frmCapVar}};
    for (const auto& [soil, form] : soils) {
        Choose(FormName::frmField, "mnuNew");
        Pick(FormName::frmField, "comboCrops", 0);
        Pick(FormName::frmField, "Combo_Soils", soil);
        Click(FormName::frmField, "cmd_OK");
        Type(FormName::frmLoadField, "txtFieldID", "EAST");
        Pick(FormName::frmLoadField, "ComboKESTA", 5);
        WhenShown[form] = [this, shown = form] {
            if (shown == FormName::frmCap) Type(shown, "txtDepth", "12");
            Click(shown, "cmdDepth");
            EXPECT_TRUE(The(shown, "txtcap_0").isVisible());
            Click(shown, "cmdCancel");
        };
        Click(FormName::frmLoadField, "cmd_OK");
        EXPECT_TRUE(WhenShown.empty()) << LastSaid();
        if (IsUp(FormName::frmLoadField)) Click(FormName::frmLoadField, "cmd_Cancel");
    }
}

TEST_F(StoriesTest, AStationTypedByNameIsAChangedTextAndOneByHalfIsLeftInPeace) {
    OpenField(1);
    Choose(FormName::frmField, "mnuNew");
    Pick(FormName::frmField, "comboCrops", 0);
    Pick(FormName::frmField, "Combo_Soils", 0);
    Click(FormName::frmField, "cmd_OK");
    auto& line = *The<QComboBox>(FormName::frmLoadField, "ComboKESTA").lineEdit();
    const auto type = [&](const std::string& name) {
        QTest::mouseClick(&line, Qt::LeftButton);
        line.selectAll();
        QTest::keyClicks(&line, QString::fromStdString(name));
    };
    Said.clear();
    type(State.DefaultStations[10]);  // off-line for what is typed, but not for a click
    QTest::keyClick(&line, Qt::Key_Return);
    Settle();
    EXPECT_THAT(Said, testing::ElementsAre("Bad selection: Please select a site that isn't off-line!"));
    type("half");
    Said.clear();
    Click(FormName::frmLoadField, "cmd_Cancel");
    EXPECT_THAT(Said, testing::IsEmpty());
    EXPECT_FALSE(IsUp(FormName::frmLoadField));
}

TEST_F(StoriesTest, AFieldIsChosenAmongTheBarsWhichAreSortedAndTurnedInPages) {
    OpenField(1);
    State.DisplayDays = 4;
    std::vector<std::string> ids;
    for (int row = 1; row <= State.FieldCount; ++row) ids.push_back(State.Stat[row].FieldId.Text());
    std::ranges::sort(ids);
    ASSERT_GE(ids.size(), 9U);
    Choose(FormName::frmField, "m_displays");
    Choose(FormName::frmGraphs, "m_Field");
    const auto first = Bars();
    Choose(FormName::frmGraphs, "m_next12");
    const auto second = Bars();
    ASSERT_TRUE(first.size() == 4 && second.size() == 4);
    for (std::size_t i = 0; i < 4; ++i) EXPECT_EQ(first[i].second + second[i].second, ids[i] + ids[i + 4]);
    Choose(FormName::frmGraphs, "m_prior12");
    EXPECT_EQ(Bars(), first);
    Choose(FormName::frmGraphs, "m_crop");
    EXPECT_TRUE(std::ranges::is_sorted(Bars(), {}, [](const auto& bar) { return bar.first; }));
    EXPECT_NE(Bars(), first);
    int alarms = 0;
    const auto frames = Window(FormName::frmGraphs).findChild<QMdiArea*>()->subWindowList();
    EXPECT_FALSE(frames[0]->geometry().intersects(frames[1]->geometry()));
    for (const QMdiSubWindow* frame : frames) {
        auto& depletion = *frame->findChild<QLabel*>("lbl_depl");
        const auto percent = [&](const char* label) {
            return frame->findChild<QLabel*>(label)->text().section(':', 1).remove('%').toDouble();
        };
        const bool alarm = percent("lbl_depl") > 1.2 * percent("lbl_MAD");
        const QString colour = ColourIn(depletion, depletion.rect()).name();
        EXPECT_EQ(colour == "#ff0000", alarm) << FromQt(colour + frame->windowTitle() + depletion.text());
        alarms += alarm ? 1 : 0;
    }
    EXPECT_GT(alarms, 0);
    const std::string id = Bars()[2].second;
    for (const QMdiSubWindow* frame : frames)
        if (frame->windowTitle().endsWith(ToQt(id)))
            QTest::mouseClick(frame->findChild<QWidget*>("cmd_Select"), Qt::LeftButton);
    Settle();
    EXPECT_TRUE(IsUp(FormName::frmField) && !IsUp(FormName::frmGraphs));
    EXPECT_THAT(TextOf(FormName::frmField, "lbl_ID"), HasSubstr(id));
}

TEST_F(StoriesTest, AWindowKeepsItsSizeToTheNextRunAndIsNeverOffTheScreen) {
    Today();
    Click(FormName::frmVeraqua, "cmdConfig");
    QWidget& configuration = Window(FormName::frmConfig);
    configuration.resize(configuration.width() + 37, configuration.height() + 11);
    const QSize size = configuration.size();
    Click(FormName::frmConfig, "Cmd_Exit");
    {
        QtScreen next;
        Show(FormName::frmConfig);
        EXPECT_EQ(next.WindowOf(FormOf(FormName::frmConfig)).Window().size(), size);
        Unload(FormName::frmConfig);
    }
    InstallScreen(Screen);
    const QRect room = configuration.screen()->availableGeometry();
    QWidget corner;
    QWidget window;
    corner.setGeometry(QRect(room.bottomRight() - QPoint(60, 60), QSize(50, 50)));
    corner.show();
    window.resize(room.width() / 2, room.height() * 2);
    PlaceWindow(window, "a new one", &corner);
    EXPECT_TRUE(room.contains(window.frameGeometry()));

    const QMargins frame(4, 30, 4, 4);  // before it is shown, a window has no frame of its own
    QSettings().setValue("frame", QVariantList{frame.left(), frame.top(), frame.right(), frame.bottom()});
    PlaceWindow(window, "another", &corner);
    EXPECT_TRUE(room.contains(window.geometry().marginsAdded(frame)));
}

}  // namespace
}  // namespace veraqua
