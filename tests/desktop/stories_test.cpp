#include <QApplication>
#include <QCalendarWidget>
#include <QClipboard>
#include <QHeaderView>
#include <QLabel>
#include <QListWidget>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QRadioButton>
#include <QTableView>
#include <QTcpServer>

#include <gmock/gmock.h>

#include "tests/desktop/window_test.h"

namespace veraqua {
namespace {

using testing::HasSubstr;

struct StoriesTest : WindowTest {
    std::string TextOf(FormName form, const char* label) { return FromQt(The<QLabel>(form, label).text()); }

    /// The main menu of the sample season, the worst field of its list first.
    QTableView& Today() {
        StartWithSample();
        Settle();
        return The<QTableView>(FormName::frmVeraqua, "Today");
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

TEST_F(StoriesTest, TheListIsSortedByItsNumbersAndCopied) {
    QTableView& today = Today();
    const int last = today.model()->rowCount() - 1;
    for (int column = 0; column < today.model()->columnCount(); ++column) {
        if (!today.model()->headerData(column, Qt::Horizontal).toString().startsWith("Depletion")) continue;
        today.sortByColumn(column, Qt::DescendingOrder);
        const auto number = [&](int row) { return today.model()->index(row, column).data().toString().toInt(); };
        for (int row = 1; row <= last; ++row) EXPECT_GE(number(row - 1), number(row));
    }
    today.selectRow(last);
    QTest::keySequence(&today, QKeySequence::Copy);
    const QString copied = QApplication::clipboard()->text();
    EXPECT_TRUE(copied.contains(today.model()->index(last, 0).data().toString() + "\t")) << FromQt(copied);
    EXPECT_TRUE(copied.startsWith("Field\t")) << FromQt(copied);
    const QString shownLast = today.model()->index(last, 0).data().toString();
    Click(FormName::frmVeraqua, "cmdOpenToday");
    EXPECT_THAT(TextOf(FormName::frmField, "lbl_ID"), HasSubstr(FromQt(shownLast)));
}

TEST_F(StoriesTest, WaterIsTypedAndWhatIsRefusedIsSaidAtTheBox) {
    OpenField(1);
    Choose(FormName::frmField, "mnuAdd");
    auto& list = The<QListWidget>(FormName::frmAddWater, "ListIrr");
    const int before = list.count();
    Type(FormName::frmAddWater, "txtIrrAdd", "7/14/2025");
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
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
    QTest::mouseClick(&The(FormName::frmLoadField, "txtIrrEff"), Qt::LeftButton);
    QTRY_COMPARE(Said.size(), said + 1);
    Settle();
    auto& mad = The<QLineEdit>(FormName::frmLoadField, "txtMAD");
    EXPECT_EQ(QApplication::focusWidget(), &mad);
    EXPECT_TRUE(mad.property("refused").toBool());
    Click(FormName::frmLoadField, "cmd_Cancel");
    EXPECT_EQ(Said.size(), said + 1);
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
    Q_EMIT The<QCalendarWidget>(FormName::frmConfig, "Cal1").clicked(QDate(2025, 7, 10));
    Settle();
    EXPECT_EQ(FromQt(The<QLineEdit>(FormName::frmConfig, "txtDate").text()), "07-10-2025");
    Click(FormName::frmConfig, "cmdOK");
    EXPECT_EQ(Screen.Now(), JulianFromDate(7, 10, 2025));
    Press(FormName::frmConfig, "Cmd_Exit", Qt::Key_Escape);
    EXPECT_TRUE(IsUp(FormName::frmVeraqua));
    const auto* model = The<QTableView>(FormName::frmVeraqua, "Today").model();
    QString headings;
    for (int column = 0; column < model->columnCount(); ++column)
        headings += model->headerData(column, Qt::Horizontal).toString() + " ";
    EXPECT_TRUE(headings.contains("(mm)")) << FromQt(headings);
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
    State.BaseUrl = "http://127.0.0.1:" + std::to_string(silent.serverPort()) + "/";
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

TEST_F(StoriesTest, AFieldIsChosenAmongTheBars) {
    OpenField(1);
    Choose(FormName::frmField, "m_displays");
    const auto frames = Window(FormName::frmGraphs).findChild<QMdiArea*>()->subWindowList();
    ASSERT_GE(frames.size(), 9);
    EXPECT_FALSE(frames[0]->geometry().intersects(frames[1]->geometry()));
    const std::string title = FromQt(frames[2]->windowTitle());
    QTest::mouseClick(frames[2]->findChild<QWidget*>("cmd_Select"), Qt::LeftButton);
    Settle();
    EXPECT_TRUE(IsUp(FormName::frmField) && !IsUp(FormName::frmGraphs));
    const std::string id = title.substr(title.find("ID: ") + 4);
    EXPECT_THAT(TextOf(FormName::frmField, "lbl_ID"), HasSubstr(id));
}

TEST_F(StoriesTest, AWindowKeepsItsSizeAndIsNeverOffTheScreen) {
    Today();
    QWidget& menu = Window(FormName::frmVeraqua);
    menu.resize(menu.width() + 37, menu.height());
    const int width = menu.width();
    menu.move(5000, 5000);
    Click(FormName::frmVeraqua, "cmdConfig");
    Click(FormName::frmConfig, "Cmd_Exit");
    EXPECT_TRUE(menu.screen()->availableGeometry().contains(menu.geometry().center()));
    EXPECT_TRUE(menu.width() == width || width > menu.screen()->availableGeometry().width());
}

}  // namespace
}  // namespace veraqua
